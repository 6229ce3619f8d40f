// The run of the drive search, and what it found.
#pragma once

#include "forms/field.h"
#include "forms/list_view.h"
#include "forms/page.h"

namespace quillvane {

class SearchRun : public virtual Page {
 public:
  SearchRun(Window& owner, Session& shared) : Page(owner, shared) {}

  // hits of a search for all files
  ListView View10{window, "View10", {"File Name", "Size", "Date"}};
  ListView View4{window, "View4", {"File Name", "Size", "Date"}};  // hits of one file type

  Field<int> wizardstep{window, "wizardstep"};  // page of the drive search
};

}  // namespace quillvane
