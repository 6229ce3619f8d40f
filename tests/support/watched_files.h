// The files of a machine, with a note of what was asked of them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace quillvane {

class WatchedFiles final : public FileSystem {
 public:
  // `files` must outlive it.
  explicit WatchedFiles(FileSystem& files) : files_(files) {}

  // The folders of the trees that were read, in the order of the calls, and what they answered.
  mutable std::vector<std::string> walked;
  mutable std::vector<std::weak_ptr<const FolderTree>> trees;
  // Every path that any call was about, these included.
  mutable std::vector<std::string> asked;

  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree_watched(
      const std::string& folder, const TreeRequest& request, TreeReading* watch) const override {
    return note(folder, files_.read_tree_watched(folder, request, watch));
  }
  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string& folder,
                                                     const std::string& pattern) const override {
    return files_.list_folder(note(folder), pattern);
  }
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override {
    return files_.attributes(note(path));
  }
  [[nodiscard]] bool set_attributes(const std::string& path, std::uint32_t bits) override {
    return files_.set_attributes(note(path), bits);
  }
  [[nodiscard]] std::optional<std::uint64_t> file_size(const std::string& path) const override {
    return files_.file_size(note(path));
  }
  [[nodiscard]] FileContent read_file(const std::string& path) const override {
    return files_.read_file(note(path));
  }
  [[nodiscard]] bool write_file(const std::string& path, std::string_view content) override {
    return files_.write_file(note(path), content);
  }
  [[nodiscard]] bool can_open(const std::string& path) const override {
    return files_.can_open(note(path));
  }
  [[nodiscard]] bool rename_file(const std::string& from, const std::string& to) override {
    return files_.rename_file(note(from), note(to));
  }
  [[nodiscard]] bool copy_file(const std::string& from, const std::string& to) override {
    return files_.copy_file(note(from), note(to));
  }
  [[nodiscard]] bool make_folder(const std::string& path) override {
    return files_.make_folder(note(path));
  }
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override {
    return files_.remove_file(note(path));
  }

 private:
  const std::string& note(const std::string& path) const {
    asked.push_back(path);
    return path;
  }
  std::shared_ptr<const FolderTree> note(const std::string& folder,
                                         std::shared_ptr<const FolderTree> tree) const {
    note(folder);
    walked.push_back(folder);
    trees.push_back(tree);
    return tree;
  }

  FileSystem& files_;
};

}  // namespace quillvane
