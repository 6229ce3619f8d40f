// The files of a machine folder on Linux.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/machine_files.h"
#include "platform/folder/machine_state.h"
#include "platform/folder/posix/drive_file.h"
#include "platform/folder/posix/folder_in_hand.h"
#include "platform/folder/posix/machine_paths.h"

namespace quillvane {

class FolderFileSystem final : public MachineFiles {
 public:
  // A walk reads with `reading_threads` threads when the tree proves to be large; 0 means as many
  // as this host makes worthwhile.
  explicit FolderFileSystem(const MachineState& machine, unsigned reading_threads = 0);

  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree_watched(
      const std::string& folder, const TreeRequest& request, TreeReading* watch) const override;
  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string& folder,
                                                     const std::string& pattern) const override;
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override;
  [[nodiscard]] bool set_attributes(const std::string& path, std::uint32_t bits) override;

  [[nodiscard]] std::optional<std::uint64_t> file_size(const std::string& path) const override;
  [[nodiscard]] FileContent read_file(const std::string& path) const override;
  [[nodiscard]] bool write_file(const std::string& path, std::string_view content) override;

  [[nodiscard]] bool can_open(const std::string& path) const override;
  [[nodiscard]] bool rename_file(const std::string& from, const std::string& to) override;
  // The copy has the attributes and the time of the last writing too.
  [[nodiscard]] bool copy_file(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool make_folder(const std::string& path) override;
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override;
  void remove_contents(const std::string& folder) override;

 private:
  // Puts a file at the path or in the place of the one that is there.
  [[nodiscard]] bool put_file(const std::string& path, const FillFile& fill);
  [[nodiscard]] RemoveResult remove_in_hand(const std::string& path, const HostPlace& folder,
                                            const std::string& name, const HostStatus& status);
  [[nodiscard]] RemoveResult remove_looking(const std::string& path);
  // Whether it is the file that was removed last and nothing can have come in its place.
  [[nodiscard]] bool is_just_removed(const std::string& path) const;

  MachinePaths paths_;
  unsigned reading_threads_;
  FolderInHand in_hand_{paths_};
  std::string removed_path_;  // "" when it is not known
  NameIndex::State removed_since_;
};

}  // namespace quillvane
