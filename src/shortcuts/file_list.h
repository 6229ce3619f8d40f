// A list of the files of one folder that match one of several patterns.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/list_box.h"
#include "platform/file_system.h"
#include "platform/folder_tree.h"

namespace quillvane {

// As the list control of the platform shows them: normal, archive and read-only files, sorted by
// name; no hidden ones, none of the system, no folders.
class FileList : public ListBox {
 public:
  using ListBox::ListBox;

  // Patterns with ";" between them. An empty text matches nothing.
  void set_pattern(std::string_view patterns);
  // Fills the list from the files of a folder, whose path ends in a backslash.
  void show_folder(const FileSystem& files, const std::string& path, const ListedFolder& folder);

 private:
  [[nodiscard]] bool matches(std::string_view name) const;

  std::vector<std::string> patterns_;
};

}  // namespace quillvane
