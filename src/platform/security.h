// Rights on registry keys and files, changed so that the program gains access.
#pragma once

#include <cstdint>
#include <string>

#include "platform/registry.h"

namespace quillvane {

inline constexpr std::uint32_t kGenericAll = 0x10000000;

class Security {
 public:
  virtual ~Security() = default;

  // Gives everybody and `account` rights on a key; their earlier entries are replaced. A failed
  // step leaves the key as it was.
  virtual void set_key_access(Hive hive, const std::string& key, const std::string& account) = 0;

  // Gives `account` the rights of `mask` on a file or folder, in place of its earlier ones. A
  // failed step leaves it as it was; so does a volume without rights.
  virtual void set_file_access(const std::string& account, const std::string& path,
                               std::uint32_t mask) = 0;
};

}  // namespace quillvane
