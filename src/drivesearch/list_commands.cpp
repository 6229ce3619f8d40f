// What the commands of the lists page change: rows on the screen, and both files with them.
#include <set>
#include <vector>

#include "drivesearch/lists_page.h"
#include "support/shell_helpers.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr int kThisPc = 0x11;  // has no path, so the dialog begins at the top
constexpr const char* kNoDescription = "Excluded Folder";  // of included folders, too

std::string name_behind_last_backslash(const std::string& path) {
  return path.substr(path.rfind('\\') + 1);
}

}  // namespace

// The folder the user chose, a drive by its letter alone ("C:"); empty when cancelled. The window
// makes room for the dialog, and stays above all others from then on.
std::string ListsPage::ask_for_folder() {
  window.set_topmost(false);
  const std::string path =
      BrowseForFolder(platform().dialogs, platform().shell, "Select folder:", 0, kThisPc);
  return std::string(Trim(path.ends_with('\\') ? path.substr(0, path.size() - 1) : path));
}

std::string ListsPage::ask_for_description(const std::string& title, const std::string& preset) {
  std::string description =
      platform().dialogs.input_box("Enter Description For This Folder", title, preset);
  return Trim(description).empty() ? kNoDescription : description;
}

// A folder can be added any number of times.
void ListsPage::add_folder() {
  const std::string path = ask_for_folder();
  if (!path.empty() && Text55.text() == "1") {
    const int row = View201.add(path);
    View201.set_sub_item(row, kDescriptionColumn, ask_for_description("exclud Folder Option", ""));
    View201.set_sub_item(row, kFlagColumn, kFolderFlag);
    View201.set_icon(row, "fol");
  }
  if (!path.empty() && Text55.text() == "2") {
    const int row = View202.add(path);
    View202.set_sub_item(row, kDescriptionColumn, ask_for_description("Include Folder Option", ""));
    View202.set_icon(row, "fol");
  }
  window.set_topmost(true);
  save_lists();
}

// The row has the icon of a folder until the list is shown anew. Meant so.
void ListsPage::add_file() {
  const std::string path =
      platform().dialogs.open_file({"Select File to Exclude from search", "", ""});
  if (!Trim(path).empty()) {
    const std::string name = name_behind_last_backslash(path);
    const int row = View201.add(name);
    View201.set_sub_item(row, kDescriptionColumn, name);
    View201.set_sub_item(row, kFlagColumn, kFileFlag);
    View201.set_icon(row, "fol");
  }
  save_lists();
}

// Changes the row on the screen alone: it reaches the file when a later command saves the lists.
// Meant so. The row's flag stays what it was.
void ListsPage::edit_row() {
  const std::string path = ask_for_folder();
  const double row = Val(Text52.text());
  const bool excluded = Text55.text() == "1";
  ListView& list = excluded ? View201 : View202;
  const bool has_row = row >= 1 && row <= list.count() && (excluded || Text55.text() == "2");
  if (!path.empty() && has_row) {
    const int number = static_cast<int>(row);
    list.set_text(number, path);
    list.set_sub_item(
        number, kDescriptionColumn,
        ask_for_description("excluded Folder Option", list.sub_item(number, kDescriptionColumn)));
  }
  fill_exclude_queue();
  window.set_topmost(true);
  Text52.set_text("");
}

void ListsPage::delete_rows() {
  const Answer sure = platform().dialogs.message_box("Are You Sure To Remove This Entry", "Delete",
                                                     kBoxYesNo | kBoxIconQuestion);
  if (sure == Answer::kNo) return;
  if (Val(Text55.text()) == 1) delete_excluded_rows();
  if (Val(Text55.text()) == 2) delete_included_rows();
  save_lists();
  command339.set_enabled(false);
  command338.set_enabled(false);
}

// The queue loses its item of the same number, though its items are other ones where the list has
// files or the queue was never filled. Meant so.
void ListsPage::delete_excluded_rows() {
  for (int row = 1; row <= View201.count(); ++row) {
    session.do_events();
    if (row > View201.count() || !View201.selected(row)) continue;
    View201.remove(row);
    List6.remove(row - 1);
    --row;
  }
}

// Goes by the selection in the exclude list, which is hidden then, as it was at the start. Meant
// so.
void ListsPage::delete_included_rows() {
  std::set<int> doomed;
  for (int row = 1; row <= View201.count(); ++row) {
    if (View201.selected(row)) doomed.insert(row);
  }
  const int count = View202.count();
  int removed = 0;
  for (int row = 1; row <= count; ++row) {
    session.do_events();
    if (doomed.count(row) == 0 || row - removed > View202.count()) continue;
    View202.remove(row - removed);
    List5.remove(row - removed - 1);
    ++removed;
  }
}

// Both files, from what the page shows. A list that could not be read stays as it is.
void ListsPage::save_lists() {
  const auto save = [this](std::string_view file, const ListView& list, bool has_flags) {
    std::vector<ListedPlace> places;
    for (int row = 1; row <= list.count(); ++row) {
      places.push_back({list.text(row), list.sub_item(row, kDescriptionColumn),
                        has_flags ? list.sub_item(row, kFlagColumn) : std::string(kFileFlag)});
    }
    // Without a word when it cannot be written.
    static_cast<void>(write_folder_list(platform(), session.data_file(file), places));
  };
  if (exclude_was_read_) save(kExcludeFile, View201, true);
  if (include_was_read_) save(kIncludeFile, View202, false);
}

}  // namespace quillvane
