// What a cleaning run did to each file: found out by looking on, since the run itself keeps no
// record.
#pragma once

#include <atomic>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "cleaning/cleaning_run.h"
#include "platform/forwarding_file_system.h"
#include "platform/platform.h"

namespace quillvane {

// A file that is still there.
struct FileLeft {
  std::string path;
  bool queued = false;  // it goes at the next restart, by this run's request
  const char* why = "";
};

struct CleaningResult {
  bool begun = false;   // false: there was no cleaning, or no row to clean
  int removed = 0;      // files that are gone
  int not_reached = 0;  // rows behind the one at which the run was ended
  std::vector<FileLeft> left;

  [[nodiscard]] int queued() const;
  [[nodiscard]] int failed() const;
};

// Stands between the program and the machine's files and notes what becomes of removals. All other
// calls pass through.
class CleaningWatch final : public ForwardingFileSystem, public CleaningObserver {
 public:
  explicit CleaningWatch(const Platform& machine);

  // Whether a cleaning is in progress. May be asked from another thread.
  [[nodiscard]] bool cleaning() const { return cleaning_; }

  // Looks where the files are now. A request for the restart counts when it stands in the queue.
  [[nodiscard]] CleaningResult result() const;

  [[nodiscard]] RemoveResult remove_file(const std::string& path) override;

  void cleaning_begins(int rows) override;
  void row_done(const std::string& path) override;
  void cleaning_ends() override;

 private:
  [[nodiscard]] const char* reason(const std::string& path, RemoveResult result) const;

  Platform machine_;
  std::atomic<bool> cleaning_ = false;
  bool begun_ = false;
  int rows_ = 0;       // of the list when the run began
  int rows_done_ = 0;  // of these
  int removed_ = 0;
  std::map<std::string, RemoveResult> stayed_;  // files that could not be removed
  std::set<std::string> bin_files_;             // rows of the recycle bin, which goes as a whole
  std::set<std::string> requests_before_;
};

}  // namespace quillvane
