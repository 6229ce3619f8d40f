#include "platform/folder/machine_drives.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/folder/host_path.h"

namespace quillvane {

namespace {

// Size and room of the host's file system that holds `folder`. A folder that isn't there yet is
// on that of the nearest one above it.
std::optional<DriveSpace> host_space(std::filesystem::path folder) {
  for (;;) {
    std::error_code failed;
    const auto found = std::filesystem::space(folder, failed);
    if (!failed) return DriveSpace{found.capacity, found.available};
    const std::filesystem::path above = folder.parent_path();
    if (above == folder) return std::nullopt;
    folder = above;
  }
}

char upper_letter(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

std::vector<std::string> MachineDrives::list() const {
  std::vector<std::string> names;
  for (const MachineDrive& drive : state_.drives) names.push_back({drive.letter, ':'});
  std::sort(names.begin(), names.end());
  return names;
}

DriveType MachineDrives::type(const std::string& root) const {
  const MachineDrive* drive = find(root);
  return drive == nullptr ? DriveType::kNoRoot : drive->type;
}

std::optional<DriveSpace> MachineDrives::space(const std::string& root) const {
  const MachineDrive* drive = find(root);
  if (drive == nullptr) return std::nullopt;
  if (drive->total_bytes && drive->free_bytes) {
    return DriveSpace{*drive->total_bytes, *drive->free_bytes};
  }
  if (drive->type == DriveType::kCdRom && !drive->total_bytes && !drive->free_bytes) {
    return std::nullopt;
  }
  const auto host = host_space(host_path(drive->folder));
  if (!host) return std::nullopt;
  // The one that is given bounds the other: no drive has more room than it is large.
  if (drive->total_bytes) {
    return DriveSpace{*drive->total_bytes, std::min(host->free_bytes, *drive->total_bytes)};
  }
  if (drive->free_bytes) {
    return DriveSpace{std::max(host->total_bytes, *drive->free_bytes), *drive->free_bytes};
  }
  return host;
}

const MachineDrive* MachineDrives::find(const std::string& root) const {
  if (root.size() < 2 || root[1] != ':') return nullptr;
  const std::string_view tail = std::string_view(root).substr(2);
  if (!tail.empty() && tail != "\\") return nullptr;
  const char letter = upper_letter(root[0]);
  const auto found =
      std::find_if(state_.drives.begin(), state_.drives.end(),
                   [letter](const MachineDrive& drive) { return drive.letter == letter; });
  return found == state_.drives.end() ? nullptr : &*found;
}

}  // namespace quillvane
