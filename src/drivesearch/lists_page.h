// The page of the exclude and include lists of the drive search.
#pragma once

#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/page.h"

namespace quillvane {

class ListsPage : public virtual Page {
 public:
  ListsPage(Window& owner, Session& shared) : Page(owner, shared) {}

  // folders and files to leave out
  ListView View201{window, "View201", {"Excluded Files and Folders Location", "Description"}};
  // folders to take in
  ListView View202{window, "View202", {"Included Folders Location", "Description"}};
  // holds the way to the page of the exclude and include lists
  Button chameleonButton1{window, "chameleonButton1", kHidden};
};

}  // namespace quillvane
