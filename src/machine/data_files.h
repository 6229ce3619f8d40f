// The files that ship beside the program: language files and whatever else stands in data/.
#pragma once

#include <span>
#include <string_view>

namespace quillvane {

struct DataFile {
  std::string_view name;   // below the program's folder: "lang\data.lang"
  std::string_view bytes;  // as they stand in the file
};

[[nodiscard]] std::span<const DataFile> data_files();

// The bytes of the one of that name; empty when there is none.
[[nodiscard]] std::string_view data_file(std::string_view name);

}  // namespace quillvane
