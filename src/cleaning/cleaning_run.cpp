#include "cleaning/cleaning_run.h"

#include <string>

#include "categories/url_cache_rows.h"
#include "cleaning/deletion.h"
#include "cleaning/permission.h"
#include "cleaning/statistics.h"
#include "platform/unicode_case.h"
#include "scan/junk_page.h"
#include "support/program_name.h"

namespace quillvane {

namespace {

constexpr const char* kQuestion = "Are You sure you want to delete the selected file(s)";
constexpr const char* kQueuedMessage =
    "Some files cannot be deleted now, They will be deleted next time when you restart your PC.";

// The bin's name at the very beginning of a path does not count.
bool lies_in_recycle_bin(std::string_view path) {
  return in_recycle_bin(path.substr(path.empty() ? 0 : 1));
}

// True when the file stayed and was queued.
bool remove_row(JunkPage& page, PendingQueue& pending, const std::string& row_text) {
  std::string path = row_text;
  if (lies_in_recycle_bin(path)) {
    // One row of the bin is enough to empty all of it, on all drives; and each does so again.
    page.platform().shell.empty_recycle_bin();
    page.platform().shell.update_recycle_bin_icon();
    return false;
  }
  // A disk that cannot be written to now cannot be at the restart either.
  if (DeleteAFile(page.platform(), path) == RemoveResult::kWriteProtected) return false;
  if (!StillThere(page.platform(), path)) return false;
  if (page.pending_filter.contains(lower_case(path))) return false;
  pending.add(path);
  return true;
}

// Each handled row leaves the list, whatever came of it. Answers how many were queued.
int remove_all_rows(JunkPage& page, CleaningState& state) {
  int queued = 0;
  const int total = page.view1.count();
  page.bar3.set_range(0, total + 2);
  page.bar3.show();
  for (int progress = 0; progress < total && page.view1.count() > 0; ++progress) {
    const std::string path = page.view1.text(1);
    if (remove_row(page, state.pending, path)) ++queued;
    page.Text13.set_text("Removing : " + path);
    page.Text13.set_text(path);
    page.view1.remove(1);
    if (state.observer != nullptr) state.observer->row_done(path);
    page.bar3.set_value(progress);
    page.session.do_events();
    if (page.session.cleaning_ended()) break;
  }
  return queued;
}

// The queue is written only after the user has closed the box, which promises it in any case.
void promise_restart(JunkPage& page, CleaningState& state) {
  if (!page.session.cleaning_ended()) {
    page.platform().dialogs.message_box(kQueuedMessage, std::string(kProgramName),
                                        kBoxIconInformation);
  }
  const RegistryWrite written = state.pending.savepending();
  state.last_cleaning.queue_written = written;
  state.last_cleaning.queue_problem = written.problem();
  if (!written) {
    page.session.tell_problem("queue of the next restart", "not written: " + written.problem());
  }
}

// What follows when every row was handled.
void finish_cleaning(JunkPage& page) {
  deleteiecach(page);
  count_in_statistics(page);
  page.txtfilecont.set_text("0");
  page.txtfilesize.set_text("0");
  page.build_tree();
}

}  // namespace

bool confirm_cleaning(const JunkPage& page) {
  if (page.session.cleaning_ended() || !page.may_remove()) return false;
  if (page.session.cleanmode == 1) return true;
  return page.platform().dialogs.message_box(kQuestion, kRemoveFilesTitle,
                                             kBoxYesNo | kBoxIconInformation) == Answer::kYes;
}

void run_cleaning(JunkPage& page, CleaningState& state) {
  const Session& session = page.session;
  state.last_cleaning = {};
  if (page.view1.count() < 1 || session.cleaning_ended() || !page.may_remove()) return;
  page.Gif89a2.show();
  state.pending.loadpending();
  page.Label11.set_caption("Removing selected files please wait..");
  state.thumbnails.disablethumbcache();
  page.Text3.show();
  if (state.observer != nullptr) state.observer->cleaning_begins(page.view1.count());
  pndtxt(page);
  const int queued = remove_all_rows(page, state);
  state.last_cleaning.queued = queued;
  if (queued > 0 && session.forceclean == 0 && session.suitemode == 0) promise_restart(page, state);
  page.bar3.hide();
  state.thumbnails.enablethumbcache();
  page.Text3.hide();
  if (state.observer != nullptr) state.observer->cleaning_ends();
  if (!session.cleaning_ended()) finish_cleaning(page);
  page.Gif89a2.hide();
  if (session.forceclean == 1) page.session.end();
}

void count_in_statistics(const JunkPage& page) {
  const RegistryWrite counted =
      add_to_statistics(page.platform().registry, page.txtfilecont.text(), page.txtfilesize.text());
  if (!counted) page.session.tell_problem("statistics", "not counted: " + counted.problem());
}

}  // namespace quillvane
