#include "drivesearch/type_page.h"

#include <initializer_list>
#include <utility>

#include "drivesearch/type_families.h"
#include "support/list_files.h"
#include "support/program_name.h"
#include "support/val.h"

namespace quillvane {

TypePage::TypePage(Window& owner, Session& shared) : Page(owner, shared) {
  connect_commands();
  for (const auto& [entry, button] : std::initializer_list<std::pair<MenuEntry*, const Button*>>{
           {&a1, &command111},
           {&a2, &command811},
           {&a3, &command911},
           {&a5, &orvbutton611},
           {&a6, &orvbutton711},
       }) {
    entry->on_click = [button = button] { button->raise_click(); };
  }
}

void TypePage::connect_commands() {
  View101.on_item_click = [this](int row) { type_clicked(row); };
  View101.on_item_check = [this](int /*row*/) { save_types(); };
  View101.on_right_click = [this] { return View101.count() >= 1 ? &a : nullptr; };
  View1000.on_item_click = [this](int row) { summary_clicked(row); };
  command111.on_click = [this] {
    if (on_edit_type) on_edit_type(0);
  };
  command811.on_click = [this] { edit_type(); };
  command911.on_click = [this] { delete_types(); };
  command511.on_click = [this] { save_types(); };
  orvbutton611.on_click = [this] { tick_all(true); };
  orvbutton711.on_click = [this] { tick_all(false); };
  Command1.on_click = [this] { load_summary(); };
  Text11.on_change = [this] {
    if (Val(Text11.text()) == 1) Command1.raise_click();
  };
  Text12.on_change = [this] {
    if (Val(Text12.text()) == 1) command511.raise_click();
  };
}

void TypePage::load_types() {
  View101.clear();
  const TypeTable table = read_type_table(session);
  for (const FileTypeEntry& entry : table.rows) {
    if (!entry.description.empty() && !entry.extension.empty()) add_row(entry);
  }
  was_read_ = table.problem.empty();
  lock_commands(!was_read_);
  if (was_read_) return;
  platform().dialogs.message_box(
      list_problem_message(session.data_file(kTypeFile), table.problem,
                           "The table is not changed while it cannot be read."),
      std::string(kProgramName), kBoxIconWarning);
}

void TypePage::add_row(const FileTypeEntry& entry) {
  const int row = View101.add(entry.description);
  View101.set_sub_item(row, 1, entry.extension);
  View101.set_checked(row, entry.is_on());
}

// What is not shown would be lost by a change.
void TypePage::lock_commands(bool locked) {
  for (Control* command :
       std::initializer_list<Control*>{&command111, &command811, &command911, &command511,
                                       &orvbutton611, &orvbutton711, &a1, &a2, &a3, &a5, &a6}) {
    command->set_locked(locked);
  }
}

void TypePage::load_summary() {
  View1000.clear();
  const auto add = [this](std::string_view description, std::string_view extension,
                          std::string_view icon) {
    const int row = View1000.add(description);
    View1000.set_sub_item(row, 1, extension);
    View1000.set_icon(row, icon);
    return row;
  };
  for (const FileTypeEntry& entry : read_type_table(session).rows) {
    if (entry.is_off() || entry.description.empty()) continue;
    const int row = add(entry.description, entry.extension, icon_of_pattern(entry.extension));
    View1000.set_checked(row, entry.is_on());
  }
  add("System Temporary Folders", "*.*", "oth");
}

void TypePage::type_clicked(int row) {
  typelistrow = row;
  command811.set_enabled(true);
  command911.set_enabled(true);
}

void TypePage::summary_clicked(int row) {
  typerow = row;
  View1000.refresh();
}

}  // namespace quillvane
