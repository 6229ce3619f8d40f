// Form7, the main window: its pages put together, its life, and what wires page to page.
//
// Each subject of its behaviour stands in a page of its own; hidden text boxes serve as mail boxes
// between windows.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "core/junk_scan.h"
#include "drivesearch/drive_page.h"
#include "drivesearch/lists_page.h"
#include "drivesearch/report_page.h"
#include "drivesearch/search_run.h"
#include "drivesearch/type_page.h"
#include "forms/modal_windows.h"
#include "forms/shadow.h"
#include "forms/timer.h"
#include "lang/language_panel.h"

namespace quillvane {

class Form3;

class Form7 final : public Window,
                    public JunkScan,
                    public DrivePage,
                    public TypePage,
                    public ListsPage,
                    public ReportPage,
                    public SearchRun,
                    public LanguagePanel {
 public:
  // Both must outlive it.
  Form7(Session& session, ModalWindows& windows);

  // --- The window's life (command_line.cpp, start_up.cpp).
  void initialize(std::string_view command_line);  // reads the switches
  void load();                                     // fills the window; a run switch runs in it
  void activate();                                 // the window was shown
  void close() override;                           // saves the ticked drives, ends the program

  ModalWindows& windows;  // the small windows that are open
  // Answers the shortcut window, which is made and loaded at the first call; the program sets it.
  std::function<Form3&()> load_shortcuts;

  Field<int> fontcharset{*this, "fontcharset"};  // character set of the system's code page
  Field<std::string> systempaccess{*this, "systempaccess"};  // option of the suite, read and kept
  FileTime systempdate;  // option of the suite: today less a number of days
  Shadow shadow;

  TextBox Text9{*this, "Text9", kHidden};  // mailbox: its Change event starts the suite's run
  // mailbox of the dialogs: "i" reloads the ignore list, "c" rebuilds the tree
  TextBox Text14{*this, "Text14", kHidden};
  Label Label12_0{*this, "Label12(0)"};  // the current year
  Label Label12_1{*this, "Label12(1)"};  // the current year, on the second page
  // the suite's quick run: an early reading each half second
  Timer Timer2{*this, "Timer2", session.platform.loop, std::chrono::milliseconds(500)};

 protected:
  void resized() override;

 private:
  // command_line.cpp
  void run_shortcuts_unseen();
  void show_shortcuts_alone();

  // form7.cpp
  void connect_pages();
  void open_types_page();
  void open_lists_page();
  void name_session();
  void read_mail();
  void load_ignore_list();
  void tell_ignore_list_problem() const;
  void open_ignore_list();
  void open_custom_list();
  void open_shortcuts();
  void open_type(int row);  // of View101; 0: a new one

  // start_up.cpp
  void apply_color();
  void show_year();
  void read_system_temp_option();

  // suite_command.cpp
  void run_suite_command();
  void tell_suite();
  void finish_suite_run();
  void write_junk_list();  // junktmp.txt: one line a row
};

}  // namespace quillvane
