// Which names of a folder match one of several patterns, their short names included.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/folder/name_listing.h"
#include "platform/pattern_set.h"

namespace quillvane {

class NameFilter {
 public:
  enum class Folders { kMatched, kAll };  // folders of any name are taken too

  NameFilter(const TreeRequest& request, Folders folders);

  // Brings the listing of a folder, read but not sorted, into order and leaves out what matches
  // none. The folder's path, its backslash included, has so many UTF-16 units. Each entry's
  // `matches` is set to the word of PatternSet.
  void apply(NameListing& listing, std::size_t path_units) const;

  [[nodiscard]] bool any_fits(std::size_t path_units) const {
    return patterns_.any_fits(path_units);
  }
  [[nodiscard]] bool tells_matches() const { return patterns_.tells_matches(); }

 private:
  // By the name, and by what every short name of it ends in, whatever its number.
  [[nodiscard]] std::uint32_t by_name(std::string_view name, std::size_t path_units) const;
  void add_short_matches(NameListing& listing, std::size_t path_units) const;

  PatternSet patterns_;
  bool takes_all_folders_;
};

}  // namespace quillvane
