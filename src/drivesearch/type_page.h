// The page of the file types: the table of types, its commands, and the summary by type.
#pragma once

#include <functional>

#include "drivesearch/type_table.h"
#include "forms/buttons.h"
#include "forms/field.h"
#include "forms/list_view.h"
#include "forms/page.h"
#include "forms/text_box.h"

namespace quillvane {

class TypePage : public virtual Page {
 public:
  TypePage(Window& window, Session& session);

  // Shows the table. Rows without a pattern are left out, and the next save drops them.
  void load_types();
  // Shows the rows that are on, and one more for the temporary folders of the system.
  void load_summary();

  // Opens the window of one row: its number, 0 for a new one. Whoever puts the window together sets
  // it.
  std::function<void(int row)> on_edit_type;

  // the table of file types
  ListView View101{window, "View101", {"File Description", "File Type"}};
  // summary by file type
  ListView View1000{window,
                    "View1000",
                    {"File Description ", "File Type", "Files", "Space Used (Byte)"},
                    {.tool_tip = "Double click on file type to see full report"}};
  Button orvbutton8{window, "orvbutton8", kHidden};  // holds the way to the page of the file types
  Button command111{window, "command111"};           // a new file type
  Button command811{window, "command811"};           // edits the file type clicked last
  Button command911{window, "command911"};           // deletes the selected file types
  Button orvbutton611{window, "orvbutton611"};       // ticks all file types
  Button orvbutton711{window, "orvbutton711"};       // clears all ticks of file types
  Button command511{window, "command511", kHidden};  // holds saving the table
  Button Command1{window, "Command1", kHidden};      // holds showing the summary anew
  Button Command8{window, "Command8", kHidden};      // marks a place beside the summary
  TextBox Text11{window, "Text11", kHidden};         // mailbox: 1 shows the summary anew
  TextBox Text12{window, "Text12", kHidden};         // mailbox of Form4: 1 saves the table

  MenuEntry a1{window, "a1", "Add New Item"};                 // runs command111
  MenuEntry a2{window, "a2", "Edit Selected Item"};           // runs command811
  MenuEntry a3{window, "a3", "Remove Selected Item"};         // runs command911
  MenuEntry a5{window, "a5", "Select All Items"};             // runs orvbutton611
  MenuEntry a6{window, "a6", "Select none"};                  // runs orvbutton711
  Menu a{window, "a", "foption", {&a1, &a2, &a3, &a5, &a6}};  // pop-up of the file types

  Field<int> typelistrow{window, "typelistrow"};  // row of View101 clicked last
  Field<int> typerow{window, "typerow"};          // row of View1000 clicked last

 private:
  // type_page.cpp
  void connect_commands();
  void type_clicked(int row);
  void summary_clicked(int row);
  void lock_commands(bool locked);

  // type_commands.cpp
  void edit_type();
  void delete_types();
  void tick_all(bool ticked);
  void save_types();
  void add_row(const FileTypeEntry& entry);

  bool was_read_ = true;  // when it was last shown; a missing table counts as read
};

}  // namespace quillvane
