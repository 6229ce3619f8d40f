// The host folder that holds one drive of the machine, and the ways to what lies below it.
//
// Every way is gone from one open folder to the next, never through a link of the host: links are
// read and followed here. So a way cannot leave the drive's folder, whatever is exchanged on it
// meanwhile. Only the drive's folder itself may be reached through links.
//
// Where nothing is found errno has the reason: one that means_missing, or why it cannot be told.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/posix/descriptor.h"
#include "platform/folder/posix/host_status.h"
#include "platform/folder/posix/name_index.h"

namespace quillvane {

// Something found on a drive.
struct HostPlace {
  std::string path;   // from the drive's folder on, as stored and without links; "" is the drive
  Descriptor object;  // to find and ask by (O_PATH), not to read from
  HostStatus
      status;  // where the host shows a link that is none to Windows, that of a file or folder
  bool on_ntfs = false;  // on a mounted NTFS disk (ntfs_disk.h)
};

// A name in a folder; what bears it may be a link.
struct HostEntry {
  HostPlace folder;
  std::string name;  // as stored
};

class DriveFolder {
 public:
  // A folder that cannot be opened is a drive on which nothing is found.
  // `letter` is the drive's, in upper case: links on an NTFS disk lead to letters. One that leads
  // to another drive leads nowhere. Drives may share the index by which names of another case are
  // found; without one it has its own.
  explicit DriveFolder(const std::string& host_folder, char letter = 0,
                       std::shared_ptr<NameIndex> names = std::make_shared<NameIndex>());

  // Whether its folder lies on a mounted NTFS disk.
  [[nodiscard]] bool is_on_ntfs() const { return on_ntfs_; }

  // Goes down the names without regard to case and follows links, the last one too.
  [[nodiscard]] std::optional<HostPlace> find(std::span<const std::string> names) const;

  // The same, but does not follow the last name. Nothing for the drive itself.
  [[nodiscard]] std::optional<HostEntry> find_entry(std::span<const std::string> names) const;

  // The entry by which a place is stored. Nothing for the drive itself.
  [[nodiscard]] std::optional<HostEntry> entry_of(const HostPlace& place) const;

  // What lies at a path spelt as HostPlace::path has it, no link and reached through none, in one
  // step; "" is the drive. Nothing also means: look closer.
  [[nodiscard]] std::optional<HostPlace> find_as_stored(const std::string& path) const;

  // Where the stored name `name` of the folder at `path` leads, a path as HostPlace has it.
  [[nodiscard]] std::optional<HostPlace> follow(const std::string& path,
                                                const std::string& name) const;

 private:
  class Way;

  [[nodiscard]] std::optional<HostPlace> root() const;
  // Goes straight down stored names, none of them a link.
  [[nodiscard]] std::optional<HostPlace> find_stored(const std::string& path) const;

  // What the host alone does not tell of a place that was just opened.
  void settle(HostPlace& place) const;

  std::string host_folder_;
  char letter_;
  Descriptor folder_;
  int error_;  // why it is not open
  HostStatus status_{};
  bool on_ntfs_ = false;
  std::shared_ptr<NameIndex> names_;
};

// The names as a path below the drive.
[[nodiscard]] std::string joined_names(std::span<const std::string> names);

// What bears the name: a link itself and not where it leads. Nothing when it is gone.
[[nodiscard]] std::optional<HostPlace> open_entry(const HostEntry& entry);

// When a file or folder was made.
[[nodiscard]] FileTime created_time(const HostPlace& place);

// Opens a folder that was found for reading its names.
[[nodiscard]] Descriptor open_for_listing(const HostPlace& place);

}  // namespace quillvane
