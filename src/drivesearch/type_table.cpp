#include "drivesearch/type_table.h"

#include <array>
#include <cstddef>

#include "platform/unicode_case.h"
#include "support/record_file.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr std::array<std::size_t, 3> kWidths = {kTypeBytes, kTypeBytes, 1};

constexpr std::string_view kFactoryFile = "tmptype.orv";
constexpr std::string_view kAllFiles = "file with zero size";

TypeTable table_of(RecordFile file) {
  TypeTable table{{}, std::move(file.problem)};
  for (Record& record : file.records) {
    table.rows.push_back({std::move(record[0]), std::move(record[1]), std::move(record[2])});
  }
  return table;
}

}  // namespace

bool FileTypeEntry::is_on() const { return Val(flag) == 1; }

bool FileTypeEntry::is_off() const { return Val(flag) == 0; }

bool FileTypeEntry::switches_all_files() const { return same_name(Trim(description), kAllFiles); }

void put_type_table_in_place(const Session& session) {
  FileSystem& files = session.platform.files;
  const std::string table = session.data_file(kTypeFile);
  const std::string factory_table = session.data_file(kFactoryFile);
  if (!files.read_file(table).is_missing()) return;  // one that cannot be read is the user's too
  const auto content = files.read_file(factory_table);
  // The factory table is only given up once its copy is there.
  if (content && files.write_file(table, *content)) {
    static_cast<void>(files.remove_file(factory_table));
  }
}

TypeTable read_type_table(const Session& session) {
  return table_of(open_record_file(session.platform, session.data_file(kTypeFile), kWidths));
}

TypeTable read_type_table_file(const Platform& platform, const std::string& path) {
  return table_of(read_record_file(platform, path, kWidths));
}

bool write_type_table(const Session& session, const std::vector<FileTypeEntry>& rows) {
  std::vector<Record> records;
  for (const FileTypeEntry& row : rows) {
    records.push_back({std::string(Trim(row.description)), std::string(Trim(row.extension)),
                       std::string(Trim(row.flag))});
  }
  return write_record_file(session.platform, session.data_file(kTypeFile), kWidths, records);
}

TypesToFind types_to_find(const std::vector<FileTypeEntry>& rows) {
  TypesToFind found;
  for (const FileTypeEntry& row : rows) {
    if (row.switches_all_files()) {
      found.all_files_on |= row.is_on();
      found.all_files_off |= row.is_off();
    } else if (!Trim(row.description).empty() && row.is_on()) {
      const std::string_view before = Trim(found.patterns);
      const std::string_view pattern = Trim(row.extension);
      found.patterns =
          before.empty() ? std::string(pattern) : std::string(before) + "|" + std::string(pattern);
    }
  }
  if (Trim(found.patterns).empty()) found.patterns = kMatchesNothing;
  return found;
}

}  // namespace quillvane
