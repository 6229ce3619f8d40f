#include "support/file_properties.h"

#include <string_view>
#include <vector>

#include "platform/unicode_case.h"
#include "support/file_date.h"

namespace quillvane {

namespace {

constexpr std::size_t kRootLength = 3;     // "C:\"
constexpr std::size_t kTooLongPath = 260;  // is not looked at

// The first entry that the path names. In a folder that is no root its own entry "." comes before
// all others.
FolderEntry first_match(const FileSystem& files, const std::string& path) {
  const std::size_t slash = path.rfind('\\');
  if (slash == std::string::npos || slash + 1 == path.size()) return {};
  if (utf16_length(path) >= kTooLongPath) return {};
  const std::string folder = path.substr(0, slash + 1);
  const std::string name = path.substr(slash + 1);
  const bool is_pattern = name.find_first_of("*?") != std::string::npos;
  if (is_pattern && folder.size() > kRootLength && matches_file_pattern(".", name)) {
    return first_match(files, folder.substr(0, folder.size() - 1));
  }
  const std::vector<FolderEntry> entries = files.list_folder(folder, name);
  return entries.empty() ? FolderEntry{} : entries.front();
}

std::string date_text(const DateTime& time) {
  return std::to_string(time.month) + "/" + std::to_string(time.day) + "/" +
         std::to_string(time.year);
}

std::string time_text(FileTime file_time) {
  const auto time = calendar_date(file_time);
  if (!time) return {};
  return date_text(*time) + " " + std::to_string(time->hour) + ":" + std::to_string(time->minute) +
         ":" + std::to_string(time->second);
}

std::string size_text(std::uint64_t bytes) {
  constexpr unsigned kHalf = 32;
  const auto high = static_cast<std::int32_t>(bytes >> kHalf);
  const auto low = static_cast<std::int32_t>(static_cast<std::uint32_t>(bytes));
  const std::int32_t half = high != 0 ? high : low;
  return half == 0 ? std::string() : std::to_string(half);
}

}  // namespace

int clsFileProp::FindFileInfo(const std::string& path) {
  if (path.empty()) return 0;
  const FolderEntry found = first_match(files_, path);
  file_name_ = upper_case(path);
  creation_time_ = time_text(found.created);
  const auto accessed = calendar_date(found.accessed);
  last_access_time_ = accessed ? date_text(*accessed) : std::string();
  last_write_time_ = time_text(found.modified);
  attributes_ = found.attributes;
  byte_size_ = size_text(found.size_bytes);
  return 1;
}

}  // namespace quillvane
