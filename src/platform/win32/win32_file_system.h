// The files and folders of this PC.
#pragma once

#include "platform/file_system.h"

namespace quillvane {

class Win32FileSystem final : public FileSystem {
 public:
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
  [[nodiscard]] bool copy_file(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool make_folder(const std::string& path) override;
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override;
};

}  // namespace quillvane
