// The run of the drive search, its pages, and the search of the user's own entries.
//
// A run walks the ticked drives by the patterns of the file types that are on, the folders of the
// include list and the temporary folders by all files; what the lists leave out is passed over, and
// the rest becomes rows of view1, the list that a junk scan fills too.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "drivesearch/drive_page.h"
#include "drivesearch/leave_out_names.h"
#include "drivesearch/lists_page.h"
#include "drivesearch/report_page.h"
#include "drivesearch/suite_progress.h"
#include "drivesearch/type_page.h"
#include "forms/buttons.h"
#include "forms/field.h"
#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/page.h"
#include "forms/progress_bar.h"
#include "forms/text_box.h"
#include "scan/clsdirsearch.h"
#include "scan/folder_tests.h"
#include "scan/junk_page.h"
#include "scan/page_frames.h"

namespace quillvane {

class SearchRun : public virtual Page {
 public:
  // The pages of the same window that a run works with; they outlive it.
  struct Pages {
    JunkPage& junk;
    PageFrames& frames;
    DrivePage& drives;
    TypePage& types;
    ListsPage& lists;
    ReportPage& report;
  };
  SearchRun(Window& window, Session& session, const Pages& pages);

  // --- The user's own entries, as a part of the junk scan (custom_search.cpp).
  void searchcustom();

  // --- What the search tells (search_events.cpp).
  void search_found(const std::string& path, const std::string& name);
  void search_searching(const std::string& path);

  // Enables or disables the removal of what was found; whoever puts the window together sets it.
  std::function<void(bool enabled)> enable_removal;

  // Patterns joined by "|" that the console's user names; the runs take these instead of the file
  // types that are on. Empty: the file types.
  std::string types_instead;

  clsdirsearch search{session};

  // --- The way through the pages.
  // goes on to the next page, from the last to the run
  Button chameleonButton10{window, "chameleonButton10", {.caption = "Next"}};
  // goes back to the page before
  Button chameleonButton8{window, "chameleonButton8", {.caption = "Back", .disabled = true}};
  Button orvbutton5{window, "orvbutton5", kHidden};  // holds the way into the run
  // ends the search in hand, and leaves the page of the run
  Button orvbutton10{window, "orvbutton10", {.caption = "Exit"}};
  Field<int> wizardstep{window, "wizardstep"};  // page of the drive search
  // 1 when a run was asked for without a ticked drive
  Field<int> nodrivepicked{window, "nodrivepicked"};

  // --- What a run shows.
  Label Label5{window, "Label5"};                  // the folder in work
  Label Label7{window, "Label7"};                  // the files found until now
  Label Label10{window, "Label10"};                // their size
  ProgressBar Bar1{window, "Bar1"};                // how many of the ticked drives are done
  Field<double> foundcount{window, "foundcount"};  // files that the search has listed
  Field<double> foundbytes{window, "foundbytes"};  // their bytes

  // --- The results.
  // hits of a search for all files
  ListView View10{window, "View10", {"File Name", "Size", "Date"}};
  ListView View4{window, "View4", {"File Name", "Size", "Date"}};  // hits of one file type
  Button orvbutton6{window, "orvbutton6", kHidden};  // holds ticking every row of view1
  Button Command2{window, "Command2", kHidden};  // holds counting by type, which nothing else calls
  // Commands of the results that no longer do anything; locked while there are none.
  Button chameleonButton3{window, "chameleonButton3", kHidden};    // a command of the results
  Button chameleonButton4{window, "chameleonButton4", kHidden};    // another one
  Button chameleonButton11{window, "chameleonButton11", kHidden};  // and one more

  // --- Hidden controls: what a run is made of, and variables.
  Button Command11{window, "Command11", kHidden};  // holds the run
  Button Command3{window, "Command3", kHidden};    // holds the search of the include list
  Button Command10{window, "Command10", kHidden};  // holds that of the system's temporary folders
  TextBox Text2{window, "Text2", kHidden};         // patterns of the run, joined by bars
  TextBox Text4{window, "Text4", kHidden};         // 1: the run was cancelled
  TextBox Text10{window, "Text10", kHidden};       // type whose hits View4 shows
  ListBox List7{window, "List7", kHidden};         // sizes on their way into View4
  ListBox List8{window, "List8", kHidden};         // dates on their way into View4
  Field<int> zerosizeon{window, "zerosizeon"};     // 1: the run lists every file of a drive
  Field<int> searchpass{window, "searchpass"};     // 1 in the pass that lists every file
  Field<int> temppass{window, "temppass"};         // 1 once the temporary folders were searched

 private:
  // search_pages.cpp
  void connect_pages();
  void next_page();
  void previous_page();
  void open_run();
  void leave_run();
  void show_drives_page();
  void enable_results(bool enabled);
  void show_results();

  // search_run.cpp
  void search_ticked_drives();
  [[nodiscard]] bool has_drives();
  void read_types();
  void search_drives();
  void search_drive(int row);
  void end_run();
  void search_included_folders();
  void search_system_folders();
  void search_place(const std::string& path, const std::string& patterns);

  // search_events.cpp
  [[nodiscard]] bool keeps_out(const std::string& path, const std::string& name);
  void enter_folder(const std::string& path);
  void add_row();
  void begin_count();

  // custom_search.cpp
  void search_custom_entry(const std::string& line);

  // type_reports.cpp
  void connect_types();
  void count_types();
  void open_type_report();
  void fill_type_report(int row);
  void tick_type(int row);

  Pages pages_;
  int finished_rows_ = 0;  // ticked drives of the run that are done

  std::string folder_;        // that the tests were made for
  FolderTests pending_;       // looks for its files in the queue of the restart
  std::string lower_folder_;  // the same in small letters
  std::uint64_t ignore_version_ = 0;
  bool folder_ignored_ = false;
  std::optional<LeaveOutNames> leave_out_;  // List6, made ready
  std::uint64_t leave_out_version_ = 0;

  std::shared_ptr<const Files> rows_of_;  // whose rows are being added ...
  int rows_category_ = 0;                 // ... for this category ...
  std::uint32_t row_source_ = 0;          // ... from this source of view1 ...
  std::uint64_t row_generation_ = 0;      // ... at this generation of it
  SuiteProgress progress_{session};
};

}  // namespace quillvane
