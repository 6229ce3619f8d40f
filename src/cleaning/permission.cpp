#include "cleaning/permission.h"

#include "platform/unicode_case.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::string_view kRecycleBin = "$recycle.bin";

}  // namespace

bool in_recycle_bin(std::string_view path) {
  // Most paths hold no "$" at all, and need no folding.
  return path.find('$') != std::string_view::npos &&
         lower_case(path).find(kRecycleBin) != std::string::npos;
}

void changepermission(const Platform& platform, std::string& path) {
  if (!in_recycle_bin(path)) return;
  path = std::string(Trim(path));
  platform.security.set_file_access(platform.environment.get("username"), path, kGenericAll);
}

}  // namespace quillvane
