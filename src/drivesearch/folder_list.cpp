#include "drivesearch/folder_list.h"

#include <array>
#include <cstddef>
#include <utility>

#include "support/record_file.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr std::array<std::size_t, 3> kWidths = {kPlaceBytes, kPlaceDescriptionBytes, 1};

FolderList list_of(RecordFile file) {
  FolderList list{{}, std::move(file.problem)};
  for (Record& record : file.records) {
    if (record[0].empty()) continue;
    list.places.push_back({std::move(record[0]), std::move(record[1]), std::move(record[2])});
  }
  return list;
}

}  // namespace

bool ListedPlace::is_folder() const { return Val(flag) == 9; }

bool ListedPlace::is_file() const { return Val(flag) == 1; }

FolderList read_folder_list(const Platform& platform, const std::string& path) {
  return list_of(read_record_file(platform, path, kWidths));
}

FolderList open_folder_list(const Platform& platform, const std::string& path) {
  return list_of(open_record_file(platform, path, kWidths));
}

bool write_folder_list(const Platform& platform, const std::string& path,
                       const std::vector<ListedPlace>& places) {
  std::vector<Record> records;
  for (const ListedPlace& place : places) {
    records.push_back({std::string(Trim(place.name)), std::string(Trim(place.description)),
                       std::string(Trim(place.flag))});
  }
  return write_record_file(platform, path, kWidths, records);
}

}  // namespace quillvane
