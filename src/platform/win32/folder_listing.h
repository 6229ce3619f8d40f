// One pass over the entries of a folder, "." and ".." left out.
#pragma once

#include <windows.h>

#include <string>

#include "platform/win32/system_handle.h"

namespace quillvane {

class FolderListing {
 public:
  // Short names cost the disk a further look at each entry, so they come only when asked for.
  enum class ShortNames { kNo, kYes };

  // `search` is the folder, a backslash and a pattern.
  FolderListing(const std::wstring& search, ShortNames short_names);

  // Whether the folder could be read; one without a matching entry can.
  [[nodiscard]] bool is_open() const { return is_open_; }

  // The next entry, valid until the next call; null at the end.
  [[nodiscard]] const WIN32_FIND_DATAW* next();

 private:
  [[nodiscard]] bool advance();

  WIN32_FIND_DATAW entry_{};
  FindHandle find_;
  bool is_open_ = false;
  bool has_first_ = false;  // the call that opens the folder gives the first entry, too
};

}  // namespace quillvane
