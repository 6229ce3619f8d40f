// What a cleaning run did to each file: found out by looking on, since the run itself keeps no
// record.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "platform/forwarding_file_system.h"
#include "platform/platform.h"

namespace quillvane {

struct CleaningCounts {
  int removed = 0;  // gone
  int queued = 0;   // go at the next restart, by this run's request
  int failed = 0;   // neither
};

// Stands between the program and the machine's files and notes what becomes of removals. All other
// calls pass through.
class CleaningWatch final : public ForwardingFileSystem {
 public:
  explicit CleaningWatch(const Platform& machine);

  // Begins to count; `bin_files` are the rows of the recycle bin, which goes as a whole.
  void begin(std::vector<std::string> bin_files);
  // Looks where the files are now.
  [[nodiscard]] CleaningCounts end() const;

  [[nodiscard]] RemoveResult remove_file(const std::string& path) override;

 private:
  [[nodiscard]] std::set<std::string> queue() const;

  Platform machine_;
  bool counting_ = false;
  int removed_ = 0;
  std::set<std::string> stayed_;  // files that could not be removed
  std::vector<std::string> bin_files_;
  std::set<std::string> queue_before_;  // requests of the queue when counting began
};

}  // namespace quillvane
