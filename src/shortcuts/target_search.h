// The search of a drive for files with the names of the missing targets, which then become the
// targets of the links. It asks nothing and goes by names alone.
#pragma once

#include <deque>
#include <string>

#include "forms/list_box.h"
#include "forms/page.h"
#include "forms/text_box.h"
#include "platform/folder_tree.h"
#include "shortcuts/file_list.h"
#include "shortcuts/progress_panel.h"
#include "shortcuts/result_page.h"

namespace quillvane {

class TargetSearch : public virtual Page {
 public:
  TargetSearch(Window& owner, Session& shared) : Page(owner, shared) {}

  // Rebuilds the links of `results` whose target's name was found on the drive of the first of them
  // that lies on a fixed one. False when no name was found, which the user is told.
  [[nodiscard]] bool search_targets(const ResultPage& results, ProgressPanel& progress);
  // Stops it.
  void cancel();
  [[nodiscard]] bool is_reading_drive() const { return is_reading_; }

  ListBox List4{window, "List4", kHidden};        // files found, in the order of the folders
  ListBox List5{window, "List5", kHidden};        // names of the missing targets
  ListBox List6{window, "List6", kHidden};        // links of the rows
  ListBox List7{window, "List7", kHidden};        // files found while the drive is searched
  ListBox LSTFILES{window, "LSTFILES", kHidden};  // all files of the folders searched
  ListBox lstdirs{window, "lstdirs", kHidden};    // folders still to be searched
  FileList File1{window, "File1", kHidden};       // files of the folder in work with a wanted name
  // the wanted names, each with ";" behind it; "1" at its head stops the search
  TextBox Text4{window, "Text4", kHidden};

 private:
  void note_names(const ResultPage& results);
  void search_drive(const std::string& root, ProgressPanel& progress);
  void list_wanted_files(const std::string& path, const ListedFolder& folder);
  void findfilesapi(const std::string& path, const ListedFolder& folder);
  [[nodiscard]] bool stops_for_entry();
  void rebuild_links();

  bool is_reading_ = false;
  std::deque<const ListedFolder*> to_search_;  // the folders of lstdirs
};

}  // namespace quillvane
