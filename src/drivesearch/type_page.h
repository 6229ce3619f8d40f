// The page of the file types: the table of types, its commands, and the summary by type.
#pragma once

#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/page.h"

namespace quillvane {

class TypePage : public virtual Page {
 public:
  TypePage(Window& window, Session& session);

  // the table of file types
  ListView View101{window, "View101", {"File Description", "File Type"}};
  // summary by file type
  ListView View1000{
      window, "View1000", {"File Description ", "File Type", "Files", "Space Used (Byte)"}};
  Button orvbutton8{window, "orvbutton8", kHidden};  // holds the way to the page of the file types
  Button command111{window, "command111"};           // a new file type
  Button command811{window, "command811"};           // edits the file type clicked last
  Button command911{window, "command911"};           // deletes the selected file types
  Button orvbutton611{window, "orvbutton611"};       // ticks all file types
  Button orvbutton711{window, "orvbutton711"};       // clears all ticks of file types

  MenuEntry a1{window, "a1", "Add New Item"};                 // runs command111
  MenuEntry a2{window, "a2", "Edit Selected Item"};           // runs command811
  MenuEntry a3{window, "a3", "Remove Selected Item"};         // runs command911
  MenuEntry a5{window, "a5", "Select All Items"};             // runs orvbutton611
  MenuEntry a6{window, "a6", "Select none"};                  // runs orvbutton711
  Menu a{window, "a", "foption", {&a1, &a2, &a3, &a5, &a6}};  // pop-up of the file types
};

}  // namespace quillvane
