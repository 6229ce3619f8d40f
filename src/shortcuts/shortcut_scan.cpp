#include "shortcuts/shortcut_scan.h"

#include <chrono>
#include <utility>

#include "shortcuts/shell_link.h"
#include "shortcuts/verdict.h"
#include "support/program_name.h"
#include "support/registry_text.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr const char* kLinkPattern = "*.lnk";
constexpr const char* kNoDriveText = "You didn't select drive!";
constexpr std::chrono::milliseconds kPauseForEachLink{10};

constexpr const char* kShellFolders[] = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders",
    "Software\\Microsoft\\Windows nt\\CurrentVersion\\Explorer\\Shell Folders",
};

// A folder of the current user's shell; empty where neither key names one.
std::string shell_folder(const Registry& registry, const std::string& name) {
  std::string folder;
  for (const char* key : kShellFolders) {
    folder = ReadRegistryString(registry, Hive::kCurrentUser, key, name).text;
    if (!Trim(folder).empty()) return folder;
  }
  return {};
}

}  // namespace

ShortcutScan::ShortcutScan(Window& owner, Session& shared)
    : Page(owner, shared),
      WherePage(owner, shared),
      ProgressPanel(owner, shared),
      ResultPage(owner, shared),
      OldButtons(owner, shared) {
  orvbutton1.on_click = [this] { run_scan(); };
  Command1.on_click = [this] { scan_start_menu(); };
  Command2.on_click = [this] { scan_ticked_drives(); };
  chameleonButton2.on_click = [this] { show_where(); };
  chameleonButton3.on_click = [this] { cancel(); };
  for (Button* all : {&orvbutton6, &chameleonButton5}) {
    all->on_click = [this] { select_all(true); };
  }
  for (Button* none : {&orvbutton9, &chameleonButton4}) {
    none->on_click = [this] { select_all(false); };
  }
}

void ShortcutScan::run_scan() {
  search_ = std::make_shared<clsdirsearch>(session);
  search_->found = [this](const std::string& folder, const std::string& name) {
    search_found(folder, name);
  };
  search_->searching = [this](const std::string& folder) { search_searching(folder); };
  badfound = 0;
  Label7.set_caption("0");
  view1.clear();
  show_progress();
  if (Option5.chosen() && ticked_drives() == 0) {
    // The panel of the progress stays until the user goes back. Meant so.
    platform().dialogs.message_box(kNoDriveText, std::string(kProgramName), kBoxIconInformation);
    return;
  }
  for (Button* button : {&orvbutton6, &orvbutton9, &orvbutton3, &orvbutton2}) {
    button->set_enabled(false);
  }
  for (ListBox* list : {&List1, &List2, &List3}) list->clear();
  view1.clear();
  if (Option4.chosen()) Command1.raise_click();
  if (Option5.chosen()) Command2.raise_click();
  Command7.raise_click();
  if (view1.count() > 0) {
    for (Button* button : {&orvbutton6, &orvbutton9, &orvbutton3, &orvbutton2, &chameleonButton1,
                           &chameleonButton4, &chameleonButton5}) {
      button->set_enabled(true);
    }
  }
  show_results();
}

void ShortcutScan::scan_start_menu() {
  view1.clear();
  for (const char* name : {"Start Menu", "Recent"}) {
    const std::string folder = shell_folder(platform().registry, name);
    // Never the root of the current drive in place of a folder that nobody has named.
    if (!folder.empty()) find_links(folder);
  }
}

void ShortcutScan::scan_ticked_drives() {
  view1.clear();
  for (int row = 1; row <= View2.count(); ++row) {
    if (View2.checked(row)) find_links(std::string(Trim(View2.text(row)).substr(0, 2)));
  }
}

// A cancel ends the search in progress alone: the next folder or drive is searched all the same.
// Meant so.
void ShortcutScan::find_links(const std::string& folder) {
  if (session.ended()) return;
  const std::shared_ptr<clsdirsearch> search = search_;  // a scan inside this one makes its own
  if (search == nullptr) return;
  search->searchinsubfolders = true;
  ++scans_;
  search->findfiles(folder, kLinkPattern);
  --scans_;
}

void ShortcutScan::search_found(const std::string& folder, const std::string& name) {
  Label3.show();
  session.PumpWait(kPauseForEachLink);
  const std::string path = folder + name;
  LinkContent link;
  // Judged by what was read, be it all or not.
  static_cast<void>(ReadShortcut(platform().links, path, link));
  const bool is_bad = is_broken(platform(), link, Check1.checked());
  if (is_bad) {
    add_row(folder, name, link.target);
    badfound += 1;
  }
  if (on_judged) on_judged({path, shown_name(path), link, is_bad});
  Label3.hide();
}

void ShortcutScan::search_searching(const std::string& folder) {
  Label5.set_caption(folder);
  const std::string found = std::to_string(badfound.value());
  Label7.set_caption(found);
  Label4.set_caption(found);
}

void ShortcutScan::cancel() {
  stop_search();
  if (cancel_target_search) cancel_target_search();
  show_results();
  if (view1.count() == 0) return;
  for (Button* button : {&chameleonButton1, &chameleonButton4, &chameleonButton5}) {
    button->set_enabled(true);
  }
}

void ShortcutScan::stop_search() {
  if (search_ != nullptr) search_->Cancel();
}

void ShortcutScan::show_where() {
  Frame2.show();
  Frame1.hide();
  Frame5.hide();
}

void ShortcutScan::show_progress() {
  Frame5.hide();
  Frame8.move_to(Frame2);
  Frame2.hide();
  Frame8.show();
  Frame1.hide();
}

void ShortcutScan::show_results() {
  Frame1.move_to(Frame2);
  Frame2.hide();
  Frame8.hide();
  Frame1.show();
  Frame5.show();
}

}  // namespace quillvane
