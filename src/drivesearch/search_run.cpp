#include "drivesearch/search_run.h"

#include <string>

#include "drivesearch/type_table.h"
#include "support/program_name.h"
#include "support/registry_text.h"
#include "support/stored_path.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kEveryFile = "*.*";

constexpr const char* kShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr const char* kShellFoldersOfNt =
    "Software\\Microsoft\\Windows nt\\CurrentVersion\\Explorer\\Shell Folders";
constexpr const char* kSystemTempKey = "software\\Quillvane\\Tidewrack Deluxe\\option\\systemp";
constexpr const char* kVersionKey = "software\\microsoft\\windows\\currentversion";
constexpr const char* kVersionKeyOfNt = "software\\microsoft\\windows nt\\currentversion";

constexpr int kStatusColumn = 3;  // of View2

// A setting of the system that stands in one of two places.
std::string setting(const Registry& registry, Hive hive, const char* key, const char* key_of_nt,
                    const char* name) {
  std::string text = ReadRegistryString(registry, hive, key, name).text;
  if (!Trim(text).empty()) return text;
  return ReadRegistryString(registry, hive, key_of_nt, name).text;
}

// The drive that a row of View2 stands for: "C:" of "Local Disk (C:)".
std::string drive_of(const std::string& row_text) {
  constexpr std::size_t kEnding = 3;
  if (row_text.size() < kEnding) return {};
  return row_text.substr(row_text.size() - kEnding, kEnding - 1);
}

}  // namespace

SearchRun::SearchRun(Window& owner, Session& shared, const Pages& pages)
    : Page(owner, shared),
      pages_(pages),
      pending_(pages.junk.pending_filter, pages.junk.ignorelist) {
  search.found = [this](const std::string& path, const std::string& name) {
    search_found(path, name);
  };
  search.searching = [this](const std::string& path) { search_searching(path); };
  Command11.on_click = [this] { search_ticked_drives(); };
  Command3.on_click = [this] { search_included_folders(); };
  Command10.on_click = [this] { search_system_folders(); };
  orvbutton6.on_click = [this] { pages_.junk.view1.check_all(true); };
  connect_pages();
  connect_types();
}

void SearchRun::search_ticked_drives() {
  pages_.lists.Command5.raise_click();
  pages_.types.orvbutton8.set_enabled(false);
  pages_.lists.chameleonButton1.set_enabled(false);
  View10.clear();
  begin_count();
  pages_.junk.totals.listedfiles = 0;
  pages_.junk.totals.listedsize = 0;
  searchpass = 0;
  zerosizeon = 0;
  temppass = 0;
  View4.hide();
  pages_.drives.View2.show();
  if (!has_drives()) return;

  enable_removal(false);
  for (Button* button : {&pages_.report.orvbutton3, &chameleonButton3, &chameleonButton4}) {
    button->set_enabled(false);
  }
  pages_.drives.Text6.set_text("1");
  Text4.set_text("0");
  orvbutton10.set_caption("Cancel");
  read_types();
  pages_.junk.view1.clear();
  Command3.raise_click();
  search_drives();
}

// A run that nobody watches takes the first drive when none is ticked.
bool SearchRun::has_drives() {
  DrivePage& drives = pages_.drives;
  if (drives.anydrivechecked == 1) return true;
  if (session.silentmode == 1 && drives.View2.count() > 0) drives.View2.set_checked(1, true);
  if (session.silentmode != 0) return true;
  platform().dialogs.message_box("Please Select at least one drive to check it",
                                 std::string(kProgramName), kBoxIconInformation);
  nodrivepicked = 1;
  return false;
}

void SearchRun::read_types() {
  if (!types_instead.empty()) {
    Text2.set_text(types_instead);
    return;
  }
  const TypeTable table = read_type_table(session);
  if (!table.problem.empty()) session.tell_problem("file types", "not read: " + table.problem);
  const TypesToFind types = types_to_find(table.rows);
  if (types.all_files_off) pages_.junk.Text3.set_text("0");
  if (types.all_files_on) zerosizeon = 1;
  Text2.set_text(types.patterns);
}

void SearchRun::search_drives() {
  ListView& drives = pages_.drives.View2;
  int ticked = 0;
  for (int row = 1; row <= drives.count(); ++row) ticked += drives.checked(row) ? 1 : 0;
  Bar1.set_range(0, ticked);
  finished_rows_ = 0;
  int row = 1;
  for (; row <= drives.count() && !session.ended(); ++row) {
    session.do_events();
    if (drives.checked(row)) search_drive(row);
  }
  Command10.raise_click();
  end_run();
}

// A cancel ends the search in hand alone: the passes and drives behind it are searched all the
// same, without the mark. The bar lags by one drive. Both meant so.
void SearchRun::search_drive(int row) {
  ListView& drives = pages_.drives.View2;
  TextBox& row_in_work = pages_.drives.txtviewf;
  row_in_work.set_text(std::to_string(row));
  const std::string drive = drive_of(drives.text(row));
  searchpass = 0;
  search.searchinsubfolders = true;
  search_place(drive, Text2.text());
  if (zerosizeon == 1) {
    searchpass = 1;
    search_place(drive, kEveryFile);
  }
  if (!drives.checked(row) || Val(Text4.text()) == 1) return;
  drives.set_sub_item(row, kStatusColumn, "Finish");
  drives.set_icon(row, "f");
  row_in_work.set_text(number_text(Val(row_in_work.text()) + 1));
  Bar1.set_value(finished_rows_);
  ++finished_rows_;
}

void SearchRun::end_run() {
  DrivePage& drives = pages_.drives;
  JunkPage& junk = pages_.junk;
  drives.Text6.set_text("0");
  Label5.set_caption("Total files  ");
  junk.txtfilecont.set_text("");
  junk.txtfilesize.set_text("");
  // The row of a cancelled drive keeps its status; only the number goes on.
  if (Val(Text4.text()) == 1) {
    drives.txtviewf.set_text(number_text(Val(drives.txtviewf.text()) + 1));
  }
  drives.View2.show();
  pages_.types.View1000.show();
  orvbutton10.set_caption("Exit");
  drives.Text6.set_text("0");
  if (junk.view1.count() == 0) return;
  enable_removal(true);
  pages_.types.orvbutton8.set_enabled(true);
  pages_.lists.chameleonButton1.set_enabled(true);
  orvbutton6.raise_click();
  show_results();
}

// Without a folder to take in, the user's temporary folder is not searched either.
void SearchRun::search_included_folders() {
  pages_.lists.Command4.raise_click();
  const ListBox& folders = pages_.lists.List5;
  if (folders.count() == 0) return;
  for (int i = 0; i < folders.count() && !session.ended(); ++i) {
    session.do_events();
    search.searchinsubfolders = true;
    const std::string folder(Trim(folders.item(i)));
    if (!folder.empty()) search_place(folder + "\\", kEveryFile);
  }
  search_place(GetTempDir(platform().environment), kEveryFile);
}

void SearchRun::search_system_folders() {
  const Registry& registry = platform().registry;
  const std::string local =
      setting(registry, Hive::kCurrentUser, kShellFolders, kShellFoldersOfNt, "Local Settings");
  const RegistryText wanted =
      ReadRegistryString32(registry, Hive::kLocalMachine, kSystemTempKey, "systemp");
  if (Val(wanted.text) == 0) return;
  const std::string windows =
      setting(registry, Hive::kLocalMachine, kVersionKey, kVersionKeyOfNt, "SystemRoot");
  if (Trim(windows).empty()) return;
  searchpass = 1;
  temppass = 1;
  search.searchinsubfolders = true;
  if (!Trim(local).empty()) search_place(local + "\\temp", kEveryFile);
  search.searchinsubfolders = true;
  search_place(windows + "\\temp", kEveryFile);
}

}  // namespace quillvane
