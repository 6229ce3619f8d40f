// The cleaning run: every row of the hit list goes, whatever its tick. A file that stays is queued
// for the next restart.
#pragma once

#include <string>

#include "cleaning/pending_queue.h"
#include "cleaning/restart_queue_result.h"
#include "cleaning/thumbnail_policy.h"

namespace quillvane {

class JunkPage;

// Looks on at a run that has rows to remove.
class CleaningObserver {
 public:
  virtual ~CleaningObserver() = default;

  // Nothing was removed or queued yet.
  virtual void cleaning_begins(int rows) = 0;
  // The row of this path is done with, whatever came of its file.
  virtual void row_done(const std::string& path) = 0;
  // The queue is written, and the thumbnail policy set back.
  virtual void cleaning_ends() = 0;
};

// What a cleaning keeps from one run to the next.
struct CleaningState {
  explicit CleaningState(const Platform& platform) : pending(platform), thumbnails(platform) {}

  PendingQueue pending;              // mirror of the queue of the next restart
  ThumbnailPolicy thumbnails;        // off while files are removed
  RestartQueueResult last_cleaning;  // of the last run behind orvbutton2

  CleaningObserver* observer = nullptr;  // told of each run; must outlive it
};

// The title of the question before a run, by which a view that answers in advance knows it.
inline constexpr const char* kRemoveFilesTitle = "Please Confirm";

// Asks whether the files shall go. Nobody is asked in a run of the suite that cleans.
[[nodiscard]] bool confirm_cleaning(const JunkPage& page);

// Removes every row of view1.
void run_cleaning(JunkPage& page, CleaningState& state);

// Adds the totals of the scan to the statistics, whatever was really removed.
void count_in_statistics(const JunkPage& page);

}  // namespace quillvane
