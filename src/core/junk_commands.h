// The commands of the junk scan: the buttons, the tool bar, the pop-up menus, the tray icon.
//
// The command buttons and the tool bar keep their states apart: a door changes the buttons of its
// own kind.
#pragma once

#include <functional>
#include <initializer_list>

#include "controls/tray_area.h"
#include "forms/buttons.h"
#include "forms/page.h"
#include "forms/toolbar.h"
#include "scan/junk_page.h"
#include "support/program_name.h"

namespace quillvane {

inline constexpr int kToolbarClean = 6;  // the button of Toolbar1 that does what cmd_clean does

class JunkCommands : public virtual Page {
 public:
  // `junk` is the page they work on.
  JunkCommands(Window& window, Session& session, JunkPage& junk);

  enum class ButtonState { kFresh, kScanning, kCustomGroup, kDone, kCancelling };
  void enter_state(ButtonState state);
  void enable_report(bool enabled);
  // Locks what removes while nothing may be removed (JunkPage::may_remove), and only then.
  void lock_removers();
  // A rescan of one node leaves out the buttons of the lists.
  void enter_rescan(bool running);

  // --- What the commands start; whoever puts the window together sets it.
  std::function<void()> scan_all;             // the whole scan
  std::function<void()> clean_all;            // the cleaning run, without a question
  std::function<void()> rescan_node;          // scans the clicked node again
  std::function<void()> clean_node;           // cleans the clicked node
  std::function<void()> write_report;         // the text report
  std::function<void()> on_custom_list;       // the user's own entries
  std::function<void()> on_ignore_list;       // the ignore list
  std::function<void()> on_about;             // the about window
  std::function<void()> on_shortcuts;         // the shortcut window
  std::function<void()> turn_over_languages;  // the language panel
  std::function<void()> to_drives;            // the page of the drives
  std::function<void()> to_types;             // the page of the file types
  std::function<void()> to_lists;             // the page of the lists

  Button cmd_start{window, "cmd_start", {.caption = "Start"}};  // starts a scan
  // asks, then removes every row of view1
  Button cmd_clean{window, "cmd_clean", {.caption = "Start Cleaning"}};
  Button cmd_cancel{window, "cmd_cancel", {.caption = "Cancel"}};  // stops the scan
  Button cmd_all{window, "cmd_all", {.caption = "Select All"}};    // ticks everything
  Button cmd_non{window, "cmd_non", {.caption = "Select None"}};   // clears all ticks
  // opens the user's own entries
  Button cmd_custom{window, "cmd_custom", {.caption = "Custom Search"}};
  Button cmd_ignore{window, "cmd_ignore", {.caption = "Ignore list"}};    // opens the ignore list
  Button cmd_report{window, "cmd_report", {.caption = "Create Report"}};  // writes a report
  Button orvbutton2{window, "orvbutton2", kHidden};                       // holds the cleaning run
  Button Command14{window, "Command14"};  // copies the ticked files aside
  // opens the shortcut window
  Button chameleonButton2{window, "chameleonButton2", {.tool_tip = "Run shortcut tool"}};
  Button chameleonButton9{window, "chameleonButton9"};    // closes the window
  Button chameleonButton12{window, "chameleonButton12"};  // minimises the window
  Button chameleonButton13{window, "chameleonButton13"};  // opens and closes the language panel
  Button chameleonButton18{window, "chameleonButton18"};  // opens the about window
  Picture Image44_0{window, "Image44(0)"};                // opens the help
  // the same commands as pictures; buttons count from 1, separators included
  Toolbar Toolbar1{window, "Toolbar1"};
  // the icon of the minimised window
  TrayArea TrayArea1{window, "TrayArea1", session.platform.tray, kProgramName};

  MenuEntry scf{window, "scf", "Scan"};                           // scans the clicked node again
  MenuEntry stc{window, "stc", "Start Cleaning"};                 // cleans the clicked node
  Menu sc{window, "sc", "scan", {&scf, &stc}};                    // pop-up of the tree
  MenuEntry b1{window, "b1", "Remove Selected File(s)"};          // runs orvbutton2
  MenuEntry b2{window, "b2", "Remove All Files Listed"};          // ticks all, runs orvbutton2
  MenuEntry b4{window, "b4", "Locate Selected File"};             // opens its folder
  MenuEntry b5{window, "b5", "File Properties"};                  // shows them
  MenuEntry b7{window, "b7", "Select All"};                       // ticks all rows
  MenuEntry b8{window, "b8", "Select None"};                      // clears all ticks of rows
  Menu b{window, "b", "remove", {&b1, &b2, &b4, &b5, &b7, &b8}};  // pop-up of the result lists

 private:
  // junk_commands.cpp
  void connect_buttons();
  void connect_menus();

  // button_states.cpp
  void enable_toolbar(std::initializer_list<int> numbers, bool enabled);
  void start_button();
  void cancel_button();
  void clean_button();
  void toolbar_start();
  void toolbar_clean();
  void toolbar_cancel();
  void toolbar_page(const std::function<void()>& open_page);
  void toolbar_button(int number);

  // window_commands.cpp
  [[nodiscard]] int row_in_hand() const;
  void locate_row();
  void show_row_properties();
  void start_eraser();
  void show_help();
  void leave_tray();

  JunkPage& junk_;
};

}  // namespace quillvane
