// The pages of the main window, as frames that hold their controls.
#pragma once

#include "forms/page.h"
#include "forms/simple_controls.h"

namespace quillvane {

class PageFrames : public virtual Page {
 public:
  PageFrames(Window& owner, Session& shared) : Page(owner, shared) {}

  // Brings one of the pages to the front, in the place of the others.
  void show_frame(Frame& page);
  void show_result_frame() { show_frame(Frame80); }

  Frame Frame2{window, "Frame2"};             // page of the drives
  Frame Frame4{window, "Frame4", kHidden};    // page of the file types
  Frame Frame6{window, "Frame6", kHidden};    // page of the exclude and include lists
  Frame Frame8{window, "Frame8", kHidden};    // progress of the drive search
  Frame Frame80{window, "Frame80", kHidden};  // the result page
};

}  // namespace quillvane
