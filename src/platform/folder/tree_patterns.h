// What a walk looks for, and how deep it can look.
#pragma once

#include <cstddef>

#include "platform/folder/name_filter.h"
#include "platform/path_limit.h"
#include "platform/tree_request.h"

namespace quillvane {

struct TreePatterns {
  explicit TreePatterns(const TreeRequest& request)
      : filter(request, NameFilter::Folders::kAll), subfolders(request.subfolders) {}

  // In a folder whose path, its backslash included, has so many UTF-16 units. Subfolders are always
  // looked for by "*.*".
  [[nodiscard]] bool can_list_subfolders(std::size_t path_units) const {
    return subfolders && fits_path_limit(path_units + 3);
  }
  [[nodiscard]] bool can_list(std::size_t path_units) const {
    return filter.any_fits(path_units) || can_list_subfolders(path_units);
  }

  NameFilter filter;
  bool subfolders;
};

}  // namespace quillvane
