// Form5, one of the user's own categories: a new one or one of the rows of Form2.
#pragma once

#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/modal_window.h"
#include "forms/text_box.h"
#include "support/list_files.h"
#include "support/session.h"

namespace quillvane {

class Form2;

class Form5 final : public ModalWindow {
 public:
  // `list` is the window it was opened from. A new entry writes "c" into the mail box.
  Form5(Session& session, Form2& list, TextBox& mail_box);

  // Takes the suite's colour.
  void load();
  // Shows the entry that shall be changed.
  void fill(const CustomEntry& entry);

  Label Label222_1{*this, "Label222(1)", {.caption = "Custom file search"}};  // the title
  Button chameleonButton3{*this, "chameleonButton3"};                         // the close cross
  // says what is asked for
  Label Label1_4{*this, "Label1(4)", {.caption = "Add new location to search with in"}};
  Label Label1_0{*this, "Label1(0)", {.caption = "Custom Name"}};  // "Custom Name"
  TextBox Text1{*this, "Text1"};                                   // the category's caption
  Label Label1_1{*this, "Label1(1)", {.caption = "Location"}};     // "Location"
  TextBox Text2{*this, "Text2"};                                   // folder to search
  Button Command3{*this, "Command3", {.caption = "Browse"}};       // chooses the folder
  Label Label1_2{*this, "Label1(2)", {.caption = "Include"}};      // "Include"
  TextBox Text3{*this, "Text3"};                                   // patterns, joined by commas
  Label Label2_0{*this, "Label2(0)", {.caption = "Example: *.tmp,*.log"}};  // an example of them
  Label Label1_3{*this, "Label1(3)", {.caption = "Exclude"}};               // "Exclude"
  TextBox Text4{*this, "Text4"};  // patterns to leave out, joined by commas
  Label Label2_1{*this, "Label2(1)", {.caption = "Example: *.exe,*.doc"}};  // an example of them
  // "Include Subfolders in search"
  CheckBox Check1{*this, "Check1", {.caption = "Include Subfolders in search"}};
  Button Command2{*this, "Command2", {.caption = "Save", .disabled = true}};  // saves and leaves
  Button Command1{*this, "Command1", {.caption = "Close"}};  // leaves without saving
  TextBox Text5{*this, "Text5", kHidden};  // the row of Form2 to change; 0 for a new entry

 private:
  void choose_folder();
  void save();
  void change_row(double row);
  [[nodiscard]] bool add_row();
  [[nodiscard]] bool folder_exists() const;
  [[nodiscard]] CustomEntry entry() const;

  Session& session_;
  Form2& list_;
  TextBox& mail_box_;
};

// An entry as a row of Form2 holds it: the name is the text, the others are sub-items 1 to 4.
[[nodiscard]] CustomEntry custom_entry_at(const ListView& list, int row);
void set_custom_entry(ListView& list, int row, const CustomEntry& entry);

}  // namespace quillvane
