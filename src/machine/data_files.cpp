#include "machine/data_files.h"

#include <algorithm>

namespace quillvane {

std::string_view data_file(std::string_view name) {
  const auto files = data_files();
  const auto file = std::find_if(files.begin(), files.end(),
                                 [&](const DataFile& other) { return other.name == name; });
  return file != files.end() ? file->bytes : std::string_view();
}

}  // namespace quillvane
