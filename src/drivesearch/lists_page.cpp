#include "drivesearch/lists_page.h"

#include "support/characters.h"
#include "support/list_files.h"
#include "support/program_name.h"

namespace quillvane {

namespace {

constexpr std::size_t kTooLong = 51;  // characters

}  // namespace

ListsPage::ListsPage(Window& owner, Session& shared, JunkPage& junk)
    : Page(owner, shared), junk_(junk) {
  TabStrip1.on_click = [this](int tab) {
    if (tab == 1) show_exclude_list();
    if (tab == 2) show_include_list();
  };
  chameleonButton331.on_click = [this] { show_exclude_list(); };
  chameleonButton332.on_click = [this] { show_include_list(); };
  command331.on_click = [this] { add_folder(); };
  chameleonButton5.on_click = [this] { add_file(); };
  command338.on_click = [this] { edit_row(); };
  command339.on_click = [this] { delete_rows(); };
  command335.on_click = [this] { save_lists(); };
  Command4.on_click = [this] { fill_include_queue(); };
  Command5.on_click = [this] { fill_exclude_queue(); };
  Command6.on_click = [this] { drop_excluded_rows(); };
  for (ListView* list : {&View201, &View202}) {
    list->on_item_click = [this](int row) { row_clicked(row); };
  }
  View201.on_item_check = [this](int row) { row_clicked(row); };
  for (TextBox* box : {&Text52, &Text55}) {
    box->on_change = [this, box] { tell_length(*box); };
  }
}

void ListsPage::load_lists() {
  command338.set_enabled(false);
  command339.set_enabled(false);
  show_include_list();
  show_exclude_list();
}

void ListsPage::show_exclude_list() {
  command331.set_caption("Add new exclude folder");
  chameleonButton5.set_enabled(true);
  Label8.set_caption("Exclude all files in these folders");
  show_list(Which::kExclude);
  const FolderList list = open_folder_list(platform(), session.data_file(kExcludeFile));
  for (const ListedPlace& place : list.places) {
    const int row = View201.add(place.name);
    View201.set_sub_item(row, kDescriptionColumn, place.description);
    View201.set_sub_item(row, kFlagColumn, place.flag);
    View201.set_icon(row, place.is_folder() ? "fol" : "file");
  }
  exclude_was_read_ = list.problem.empty();
  lock_commands(!exclude_was_read_);
  if (!exclude_was_read_) tell_unread(kExcludeFile, list.problem);
}

void ListsPage::show_include_list() {
  command331.set_caption("Add new include folder");
  chameleonButton5.set_enabled(false);
  Label8.set_caption("Include all files in these folders, Regardless files type");
  View202.move_to(View201);
  show_list(Which::kInclude);
  const FolderList list = open_folder_list(platform(), session.data_file(kIncludeFile));
  for (const ListedPlace& place : list.places) {
    const int row = View202.add(place.name);
    View202.set_sub_item(row, kDescriptionColumn, place.description);
    View202.set_icon(row, "fol");
  }
  include_was_read_ = list.problem.empty();
  lock_commands(!include_was_read_);
  if (!include_was_read_) tell_unread(kIncludeFile, list.problem);
}

// Brings the list to the front, empty.
void ListsPage::show_list(Which which) {
  const bool excluded = which == Which::kExclude;
  ListView& shown = excluded ? View201 : View202;
  (excluded ? View202 : View201).hide();
  shown.clear();
  shown.show();
  Text52.set_text("");
  Text55.set_text(excluded ? "1" : "2");
  TabStrip1.choose(excluded ? 1 : 2);
}

// What is not shown would be lost by a change.
void ListsPage::lock_commands(bool locked) {
  for (Button* command : {&command331, &chameleonButton5, &command338, &command339}) {
    command->set_locked(locked);
  }
}

void ListsPage::tell_unread(std::string_view file, const std::string& problem) const {
  platform().dialogs.message_box(
      list_problem_message(session.data_file(file), problem,
                           "The list is not changed while it cannot be read."),
      std::string(kProgramName), kBoxIconWarning);
}

void ListsPage::row_clicked(int row) {
  Text52.set_text(std::to_string(row));
  command338.set_enabled(true);
  command339.set_enabled(true);
}

// Both hold short numbers, so this is never seen.
void ListsPage::tell_length(const TextBox& box) const {
  if (character_count(box.text()) < kTooLong) return;
  platform().dialogs.message_box(" only 50 character please", std::string(kProgramName), 0);
}

}  // namespace quillvane
