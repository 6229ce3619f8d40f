// Reads a folder and everything below it into a FolderTree, each folder once from the disk.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_pattern.h"
#include "platform/folder_tree.h"
#include "platform/win32/link_guard.h"

namespace quillvane {

class TreeReader {
 public:
  // Takes the files that match one of `patterns`, at most FolderTree::kMostPatterns; `tree` must
  // outlive the reader.
  TreeReader(const std::vector<std::string>& patterns, FolderTree& tree);

  // Reads the tree from `folder` on, which ends in a backslash. False when the folder cannot be
  // listed.
  [[nodiscard]] bool read(std::wstring folder);

 private:
  // Some of the patterns: bit N stands for pattern N.
  using PatternSet = std::uint32_t;

  struct Subfolder {
    ListedFolder* folder;
    bool is_link;
  };

  [[nodiscard]] bool read_folder(ListedFolder& folder);
  void read_subfolder(const Subfolder& subfolder);
  // Those that fit into a path behind the folder being read.
  [[nodiscard]] PatternSet usable_patterns() const;
  void note_file(const WIN32_FIND_DATAW& entry, PatternSet usable);
  [[nodiscard]] PatternSet matches(std::string_view name) const;
  [[nodiscard]] Subfolder make_subfolder(const WIN32_FIND_DATAW& entry, const ListedFolder& parent);
  void store_files(ListedFolder& folder);

  std::vector<FilePattern> patterns_;
  std::vector<std::size_t> pattern_lengths_;  // as they count in a path
  bool needs_short_names_;
  TreeArena& arena_;
  FolderTree& tree_;
  LinkGuard guard_;
  std::wstring path_;  // of the folder being read, with a backslash at its end

  // The files of the folder being read; done with before a subfolder is begun.
  std::vector<ListedFolder::FixedRecord> records_;
  std::vector<PatternSet> matches_;
  std::string names_;
};

}  // namespace quillvane
