// Reads a folder and everything below it into a FolderTree, each folder once from the disk.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_pattern.h"
#include "platform/folder_tree.h"
#include "platform/win32/link_guard.h"

namespace quillvane {

class TreeReader {
 public:
  // Takes the files that match `pattern`; `tree` must outlive the reader.
  TreeReader(std::string_view pattern, FolderTree& tree);

  // Reads the tree from `folder` on, which ends in a backslash. False when the folder cannot be
  // listed.
  [[nodiscard]] bool read(std::wstring folder);

 private:
  struct Subfolder {
    ListedFolder* folder;
    bool is_link;
  };

  [[nodiscard]] bool read_folder(ListedFolder& folder);
  void read_subfolder(const Subfolder& subfolder);
  void note_file(const WIN32_FIND_DATAW& entry);
  [[nodiscard]] bool matches(const WIN32_FIND_DATAW& entry, std::string_view name) const;
  [[nodiscard]] Subfolder make_subfolder(const WIN32_FIND_DATAW& entry, const ListedFolder& parent);
  void store_files(ListedFolder& folder);

  FilePattern pattern_;
  std::size_t pattern_length_;  // as it counts in a path
  TreeArena& arena_;
  FolderTree& tree_;
  LinkGuard guard_;
  std::wstring path_;  // of the folder being read, with a backslash at its end

  // The files of the folder being read; done with before a subfolder is begun.
  std::vector<ListedFolder::FixedRecord> records_;
  std::string names_;
};

}  // namespace quillvane
