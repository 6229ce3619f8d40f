#include "support/list_files.h"

#include <utility>

#include "support/text.h"
#include "support/text_file.h"

namespace quillvane {

namespace {

constexpr const char* kLineEnd = "\r\n";

}  // namespace

ListLines read_list_file(const Platform& platform, const std::string& path) {
  FileText file = read_text_file(platform, path);
  ListLines list{text_lines(file.text), std::move(file.problem)};
  std::erase_if(list.lines, [](const std::string& line) { return Trim(line).empty(); });
  return list;
}

std::string append_to_list_file(const Platform& platform, const std::string& path,
                                const std::string& line) {
  FileText file = read_text_file(platform, path);
  if (!file.problem.empty()) return std::move(file.problem);
  const bool is_open =
      !file.text.empty() && !file.text.ends_with('\n') && !file.text.ends_with('\r');
  if (is_open) file.text += kLineEnd;
  static_cast<void>(write_text_file(platform, path, file.text + line + kLineEnd));
  return {};
}

std::string list_problem_message(const std::string& path, const std::string& problem,
                                 std::string_view what_follows) {
  return path + ": " + problem + ". " + std::string(what_follows);
}

bool write_list_file(const Platform& platform, const std::string& path,
                     const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + kLineEnd;
  return write_text_file(platform, path, text);
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
