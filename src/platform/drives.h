// The drives of the machine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillvane {

// As GetDriveTypeA numbers them.
enum class DriveType {
  kUnknown = 0,
  kNoRoot = 1,
  kRemovable = 2,
  kFixed = 3,
  kRemote = 4,
  kCdRom = 5,
  kRamDisk = 6,
};

struct DriveSpace {
  std::uint64_t total_bytes = 0;
  std::uint64_t free_bytes = 0;
};

class Drives {
 public:
  virtual ~Drives() = default;

  // The machine's drives in the order of their letters, each as "C:".
  [[nodiscard]] virtual std::vector<std::string> list() const = 0;

  // `root` is the drive with its backslash: "C:\". kNoRoot when there is no such drive.
  [[nodiscard]] virtual DriveType type(const std::string& root) const = 0;

  // Nothing when the drive has no medium or is missing.
  [[nodiscard]] virtual std::optional<DriveSpace> space(const std::string& root) const = 0;
};

}  // namespace quillvane
