// What the commands of the type page change. Each change is written at once.
#include "drivesearch/type_page.h"
#include "support/program_name.h"

namespace quillvane {

// A row that is gone is passed over; without any row the user hears so.
void TypePage::edit_type() {
  if (typelistrow > View101.count()) return;
  if (typelistrow < 1 || View101.text(typelistrow).empty()) {
    platform().dialogs.message_box("Please select file first", std::string(kProgramName),
                                   kBoxIconWarning);
    return;
  }
  if (on_edit_type) on_edit_type(typelistrow);
}

// The deleted rows stay in the file as blank records until the next save. Rows without a pattern
// come to light. Both meant so.
void TypePage::delete_types() {
  const Answer sure = platform().dialogs.message_box(
      "Are You Sure To Delete Selected Entries", "Delete Entries", kBoxYesNo | kBoxIconQuestion);
  if (sure == Answer::kNo) return;
  if (!was_read_) return;
  for (int row = 1; row <= View101.count(); ++row) {
    if (!View101.selected(row)) continue;
    View101.set_text(row, "");
    View101.set_sub_item(row, 1, "");
  }
  save_types();
  View101.clear();
  for (const FileTypeEntry& entry : read_type_table(session).rows) {
    if (!entry.description.empty()) add_row(entry);
  }
}

void TypePage::tick_all(bool ticked) {
  View101.check_all(ticked);
  if (ticked) View101.take_focus();
  save_types();
}

// Writes all rows as they are shown, and has the summary show them.
void TypePage::save_types() {
  std::vector<FileTypeEntry> entries;
  for (int row = 1; row <= View101.count(); ++row) {
    entries.push_back(
        {View101.text(row), View101.sub_item(row, 1), View101.checked(row) ? "1" : "0"});
  }
  // Without a word when it cannot be written. One that was not read is not replaced.
  if (was_read_) static_cast<void>(write_type_table(session, entries));
  Text11.set_text("");
  Text11.set_text("1");
}

}  // namespace quillvane
