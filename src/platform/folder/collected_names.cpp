#include "platform/folder/collected_names.h"

#include <algorithm>

namespace quillvane {

void CollectedNames::add(std::string_view name, Kind kind) {
  if (buffer_bytes() - used_ < name.size()) {
    resize_buffer(std::max(2 * buffer_bytes(), used_ + name.size()), used_);
  }
  char* const place = buffer() + used_;
  std::copy(name.begin(), name.end(), place);
  used_ += name.size();
  add_entry({place, name.size()}, kind);
}

}  // namespace quillvane
