// The folder in which files are removed one after the other, held open so that its way is gone once
// and not by each file.
//
// It is held only while its path is sure to lead to it: each folder on the way down from the
// drive's is watched, and when one of them is moved, or a watch is lost, the way is gone anew. The
// drive's folder itself counts as the same as long as it is not moved.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/posix/machine_paths.h"

namespace quillvane {

class FolderInHand {
 public:
  // `paths` must outlive it.
  explicit FolderInHand(const MachinePaths& paths) : paths_(paths) {}

  // The folder of the path, and the last name of it. Null when it cannot be held and the way has to
  // be gone: the path is spelt otherwise than stored, leads through a link, or is none; the folder
  // is not there, or its changes are not told.
  [[nodiscard]] const HostPlace* folder_of(std::string_view path);
  [[nodiscard]] static std::string name_in(std::string_view path) {
    return std::string(path.substr(path.rfind('\\') + 1));
  }

 private:
  [[nodiscard]] bool take(std::string_view text);
  [[nodiscard]] bool begin_at(char letter, const std::string& host_folder);
  [[nodiscard]] std::optional<HostPlace> enter(const std::string& path) const;
  [[nodiscard]] bool is_as_it_was();

  const MachinePaths& paths_;
  std::string text_;  // of the folder that was asked for last, with a backslash
  std::optional<HostPlace> place_;
  char letter_ = 0;
  std::string host_folder_;
  std::optional<DriveFolder> drive_;
  std::vector<std::string> way_;  // names of the folders below the drive's that are watched
  NameIndex::State watched_since_;
};

}  // namespace quillvane
