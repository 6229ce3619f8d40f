// A file system that passes each call on to another one, for layers that watch, refuse or replay
// some of the calls: they override those and leave the rest.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace quillvane {

class ForwardingFileSystem : public FileSystem {
 public:
  // `next` must outlive this object.
  explicit ForwardingFileSystem(FileSystem& next) : next_(next) {}

  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree_watched(
      const std::string& folder, const TreeRequest& request, TreeReading* watch) const override {
    return next_.read_tree_watched(folder, request, watch);
  }
  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string& folder,
                                                     const std::string& pattern) const override {
    return next_.list_folder(folder, pattern);
  }
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override {
    return next_.attributes(path);
  }
  [[nodiscard]] bool set_attributes(const std::string& path, std::uint32_t bits) override {
    return next_.set_attributes(path, bits);
  }
  [[nodiscard]] std::optional<std::uint64_t> file_size(const std::string& path) const override {
    return next_.file_size(path);
  }
  [[nodiscard]] FileContent read_file(const std::string& path) const override {
    return next_.read_file(path);
  }
  [[nodiscard]] bool write_file(const std::string& path, std::string_view content) override {
    return next_.write_file(path, content);
  }
  [[nodiscard]] bool can_open(const std::string& path) const override {
    return next_.can_open(path);
  }
  [[nodiscard]] bool rename_file(const std::string& from, const std::string& to) override {
    return next_.rename_file(from, to);
  }
  [[nodiscard]] bool copy_file(const std::string& from, const std::string& to) override {
    return next_.copy_file(from, to);
  }
  [[nodiscard]] bool make_folder(const std::string& path) override {
    return next_.make_folder(path);
  }
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override {
    return next_.remove_file(path);
  }

 protected:
  [[nodiscard]] FileSystem& next() const { return next_; }

 private:
  FileSystem& next_;
};

}  // namespace quillvane
