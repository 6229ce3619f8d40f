#include "shortcuts/file_list.h"

#include <algorithm>

#include "platform/unicode_case.h"
#include "support/text.h"

namespace quillvane {

void FileList::set_pattern(std::string_view patterns) {
  patterns_ = Split(patterns, ";");
  std::erase(patterns_, std::string());
}

void FileList::show_folder(const FileSystem& files, const std::string& path,
                           const ListedFolder& folder) {
  constexpr std::uint32_t kNotShown = kAttributeHidden | kAttributeSystem;
  std::vector<std::string> names;
  for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
    const std::string_view name = folder.name_of(i);
    if (!matches(name)) continue;
    const auto attributes = files.attributes(path + std::string(name));
    if (attributes && (*attributes & kNotShown) == 0) names.emplace_back(name);
  }
  std::stable_sort(names.begin(), names.end(), [](const auto& left, const auto& right) {
    return compare_names(left, right) < 0;
  });
  clear();
  for (const std::string& name : names) add(name);
}

bool FileList::matches(std::string_view name) const {
  return std::any_of(patterns_.begin(), patterns_.end(), [name](const std::string& pattern) {
    return matches_file_pattern(name, pattern);
  });
}

}  // namespace quillvane
