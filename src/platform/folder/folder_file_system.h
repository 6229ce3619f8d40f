// The files of a Windows machine held in a folder: one host folder for each drive.
//
// Names are found without regard to case; an exact match wins. A symbolic link is a junction. One
// that leads out of its drive's folder leads nowhere and is as if it were missing, like everything
// that is neither file nor folder: nothing outside the drives' folders is ever read or removed, and
// no exchange of a folder for a link while a call runs can change that.
//
// A path of 260 UTF-16 units or more cannot be opened or listed; for a listing the pattern counts.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/folder/machine_paths.h"
#include "platform/folder/machine_state.h"

namespace quillvane {

class FolderFileSystem final : public FileSystem {
 public:
  // The machine is looked at anew by each call: its drives, the files in use, the folders that
  // cannot be listed and its width. It must outlive this object.
  // A walk reads with `reading_threads` threads when the tree proves to be large; 0 means as many
  // as this host makes worthwhile.
  explicit FolderFileSystem(const MachineState& machine, unsigned reading_threads = 0);

  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree(
      const std::string& folder, const std::string& pattern) const override;
  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree_for(
      const std::string& folder, const std::vector<std::string>& patterns) const override;
  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string& folder,
                                                     const std::string& pattern) const override;

  // A link to a file is archive and no more, and nothing can be set on a link: what its target has
  // is not the link's.
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override;
  [[nodiscard]] bool set_attributes(const std::string& path, std::uint32_t bits) override;

  [[nodiscard]] std::optional<std::uint64_t> file_size(const std::string& path) const override;
  [[nodiscard]] std::optional<std::string> read_file(const std::string& path) const override;

  // A link stays; the file that it leads to is written.
  [[nodiscard]] bool write_file(const std::string& path, std::string_view content) override;

  [[nodiscard]] bool can_open(const std::string& path) const override;

  // A link itself gets the new name. On the same drive only, and not for a file in use.
  [[nodiscard]] bool rename_file(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool copy_file(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool make_folder(const std::string& path) override;

  // A link to a file is removed itself; where it leads nothing changes. A link to a folder is
  // denied, as a folder is.
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override;

  // Removes all that lies in a folder, but not the folder; links go themselves, and what cannot be
  // removed stays. For the emptying of the recycle bin.
  void remove_contents(const std::string& folder);

 private:
  MachinePaths paths_;
  unsigned reading_threads_;
};

}  // namespace quillvane
