// The shell links of this PC, through the shell's own interfaces.
#pragma once

#include <string>

#include "platform/links.h"

namespace quillvane {

// COM must be there on the thread that calls: Win32Shell sees to that.
class Win32Links final : public Links {
 public:
  [[nodiscard]] bool read_link(const std::string& path, LinkContent& content) override;
  [[nodiscard]] bool write_link(const std::string& path, const LinkContent& content) override;
};

}  // namespace quillvane
