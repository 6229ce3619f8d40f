#include "machine/data_files.h"

namespace quillvane {

std::string_view data_file(std::string_view name) {
  for (const DataFile& file : data_files()) {
    if (file.name == name) return file.bytes;
  }
  return {};
}

}  // namespace quillvane
