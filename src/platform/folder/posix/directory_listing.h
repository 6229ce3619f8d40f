// The names in one folder as Linux tells them.
//
// Left out are ".", "..", what is neither file, folder nor link (sockets and the like, which
// Windows does not know), and names with a backslash: on the machine those would be paths.
#pragma once

#include <cstddef>

#include "platform/folder/name_listing.h"

namespace quillvane {

class DirectoryListing final : public NameListing {
 public:
  DirectoryListing();

  // Replaces what was read before by the names of the open folder, in no order. False, with no
  // names, when it cannot be read.
  [[nodiscard]] bool read(int folder);

  // Whether there are entries of Kind::kLink.
  [[nodiscard]] bool has_links() const { return has_links_; }

  // The name with a NUL behind it.
  [[nodiscard]] const char* host_name(const Entry& entry) const {
    return buffer() + entry.name_begin;
  }

 private:
  void add_entries(int folder, std::size_t begin, std::size_t end);

  bool has_links_ = false;
};

}  // namespace quillvane
