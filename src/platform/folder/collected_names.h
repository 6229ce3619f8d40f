// The names of a folder, put together one by one.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/folder/name_listing.h"

namespace quillvane {

class CollectedNames final : public NameListing {
 public:
  CollectedNames() : NameListing(kFirstBytes) {}

  // Requires: the name has fewer than 65,536 bytes.
  void add(std::string_view name, Kind kind);

 private:
  static constexpr std::size_t kFirstBytes = 4096;

  std::size_t used_ = 0;
};

}  // namespace quillvane
