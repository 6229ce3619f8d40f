#include "shortcuts/older_removal.h"

#include <functional>

#include "platform/unicode_case.h"
#include "shortcuts/link_removal.h"
#include "support/program_name.h"
#include "support/registry_text.h"
#include "support/shell_helpers.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr const char* kProtectionKey = "software\\Quillvane\\Tidewrack Deluxe\\option\\protection";
constexpr const char* kDestinationValue = "removfolder";
constexpr int kThisPc = 0x11;  // has no path, so the dialog begins at the top

void say(const Platform& platform, const char* text) {
  platform.dialogs.message_box(text, std::string(kProgramName), kBoxIconInformation);
}

// From the last row to the first, the ticked ones: `remove` takes the link's path, and the row goes
// whatever came of it.
void remove_rows(ResultPage& results, const std::function<void(const std::string& link)>& remove) {
  for (int row = results.view1.count(); row >= 1; --row) {
    results.session.do_events();
    if (results.session.cleaning_ended()) return;
    if (row > results.view1.count() || !results.view1.checked(row)) continue;
    const std::string link = results.link_path(row);
    static_cast<void>(results.platform().files.set_attributes(link, kAttributeArchive));
    remove(link);
    results.view1.remove(row);
  }
}

}  // namespace

OlderRemoval::OlderRemoval(Window& owner, Session& shared) : Page(owner, shared) {
  for (OptionButton* option : {&Option1, &Option2, &Option3}) {
    option->set_group({&Option1, &Option2, &Option3});
  }
  orvbutton5.on_click = [this] { choose_destination(); };
}

// The statistics grow by all rows before the user is asked. Meant so.
void OlderRemoval::remove_links(ResultPage& results) {
  window.set_topmost(false);
  add_to_removed_links(session, results.view1.count());
  const bool has_user = results.runmode != kUnattended;
  if (has_user && results.view1.count() == 0) {
    say(platform(), "There IS nothing To Remove");
    window.set_topmost(true);
    return;
  }
  if (has_user && !is_wanted()) return;
  if (!has_user) static_cast<void>(remove_every_link(results));
  if (Option2.chosen()) remove_ticked(results);
  if (Option1.chosen()) recycle_ticked(results);
  if (Option3.chosen()) {
    if (Trim(Text1.text()).empty())
      return say(platform(), "Please select the destination folder first");
    move_ticked(results);
  }
  window.set_topmost(true);
}

bool OlderRemoval::is_wanted() {
  return platform().dialogs.message_box("Are you sure you want to remove these shortcut links",
                                        std::string(kProgramName),
                                        kBoxYesNo | kBoxIconInformation) == Answer::kYes;
}

void OlderRemoval::remove_ticked(ResultPage& results) {
  remove_rows(results, [this](const std::string& link) {
    static_cast<void>(platform().files.remove_file(link));  // one in use stays, its row goes
  });
}

void OlderRemoval::recycle_ticked(ResultPage& results) {
  remove_rows(results, [this](const std::string& link) {
    static_cast<void>(platform().shell.recycle(link));
  });
  say(platform(), "Finished moving selected files to Recycle Bin");
}

// Walks upward while it removes: the row behind each that goes is passed over, and the last numbers
// name no row any more. Meant so.
void OlderRemoval::move_ticked(ResultPage& results) {
  const int rows = results.view1.count();
  for (int row = 1; row <= rows; ++row) {
    session.do_events();
    if (session.cleaning_ended()) return;
    if (row > results.view1.count() || !results.view1.checked(row)) continue;
    move_link(std::string(Trim(results.link_path(row))));
    results.view1.remove(row);
  }
}

// A link that could not be copied stays where it is, and so does one that lies there already.
void OlderRemoval::move_link(const std::string& link) {
  const std::string copy =
      std::string(Trim(Text1.text())) + "\\" + link.substr(link.rfind('\\') + 1);
  static_cast<void>(platform().files.set_attributes(link, kAttributeArchive));
  if (same_name(copy, link) || !platform().files.copy_file(link, copy)) return;
  static_cast<void>(platform().files.remove_file(link));
}

// A cancelled dialog leaves no folder. Meant so.
void OlderRemoval::choose_destination() {
  window.set_topmost(false);
  std::string folder =
      BrowseForFolder(platform().dialogs, platform().shell, "Choose a folder:", 0, kThisPc);
  if (folder.ends_with('\\')) folder = folder.substr(0, 2);
  Text1.set_text(folder);
  const RegistryWrite written =
      WriteRegistryString(platform().registry, Hive::kLocalMachine, kProtectionKey,
                          kDestinationValue, Trim(Text1.text()));
  if (!written) session.tell_problem("folder for links", "not saved: " + written.problem());
  window.set_topmost(true);
}

void OlderRemoval::read_destination() {
  Text1.set_text(ReadRegistryString32(platform().registry, Hive::kLocalMachine, kProtectionKey,
                                      kDestinationValue)
                     .text);
}

}  // namespace quillvane
