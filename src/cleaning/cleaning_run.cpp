// The cleaning run: every row of the hit list goes, whatever its tick. A file that stays is queued
// for the next restart.
#include <string>

#include "categories/url_cache_rows.h"
#include "cleaning/deletion.h"
#include "cleaning/permission.h"
#include "cleaning/questions.h"
#include "cleaning/statistics.h"
#include "core/form7.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

constexpr const char* kQuestion = "Are You sure you want to delete the selected file(s)";
constexpr const char* kQueuedMessage =
    "Some files cannot be deleted now, They will be deleted next time when you restart your PC.";

// The bin's name at the very beginning of a path does not count.
bool lies_in_recycle_bin(std::string_view path) {
  return in_recycle_bin(path.substr(path.empty() ? 0 : 1));
}

}  // namespace

bool Form7::confirm_cleaning() {
  if (program.cleaning_ended() || !may_remove()) return false;
  if (cleanmode == 1) return true;
  return platform().dialogs.message_box(kQuestion, kRemoveFilesTitle,
                                        kBoxYesNo | kBoxIconInformation) == Answer::kYes;
}

void Form7::clean_button() {
  if (!confirm_cleaning()) return;
  orvbutton2.click();
  if (program.cleaning_ended()) return;
  enter_state(ButtonState::kScanning);
  autosearch();
  // The start and cancel buttons stay as the scan has left them.
  for (Button* button : {&cmd_clean, &cmd_all, &cmd_non, &cmd_custom, &cmd_ignore}) {
    button->set_enabled(true);
  }
  enable_report(true);
}

// True when the file stayed and was queued.
bool Form7::remove_row(const std::string& row_text) {
  std::string path = row_text;
  if (lies_in_recycle_bin(path)) {
    // One row of the bin is enough to empty all of it, on all drives; and each does so again.
    platform().shell.empty_recycle_bin();
    platform().shell.update_recycle_bin_icon();
    return false;
  }
  // A disk that cannot be written to now cannot be at the restart either.
  if (DeleteAFile(platform(), path) == RemoveResult::kWriteProtected) return false;
  if (!StillThere(platform(), path) || pending_filter.contains(lower_case(path))) return false;
  pending.add(path);
  return true;
}

// Each handled row leaves the list, whatever came of it. Answers how many were queued.
int Form7::remove_all_rows() {
  int queued = 0;
  const int total = view1.count();
  bar3.set_range(0, total + 2);
  bar3.show();
  for (int progress = 0; progress < total && view1.count() > 0; ++progress) {
    const std::string path = view1.text(1);
    if (remove_row(path)) ++queued;
    Text13.set_text("Removing : " + path);
    Text13.set_text(path);
    view1.remove(1);
    bar3.set_value(progress);
    program.do_events();
    if (program.cleaning_ended()) break;
  }
  return queued;
}

// The queue is written only after the user has closed the box, which promises it in any case.
void Form7::promise_restart() {
  if (!program.cleaning_ended()) {
    platform().dialogs.message_box(kQueuedMessage, std::string(kProgramName), kBoxIconInformation);
  }
  const RegistryWrite written = pending.savepending();
  last_cleaning.queue_written = written;
  last_cleaning.queue_problem = written.problem();
  if (!written) {
    program.tell_problem("queue of the next restart", "not written: " + written.problem());
  }
}

void Form7::run_cleaning() {
  last_cleaning = {};
  if (view1.count() < 1 || program.cleaning_ended() || !may_remove()) return;
  Gif89a2.show();
  pending.loadpending();
  Label11.set_caption("Removing selected files please wait..");
  thumbnails.disablethumbcache();
  Text3.show();
  pndtxt();
  last_cleaning.queued = remove_all_rows();
  if (last_cleaning.queued > 0 && forceclean == 0 && suitemode == 0) promise_restart();
  bar3.hide();
  thumbnails.enablethumbcache();
  Text3.hide();
  if (!program.cleaning_ended()) finish_cleaning();
  Gif89a2.hide();
  if (forceclean == 1) program.end();
}

// The totals of the scan, whatever was really removed.
void Form7::count_in_statistics() {
  const RegistryWrite counted =
      add_to_statistics(platform().registry, txtfilecont.text(), txtfilesize.text());
  if (!counted) program.tell_problem("statistics", "not counted: " + counted.problem());
}

void Form7::finish_cleaning() {
  deleteiecach(*this);
  count_in_statistics();
  txtfilecont.set_text("0");
  txtfilesize.set_text("0");
  build_tree();
}

}  // namespace quillvane
