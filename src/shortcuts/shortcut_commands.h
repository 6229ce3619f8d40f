// The commands of the shortcut window: the buttons, the tool bar, the pop-up menu, the title bar,
// the tray icon.
#pragma once

#include <functional>

#include "controls/tray_area.h"
#include "forms/buttons.h"
#include "forms/page.h"
#include "forms/toolbar.h"
#include "shortcuts/shortcut_scan.h"

namespace quillvane {

inline constexpr std::string_view kShortcutWindowTitle = "Find and Fix Invalid Shortcuts";

class ShortcutCommands : public virtual Page {
 public:
  // `scan` holds what they work on.
  ShortcutCommands(Window& window, Session& session, ShortcutScan& scan);

  // --- What the commands start; whoever puts the window together sets it.
  std::function<void()> fix_row;              // gives the row in hand a new target
  std::function<void()> write_report;         // the report
  std::function<void()> on_about;             // the about window
  std::function<void()> turn_over_languages;  // the language panel

  // shows where to look
  Button cmd_where{window, "cmd_where", {.caption = "Where to scan"}};
  Button cmd_start{window, "cmd_start", {.caption = "Start"}};  // starts a scan
  // asks, then removes the ticked links
  Button cmd_delete{window, "cmd_delete", {.caption = "Delete", .disabled = true}};
  Button cmd_cancel{
      window, "cmd_cancel", {.caption = "Cancel", .disabled = true}};  // stops the scan
  // ticks and selects every row
  Button cmd_all{window, "cmd_all", {.caption = "Select All", .disabled = true}};
  // unticks and deselects every row
  Button cmd_non{window, "cmd_non", {.caption = "Select None", .disabled = true}};
  // asks for a new target of the row clicked last
  Button cmd_fix{window, "cmd_fix", {.caption = "Fix shortcut", .disabled = true}};
  // writes a report
  Button cmd_report{window, "cmd_report", {.caption = "Create Report", .disabled = true}};
  // the same commands as pictures; buttons count from 1, separators included
  Toolbar Toolbar1{window, "Toolbar1"};
  Button chameleonButton9{window, "chameleonButton9"};       // closes the window
  Button chameleonButton12{window, "chameleonButton12"};     // minimises the window
  Button chameleonButton13{window, "chameleonButton13"};     // opens and closes the language panel
  Button chameleonButton18{window, "chameleonButton18"};     // opens the about window
  Picture Image44_0{window, "Image44(0)"};                   // opens the help
  Label Label2_0{window, "Label2(0)", {.caption = "Help"}};  // opens the help file itself
  // the icon of the minimised window
  TrayArea TrayArea1{window, "TrayArea1", session.platform.tray, kShortcutWindowTitle};

  MenuEntry fs{window, "fs", "Fix Shortcut"};               // does nothing
  MenuEntry sa{window, "sa", "Check All"};                  // ticks all rows
  MenuEntry sn{window, "sn", "Check None"};                 // clears all ticks
  MenuEntry ic{window, "ic", "Check Invert"};               // turns each tick over
  MenuEntry of{window, "of", "Open Folder"};                // opens the folder of the link
  MenuEntry p{window, "p", "Properties"};                   // shows those of the link
  Menu a{window, "a", "a", {&fs, &sa, &sn, &ic, &of, &p}};  // pop-up of the results

 private:
  void connect_buttons();
  void connect_menu();
  void toolbar_button(int number);
  void start_command();
  void cancel_command();
  void fix_command();
  void row_clicked(int row);
  void show_help();
  void open_help_file();
  void open_link_folder();
  void leave_tray();

  ShortcutScan& scan_;
};

}  // namespace quillvane
