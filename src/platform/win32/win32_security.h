// Rights on this PC's registry keys and files.
#pragma once

#include "platform/security.h"

namespace quillvane {

class Win32Security final : public Security {
 public:
  void set_key_access(Hive hive, const std::string& key, const std::string& account) override;
  void set_file_access(const std::string& account, const std::string& path,
                       std::uint32_t mask) override;
};

}  // namespace quillvane
