#include "shortcuts/rebuilt_link.h"

#include "shortcuts/shell_link.h"

namespace quillvane {

namespace {

constexpr int kShow = 5;  // SW_SHOW

}  // namespace

void rebuild_link(const Platform& platform, const std::string& path, LinkContent content) {
  const auto attributes = platform.files.attributes(path);
  if (attributes && (*attributes & kAttributeReadOnly) != 0) return;
  content.icon_index = 0;
  content.show_command = kShow;
  // The old one is replaced at one stroke, so that a failure leaves it.
  if (!WriteShortcut(platform.links, path, content)) return;
  // The new one is an ordinary file, be the old one hidden or not.
  if (attributes) static_cast<void>(platform.files.set_attributes(path, kAttributeArchive));
}

}  // namespace quillvane
