// The patterns that a walk looks for, and how deep each of them can be looked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/folder/name_filter.h"
#include "platform/folder/windows_path.h"
#include "platform/unicode_case.h"

namespace quillvane {

struct TreePatterns {
  explicit TreePatterns(std::span<const std::string> patterns)
      : filter(patterns, NameFilter::Folders::kAll) {
    for (const std::string& pattern : patterns) pattern_units.push_back(utf16_length(pattern));
  }

  // Which patterns can be handed to a listing of a folder whose path, its backslash included, has
  // so many UTF-16 units. Bit N stands for pattern N.
  [[nodiscard]] std::uint32_t usable_patterns(std::size_t path_units) const {
    std::uint32_t usable = 0;
    for (std::size_t i = 0; i < pattern_units.size(); ++i) {
      if (fits_path_limit(path_units + pattern_units[i])) usable |= 1U << i;
    }
    return usable;
  }
  // Subfolders are always looked for by "*.*".
  [[nodiscard]] static bool can_list_subfolders(std::size_t path_units) {
    return fits_path_limit(path_units + 3);
  }
  [[nodiscard]] bool can_list(std::size_t path_units) const {
    return usable_patterns(path_units) != 0 || can_list_subfolders(path_units);
  }

  NameFilter filter;
  std::vector<std::size_t> pattern_units;
};

}  // namespace quillvane
