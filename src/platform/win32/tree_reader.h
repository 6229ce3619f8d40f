// Reads a folder and everything below it into a FolderTree, each folder once from the disk.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder_tree.h"
#include "platform/pattern_set.h"
#include "platform/reading_state.h"
#include "platform/win32/folder_listing.h"
#include "platform/win32/link_guard.h"

namespace quillvane {

class TreeReader {
 public:
  // Requires: FolderTree::can_tell(request). `tree` and `state` must outlive the reader.
  TreeReader(const TreeRequest& request, FolderTree& tree, ReadingState& state);

  // Reads the tree from `folder` on, which ends in a backslash. False when the folder cannot be
  // listed. When `state` ends the reading, what was read until then stays.
  [[nodiscard]] bool read(std::wstring folder);

 private:
  struct Subfolder {
    ListedFolder* folder;
    bool is_link;
  };

  [[nodiscard]] bool read_folder(ListedFolder& folder);
  void read_subfolder(const Subfolder& subfolder);
  [[nodiscard]] std::uint32_t matches(const WIN32_FIND_DATAW& entry, std::string_view name) const;
  void note_file(const WIN32_FIND_DATAW& entry);
  [[nodiscard]] Subfolder make_subfolder(const WIN32_FIND_DATAW& entry, const ListedFolder& parent);
  void store_files(ListedFolder& folder);

  PatternSet patterns_;
  bool subfolders_;  // are read too
  FolderListing::ShortNames short_names_;
  TreeArena& arena_;
  FolderTree& tree_;
  ReadingState& state_;
  LinkGuard guard_;
  std::wstring path_;  // of the folder being read, with a backslash at its end

  // The files of the folder being read; done with before a subfolder is begun.
  std::vector<ListedFolder::FixedRecord> records_;
  std::vector<std::uint32_t> matches_;  // of each file, the word of PatternSet
  std::string names_;
};

}  // namespace quillvane
