// Form7, the main window: the junk scan from its start to its summary.
//
// The tree Tv1 and the list view1 are the only store of categories and hits; hidden text boxes
// serve as variables and as mail boxes between windows. Each subject of its behaviour stands in a
// file of its own in this folder.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "cleaning/pending_queue.h"
#include "cleaning/restart_queue_result.h"
#include "cleaning/thumbnail_policy.h"
#include "controls/tray_area.h"
#include "core/program.h"
#include "forms/buttons.h"
#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/progress_bar.h"
#include "forms/simple_controls.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/toolbar.h"
#include "forms/tree_view.h"
#include "forms/window.h"
#include "scan/scan_totals.h"
#include "scan/searchable_text.h"

namespace quillvane {

inline constexpr Color kGreen = 32768;    // a category that is being scanned
inline constexpr Color kDarkRed = 192;    // a category in which something was found
inline constexpr Color kFoundMark = 128;  // Shape1 when the scan found something

inline constexpr int kToolbarClean = 6;  // the button of Toolbar1 that does what cmd_clean does

// The window's shadow; a depth of 0 is none.
struct Shadow {
  Color color = 0;
  int depth = 0;
};

class Form7 final : public Window {
 public:
  explicit Form7(Program& program);

  // --- The window's life (command_line.cpp, start_up.cpp, drive_list.cpp).
  void initialize(std::string_view command_line);  // reads the switches
  void load();                                     // fills the window; a run switch runs in it
  void activate();                                 // the window was shown
  void close() override;                           // saves the ticked drives, ends the program
  // Whether the window appears once it is loaded; a run switch keeps it hidden.
  [[nodiscard]] bool shown_at_start() const { return shown_at_start_; }

  // --- The scan (scan_driver.cpp). Failures are passed over: what cannot be read is empty.
  void autosearch();          // the whole scan
  void startclean();          // rebuilds the tree and scans the Windows group
  void startcleanexplorer();  // scans the Browsers group (cleaning/browser_guard.cpp)
  void searchcustom();        // scans the user's own entries
  void pndtxt();              // reads the files queued for the restart into Text15

  // --- Cleaning (cleaning/cleaning_run.cpp, cleaning/backup.cpp).
  // Nothing is removed while the ignore list is there and cannot be read: no file is known to be
  // junk then. The controls that remove are locked, and the runs behind them do nothing.
  [[nodiscard]] bool may_remove() const { return ignore_problem.empty(); }
  // The list's file, why it was not read, and what follows. Requires: !may_remove().
  [[nodiscard]] std::string ignore_list_message() const;
  // Removes every row of view1, whatever its tick: the run behind orvbutton2.
  void run_cleaning();
  // Copies the ticked rows of view1 aside: the run behind Command14.
  void back_up();

  // --- The walker (walker.cpp).
  // Scans `path` and all folders below it; files that match and pass the tests become rows of
  // view1 for `category`, a node of Tv1.
  void srch(const std::string& path, const std::string& pattern, int category);
  // The same for empty files only, without the test for desktop.ini.
  void srch2(const std::string& path, const std::string& pattern, int category);

  // --- The tree (category_tree.cpp).
  void build_tree();
  // Adds " ( N files, SIZE )" to the node's text.
  void append_result(int node, double files, double bytes);

  // --- Views (result_views.cpp).
  void loadfirstscan();  // copies all rows of view1 into view5

  // --- Reports of view1 (drivesearch/reports.cpp).
  void write_text_report();  // asks for a file, writes it, opens it
  void write_html_report();  // into the file that the text report named

  // Bytes as the lists show them.
  [[nodiscard]] std::string size_text(double bytes) const;
  // What the node put into the totals at its last scan.
  [[nodiscard]] NodeResult node_totals(int node) const;

  Program& program;
  [[nodiscard]] const Platform& platform() const { return program.platform; }

  // --- State.
  std::string cmdline;               // command line, trimmed, in lower case
  int silentmode = 0;                // 0 with a user; 1 run switches; 2 switch "g"
  int cleanmode = 0;                 // second half of a run switch: 1 after "c", 2 after "c2", "c3"
  int suitemode = 0;                 // the suite's quick run: 1 after "w4", 2 after "w4-c4"
  int forceclean = 0;                // 1 after "c3"
  bool known_second_half = true;     // false after a second half that is none: it never cleans
  int cancelflag = 0;                // 1: the running scan shall stop
  SearchableText ignorelist;         // lower-case ignore entries, each followed by "|"
  std::string ignore_problem;        // why the ignore list was not read; empty when it was
  SearchableText pending_filter;     // PendingFilter: the text of Text15, with an index
  PendingQueue pending;              // mirror of the queue of the next restart
  ThumbnailPolicy thumbnails;        // off while files are removed
  RestartQueueResult last_cleaning;  // of the last run behind orvbutton2
  int selnode = 0;                   // Index of the node of Tv1 clicked last
  int listfocus = 0;                 // 3 once a row of view1 or view5 was clicked
  int wizardstep = 0;                // page of the drive search
  int custnode = 25;                 // Index of the custom node being scanned
  int anydrivechecked = 0;           // 1 when a row of View2 is ticked
  int fontcharset = 0;               // character set of the system's code page
  std::string foundsizetext;         // size of what the drive search found, as text
  std::string systempaccess;         // option of the suite, read and kept
  FileTime systempdate;              // option of the suite: today less a number of days
  Shadow shadow;
  ScanTotals totals;
  std::map<int, NodeResult> node_results;  // by Index; emptied with the tree
  std::vector<int> skipped_browsers;       // nodes the user kept out, since their browser runs

  // --- Hidden text boxes that serve as variables.
  TextBox Text1;        // what the HTML report names behind "Report For Drive"
  TextBox Text3;        // line beside the animation; visible during a cleaning run
  TextBox Text5;        // name of the report's file
  TextBox Text8;        // number of the row clicked last in a list
  TextBox Text9;        // mailbox: its Change event starts the suite's run
  TextBox Text13;       // the file being looked at; visible during a scan
  TextBox Text14;       // mailbox of the dialogs: "i" reloads the ignore list, "c" the tree
  TextBox Text15;       // all files queued for the restart, in lower case, each after a "|"
  TextBox txtfilecont;  // files of the whole scan
  TextBox txtfilesize;  // bytes of the whole scan

  // --- Results.
  TreeView Tv1;       // the category tree; a row's category is the Index of a node here
  ListView view1;     // the hit list: one row for each junk file found
  ListView view5;     // what the result page shows: the rows of the node clicked last
  Label Label11;      // the summary line
  Shape Shape1;       // mark beside the summary: dark red when something was found
  Shape Shape2;       // holds the colour that Shape1 goes back to
  Animation Gif89a2;  // plays while a scan runs
  ProgressBar bar3;   // how far a cleaning run has come
  ProgressBar Bar2;   // how far a backup has come
  Label Label12_0;    // the current year
  Label Label12_1;    // the current year, on the second page

  // --- Pages.
  Frame Frame2;   // drives
  Frame Frame4;   // file types
  Frame Frame6;   // lists
  Frame Frame8;   // progress of the drive search
  Frame Frame80;  // result page

  // --- Commands.
  Button cmd_start;          // starts a scan
  Button cmd_clean;          // asks, then removes every row of view1
  Button cmd_cancel;         // stops the scan
  Button cmd_all;            // ticks everything
  Button cmd_non;            // clears all ticks
  Button cmd_custom;         // opens the user's own entries
  Button cmd_ignore;         // opens the ignore list
  Button cmd_report;         // writes a report
  Button orvbutton2;         // holds the cleaning run
  Button orvbutton3;         // holds the text report
  Button Command9;           // holds the HTML report, which nothing else calls
  Button Command14;          // copies the ticked files aside
  Button chameleonButton2;   // opens the shortcut window
  Button chameleonButton9;   // closes the window
  Button chameleonButton12;  // minimises the window
  Button chameleonButton13;  // opens and closes the language panel
  Button chameleonButton18;  // opens the about window
  Button chameleonButton6;   // holds the way to the page of drives
  Button orvbutton8;         // holds the way to the page of file types
  Button chameleonButton1;   // holds the way to the page of lists
  Button command111;         // a new file type
  Button command811;         // edits the file type clicked last
  Button command911;         // deletes the selected file types
  Button orvbutton611;       // ticks all file types
  Button orvbutton711;       // clears all ticks of file types
  Picture Image44_0;         // opens the help
  Toolbar Toolbar1;          // the same commands as pictures
  TrayArea TrayArea1;        // the icon of the minimised window

  // --- Menus.
  MenuEntry scf;  // "Scan": scans the clicked node again
  MenuEntry stc;  // "Start Cleaning": cleans the clicked node without a question
  Menu sc;        // pop-up of the tree
  MenuEntry b1;   // "Remove Selected File(s)"
  MenuEntry b2;   // "Remove All Files Listed"
  MenuEntry b4;   // "Locate Selected File"
  MenuEntry b5;   // "File Properties"
  MenuEntry b7;   // "Select All"
  MenuEntry b8;   // "Select None"
  Menu b;         // pop-up of the result lists
  MenuEntry a1;   // "Add New Item"
  MenuEntry a2;   // "Edit Selected Item"
  MenuEntry a3;   // "Remove Selected Item"
  MenuEntry a5;   // "Select All Items"
  MenuEntry a6;   // "Select none"
  Menu a;         // pop-up of the file types

  // --- Languages.
  Label lbllanguage_0;    // first language of the panel
  Picture imglangselect;  // marks the chosen language
  Frame pictrlang;        // the language panel

  // --- Drives, and the lists of the drive search.
  ListBox Drive1;     // the machine's drives
  ListView View2;     // drives with their space; ticked ones are searched
  ListView View10;    // hits of a search for all files
  ListView View4;     // hits of one file type
  ListView View1000;  // summary by file type
  ListView View201;   // folders and files to leave out
  ListView View202;   // folders to take in
  ListView View101;   // the table of file types
  ListBox List1;      // sub-key names of the registry, for the browser categories

  Timer Timer2;  // the suite's quick run: an early reading each half second

 protected:
  void resized() override;

 private:
  enum class ButtonState { kFresh, kScanning, kCustomGroup, kDone, kCancelling };

  // form7.cpp
  void set_captions();
  void connect_controls();
  void connect_menus();
  void connect_lists();
  void name_fields();

  // command_line.cpp
  void start_quick_run(const std::string& second_half);
  void apply_run_switch(const std::string& first_half, const std::string& second_half);
  void hide_at_start() { shown_at_start_ = false; }

  // start_up.cpp
  void apply_color();
  void show_year();
  void read_system_temp_option();
  void read_ignore_list();
  void tell_ignore_list_problem() const;

  // suite_command.cpp
  void run_suite_command();
  void tell_suite();
  void finish_suite_run();
  void write_junk_list();  // junktmp.txt: one line a row

  // drive_list.cpp
  void fill_drive_list();
  void restore_ticked_drives();
  void save_ticked_drives();
  void drive_ticked();

  // scan_driver.cpp
  void show_result_page();
  void add_group_result(int node, double files, double bytes);
  void add_to_count_and_size(double files, double bytes);
  void show_summary(double files);
  void show_found_mark();
  void write_result_file();  // junst.txt: count, "|", bytes

  // cleaning/browser_guard.cpp
  void scan_browsers();
  [[nodiscard]] bool may_scan_browser(std::string_view process, std::string_view spoken_name);

  // category_tree.cpp
  void add_custom_nodes();
  void reset_node_text(int node);  // drops the result behind the caption
  void node_checked(int node);

  // cleaning/cleaning_run.cpp
  void clean_button();
  [[nodiscard]] bool remove_row(const std::string& path);
  [[nodiscard]] int remove_all_rows();
  void promise_restart();
  void count_in_statistics();
  void finish_cleaning();  // what follows when every row was handled

  // window_commands.cpp
  [[nodiscard]] int row_in_hand() const;
  void locate_row();
  void show_row_properties();
  void start_eraser();
  void show_help();
  void leave_tray();
  void open_ignore_list();
  void open_custom_list();
  void open_about();

  // button_states.cpp
  void enter_state(ButtonState state);
  void enable_report(bool enabled);
  void enable_toolbar(std::initializer_list<int> numbers, bool enabled);
  void start_button();
  void cancel_button();
  [[nodiscard]] bool confirm_cleaning();
  void toolbar_start();
  void toolbar_clean();
  void toolbar_cancel();
  void toolbar_page(const Button& page);
  void toolbar_button(int number);

  // rescan.cpp
  void rescan_node();
  void clean_node();
  void begin_rescan();
  void end_rescan();
  void drop_old_results(int node);
  void drop_rows(double above, double below);  // by category, both limits left out
  void scan_node_again(int node);
  void delete_rows(int node);
  void delete_row(int node, const std::string& path);

  // result_views.cpp
  void show_node(int node);
  void show_everything(bool ticked);
  void row_clicked(int row);
  void sort_hits(int column);
  void read_mail();

  bool shown_at_start_ = true;
  std::string drives_problem_;  // why the stored drives could not be read
};

}  // namespace quillvane
