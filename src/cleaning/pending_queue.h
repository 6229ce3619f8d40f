// The queue of files that Windows removes at the next restart: one registry value, a list of pairs
// of source and target, where an empty target means removal.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"

namespace quillvane {

class JunkPage;

// What the value holds, each text as it is; empty ones, also at the end, are kept. Absent also
// where a value of another type stands. Before it is read the account of the environment is given
// access to the key.
[[nodiscard]] RegistryRead<std::vector<std::string>> read_pending_value(const Platform& platform);

// The files whose removal the value asks for: of each pair without a target the source. Empty where
// the value cannot be read. Changes nothing, not even who has access.
[[nodiscard]] std::set<std::string> removal_requests(const Registry& registry);

// Reads the files queued for the restart into Text15, so that no scan lists them again. A queue
// that cannot be read is told.
void pndtxt(JunkPage& page);

// The mirror of the value during a cleaning run.
class PendingQueue {
 public:
  explicit PendingQueue(const Platform& platform) : platform_(platform) {}

  // Reads the value, without the empty text that a list of this program has behind its pairs. Where
  // there is none, as is usual, the count of entries goes on from the run before, and of that run's
  // entries only the first is kept.
  void loadpending();
  // Adds the request to remove `path`.
  void add(std::string_view path);
  // Writes the whole mirror at one stroke, its last empty text included. What could not be read is
  // not replaced: then nothing is written.
  RegistryWrite savepending();

  [[nodiscard]] const std::vector<std::string>& PendingOperations() const { return operations_; }
  // Entries in use. The one behind them is always there and always empty.
  [[nodiscard]] std::size_t PendingCount() const { return count_; }

 private:
  void append(std::string text);

  const Platform& platform_;
  std::vector<std::string> operations_;
  std::size_t count_ = 0;
  std::string read_problem_;  // why the value could not be read
};

}  // namespace quillvane
