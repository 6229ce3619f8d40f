#include "support/record_file.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <string_view>
#include <utility>

#include "support/text.h"
#include "support/text_file.h"

namespace quillvane {

namespace {

std::size_t width_of(std::span<const std::size_t> widths) {
  return std::accumulate(widths.begin(), widths.end(), std::size_t{0});
}

// The record that the bytes begin with; fields behind their end are empty. Nothing when a field
// needs a code page that the system does not know.
std::optional<Record> record_of(const SystemInfo& system, std::string_view bytes,
                                std::span<const std::size_t> widths) {
  Record record;
  for (const std::size_t width : widths) {
    const std::string_view field = bytes.substr(0, width);
    bytes.remove_prefix(field.size());
    const auto text = text_of_bytes(system, field);
    if (!text) return std::nullopt;
    record.emplace_back(Trim(*text));
  }
  return record;
}

RecordFile records_of(const SystemInfo& system, std::string_view content,
                      std::span<const std::size_t> widths) {
  if (content.find('\0') != std::string_view::npos) return {{}, "it is no list"};
  const std::size_t record_bytes = width_of(widths);
  const auto count = record_count(content.size(), record_bytes);
  if (!count) return {{}, "it has more entries than can be counted"};
  RecordFile file;
  for (int number = 0; number < *count; ++number) {
    auto record = record_of(system, content.substr(0, record_bytes), widths);
    if (!record) return {{}, code_page_problem(system)};
    content.remove_prefix(std::min(content.size(), record_bytes));
    file.records.push_back(std::move(*record));
  }
  return file;
}

}  // namespace

std::optional<int> record_count(std::uint64_t file_bytes, std::size_t record_bytes) {
  const std::uint64_t whole = file_bytes / record_bytes;
  const std::uint64_t twice_the_rest = 2 * (file_bytes % record_bytes);
  const bool up =
      twice_the_rest > record_bytes || (twice_the_rest == record_bytes && whole % 2 == 1);
  const std::uint64_t count = whole + (up ? 1 : 0);
  if (count > std::numeric_limits<std::int16_t>::max()) return std::nullopt;
  return static_cast<int>(count);
}

RecordFile read_record_file(const Platform& platform, const std::string& path,
                            std::span<const std::size_t> widths) {
  const FileContent content = platform.files.read_file(path);
  if (!content) return {{}, read_problem(content.failure())};
  return records_of(platform.system, *content, widths);
}

RecordFile open_record_file(const Platform& platform, const std::string& path,
                            std::span<const std::size_t> widths) {
  const FileContent content = platform.files.read_file(path);
  if (content.is_missing()) static_cast<void>(platform.files.write_file(path, ""));
  if (!content) return {{}, read_problem(content.failure())};
  return records_of(platform.system, *content, widths);
}

bool write_record_file(const Platform& platform, const std::string& path,
                       std::span<const std::size_t> widths, const std::vector<Record>& records) {
  std::string content;
  for (const Record& record : records) {
    for (std::size_t field = 0; field < widths.size(); ++field) {
      content += field_of_text(platform.system, part(record, field), widths[field]);
    }
  }
  return platform.files.write_file(path, content);
}

}  // namespace quillvane
