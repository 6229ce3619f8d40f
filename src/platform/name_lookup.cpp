#include "platform/name_lookup.h"

#include <algorithm>
#include <cstddef>

namespace quillvane {

namespace {

bool is_shown(std::uint32_t attributes, std::uint32_t mask) {
  constexpr std::uint32_t kMustBeAskedFor = kAttributeHidden | kAttributeSystem | kAttributeFolder;
  return (attributes & kMustBeAskedFor & ~mask) == 0;
}

bool lists_name(const FileSystem& files, const std::string& folder, const std::string& pattern,
                std::uint32_t mask) {
  const std::vector<FolderEntry> entries = files.list_folder(folder, pattern);
  return std::any_of(entries.begin(), entries.end(),
                     [mask](const FolderEntry& entry) { return is_shown(entry.attributes, mask); });
}

}  // namespace

bool finds_name(const FileSystem& files, const std::string& path, std::uint32_t mask) {
  const std::size_t folder_end = path.find_last_of("\\/") + 1;  // 0 when there is none
  const std::string folder = path.substr(0, folder_end);
  const std::string name = path.substr(folder_end);
  if (name.find_first_of("*?") != std::string::npos) return lists_name(files, folder, name, mask);

  // The folder is among its own names, which a listing leaves out.
  const auto attributes = files.attributes(path);
  if (attributes && is_shown(*attributes, mask)) return true;
  return name.empty() && lists_name(files, folder, "*.*", mask);
}

}  // namespace quillvane
