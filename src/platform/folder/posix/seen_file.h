// What there is to know about a file before it is removed, and who finds it out.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/folder/posix/drive_folder.h"
#include "platform/folder/posix/host_status.h"

namespace quillvane {

using SteadyTime = std::chrono::steady_clock::time_point;

// A file, no link, whose name is stored as it was spelt.
struct SeenFile {
  std::shared_ptr<const HostPlace> folder;
  std::string name;
  HostStatus status;
  std::uint32_t attributes = 0;
  bool only_name = false;  // no other name in the folder differs from it by case alone
  SteadyTime since;        // all of this was so then
};

// How long what was seen may be acted upon. It is no more than what may pass between a look and the
// removal when the program has to wait for the processor.
inline constexpr std::chrono::milliseconds kSeenIsBelieved{20};

[[nodiscard]] inline bool is_fresh(const SeenFile& file) {
  return std::chrono::steady_clock::now() - file.since < kSeenIsBelieved;
}

// A folder of the machine in which files are looked at.
struct LookedAtFolder {
  std::shared_ptr<const DriveFolder> drive;
  std::vector<std::string> names;  // from the drive on
};

// Looks at files one after the other. It keeps the folder it was in last, so that neighbours cost
// little, and looks at that anew when it becomes old. For one thread.
class FileLook {
 public:
  // Nothing for what is no SeenFile: a folder, a link, a name spelt otherwise, a missing file.
  [[nodiscard]] std::optional<SeenFile> look(const std::shared_ptr<const LookedAtFolder>& folder,
                                             const std::string& name);

 private:
  [[nodiscard]] bool enter(const std::shared_ptr<const LookedAtFolder>& folder);
  [[nodiscard]] bool read_names();

  std::shared_ptr<const LookedAtFolder> folder_;
  std::shared_ptr<const HostPlace> place_;
  SteadyTime place_until_;                         // to be found again then
  std::unordered_map<std::string, int> spelt_so_;  // how many names are the same but for case
  SteadyTime read_until_;                          // to be read again then
};

}  // namespace quillvane
