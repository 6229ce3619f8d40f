// What the shortcut window shows while it searches.
#pragma once

#include "forms/buttons.h"
#include "forms/page.h"
#include "forms/simple_controls.h"

namespace quillvane {

class ProgressPanel : public virtual Page {
 public:
  ProgressPanel(Window& owner, Session& shared) : Page(owner, shared) {}

  Frame Frame8{window, "Frame8", kHidden};  // panel of the progress
  // heading of the progress
  Label Label2_3{window, "Label2(3)", {.caption = "Searching for Broken Shortcut Files:"}};
  Label Label6_0{window, "Label6(0)", {.caption = "Scanning: "}};  // stands before Label5
  Label Label5{window, "Label5"};                                  // the folder in work
  // stands before Label7
  Label Label6_1{window, "Label6(1)", {.caption = " Broken Shortcut Files Found: "}};
  Label Label7{window, "Label7"};  // how many were found
  // shown while a link is judged
  Label Label3{window, "Label3", {.caption = "Found New Link and Testing It", .hidden = true}};
  // a word of patience
  Label Label88_6{window,
                  "Label88(6)",
                  {.caption = "This processes could take several minutes depending on your Disk "
                              "used size, So please be patient while searching."}};
  Label Label100{window, "Label100"};    // the folder in work of the search for targets
  Animation Gif89a1{window, "Gif89a1"};  // plays while the panel is shown
};

}  // namespace quillvane
