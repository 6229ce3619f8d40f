#include "platform/folder/machine_instances.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <memory>
#include <thread>

#include "platform/folder/posix/descriptor.h"

namespace quillvane {

namespace {

// Holding cleanings off takes a few writes to the registry.
constexpr std::chrono::milliseconds kBetweenTries{10};
constexpr int kTries = 500;

// A lock on the folder itself, which the system lets go with the process. Null when it is not to be
// had.
Instances::Hold lock(const std::string& dir, int kind) {
  Descriptor folder(open(dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.is_open() || flock(folder.number(), kind | LOCK_NB) != 0) return nullptr;
  return std::make_shared<const Descriptor>(std::move(folder));
}

}  // namespace

Instances::Hold MachineInstances::announce_cleaning() {
  for (int i = 0; i < kTries; ++i) {
    if (Hold hold = lock(dir_, LOCK_SH)) return hold;
    if (errno != EWOULDBLOCK) break;
    std::this_thread::sleep_for(kBetweenTries);
  }
  return nullptr;
}

Instances::Hold MachineInstances::hold_off_cleaning() { return lock(dir_, LOCK_EX); }

}  // namespace quillvane
