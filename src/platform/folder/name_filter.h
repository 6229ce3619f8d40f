// Which names of a folder match one of several patterns, their short names included.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_pattern.h"
#include "platform/folder/name_listing.h"

namespace quillvane {

class NameFilter {
 public:
  enum class Folders { kMatched, kAll };  // folders of any name are taken too

  // Requires: at most 32 patterns.
  NameFilter(std::span<const std::string> patterns, Folders folders);

  // Bring the listing of a folder, read but not sorted, into order and leave out what matches
  // none. `usable` has bit N set for each pattern N that counts here. Each entry's `matches` is
  // set to the patterns that it matches.
  void apply(NameListing& listing, std::uint32_t usable) const;

 private:
  [[nodiscard]] std::uint32_t by_name(std::string_view name) const;
  // By what every short name of the long one ends in, whatever its number.
  [[nodiscard]] std::uint32_t by_short_ending(std::string_view name) const;
  void add_short_matches(NameListing& listing) const;

  std::vector<FilePattern> patterns_;
  bool takes_all_folders_;
  bool takes_every_name_;  // by each of the patterns
  bool ends_decide_;       // of names, for one pattern at least
  bool needs_numbers_;     // of short names: a pattern looks at more than a name's end
};

}  // namespace quillvane
