// A disk with nothing on it that takes nothing, for tests of routines that need a few answers of a
// disk and no machine: they override what they are about.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace quillvane {

class NoFiles : public FileSystem {
 public:
  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree_watched(const std::string&,
                                                                    const TreeRequest&,
                                                                    TreeReading*) const override {
    return nullptr;
  }
  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string&,
                                                     const std::string&) const override {
    return {};
  }
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string&) const override {
    return std::nullopt;
  }
  [[nodiscard]] bool set_attributes(const std::string&, std::uint32_t) override { return false; }
  [[nodiscard]] std::optional<std::uint64_t> file_size(const std::string&) const override {
    return std::nullopt;
  }
  [[nodiscard]] FileContent read_file(const std::string&) const override {
    return ReadFailure::kMissing;
  }
  [[nodiscard]] bool write_file(const std::string&, std::string_view) override { return false; }
  [[nodiscard]] bool can_open(const std::string&) const override { return false; }
  [[nodiscard]] bool rename_file(const std::string&, const std::string&) override { return false; }
  [[nodiscard]] bool copy_file(const std::string&, const std::string&) override { return false; }
  [[nodiscard]] bool make_folder(const std::string&) override { return false; }
  [[nodiscard]] RemoveResult remove_file(const std::string&) override {
    return RemoveResult::kMissing;
  }
};

}  // namespace quillvane
