// Form5, one of the user's own categories: a new one or one of the rows of Form2.
#pragma once

#include "core/program.h"
#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/modal_window.h"
#include "forms/text_box.h"
#include "support/list_files.h"

namespace quillvane {

class Form2;

class Form5 final : public ModalWindow {
 public:
  // `list` is the window it was opened from.
  Form5(Program& program, Form2& list);

  // Takes the suite's colour.
  void load();
  // Shows the entry that shall be changed.
  void fill(const CustomEntry& entry);

  Label Label222_1;         // the title
  Button chameleonButton3;  // the close cross
  Label Label1_4;           // says what is asked for
  Label Label1_0;           // "Custom Name"
  TextBox Text1;            // the category's caption
  Label Label1_1;           // "Location"
  TextBox Text2;            // folder to search
  Button Command3;          // chooses the folder
  Label Label1_2;           // "Include"
  TextBox Text3;            // patterns, joined by commas
  Label Label2_0;           // an example of them
  Label Label1_3;           // "Exclude"
  TextBox Text4;            // patterns to leave out, joined by commas
  Label Label2_1;           // an example of them
  CheckBox Check1;          // "Include Subfolders in search"
  Button Command2;          // saves and leaves
  Button Command1;          // leaves without saving
  TextBox Text5;            // the row of Form2 to change; 0 for a new entry

 private:
  void set_captions();
  void choose_folder();
  void save();
  void change_row(double row);
  [[nodiscard]] bool add_row();
  [[nodiscard]] bool folder_exists() const;
  [[nodiscard]] CustomEntry entry() const;

  Program& program_;
  Form2& list_;
};

// An entry as a row of Form2 holds it: the name is the text, the others are sub-items 1 to 4.
[[nodiscard]] CustomEntry custom_entry_at(const ListView& list, int row);
void set_custom_entry(ListView& list, int row, const CustomEntry& entry);

}  // namespace quillvane
