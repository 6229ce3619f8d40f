#include "support/list_files.h"

#include "support/text.h"

namespace quillvane {

std::vector<std::string> read_list_lines(const FileSystem& files, const std::string& path) {
  std::vector<std::string> lines;
  if (const auto content = files.read_file(path)) {
    lines = text_lines(*content);
    std::erase_if(lines, [](const std::string& line) { return Trim(line).empty(); });
  }
  return lines;
}

void append_list_line(FileSystem& files, const std::string& path, const std::string& line) {
  const auto content = files.read_file(path);
  if (!content && files.attributes(path)) return;  // what cannot be read shall not be replaced
  static_cast<void>(files.write_file(path, content.value_or("") + line + "\r\n"));
}

CustomEntry custom_entry_of(const std::string& line) {
  const std::vector<std::string> fields = Split(line, "|");
  return {part(fields, 0), part(fields, 1), part(fields, 2), part(fields, 3), part(fields, 4)};
}

std::string line_of(const CustomEntry& entry) {
  return entry.name + "|" + entry.location + "|" + entry.include + "|" + entry.exclude + "|" +
         entry.subfolders;
}

}  // namespace quillvane
