#include "dialogs/type_dialog.h"

#include <string>

#include "lang/change_language.h"
#include "platform/unicode_case.h"
#include "support/program_name.h"
#include "support/suite_color.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

Form4::Form4(Session& session, ListView& types, TextBox& mail_box, Control& results)
    : ModalWindow("Form4"), session_(session), types_(types), mail_box_(mail_box) {
  set_caption("Add New File Type");
  Text3.set_text("0");

  Command1.on_click = [this] { accept(); };
  Command2.on_click = [this, &results] {
    results.take_focus();
    unload();
  };
  chameleonButton3.on_click = [this] { unload(); };
}

void Form4::load() {
  changelangorv(session_, *this);
  set_back_color(suite_color(session_.platform));
}

void Form4::fill(int row) {
  Text1.set_text(types_.text(row));
  Text2.set_text(types_.sub_item(row, 1));
  Text3.set_text(std::to_string(row));
}

// A type that is there already closes the window as if all were well, and the table is saved as it
// was. Meant so. A changed row is not looked for.
void Form4::accept() {
  if (Trim(Text1.text()).empty() || Trim(Text2.text()).empty()) {
    session_.platform.dialogs.message_box("You didn't enter the description or extension", "Error",
                                          kBoxIconError);
    return;
  }
  const double row = Val(Text3.text());
  if (row == 0 && is_entered_already()) {
    session_.platform.dialogs.message_box("This File type is already entered",
                                          std::string(kProgramName), 0);
  } else if (row <= 0) {
    write_row(types_.add(""));  // without a tick: it counts once the user ticks it
  } else if (row >= 1 && row <= types_.count()) {
    write_row(static_cast<int>(row));
  }
  mail_box_.set_text("");
  mail_box_.set_text("1");
  unload();
}

// The typed pattern is the pattern here too, so that one with wildcards finds many rows.
bool Form4::is_entered_already() const {
  const std::string pattern = lower_case(Trim(Text2.text()));
  for (int row = 1; row <= types_.count(); ++row) {
    if (Like(lower_case(types_.sub_item(row, 1)), pattern)) return true;
  }
  return false;
}

void Form4::write_row(int row) {
  types_.set_text(row, Trim(Text1.text()));
  types_.set_sub_item(row, 1, Trim(Text2.text()));
}

}  // namespace quillvane
