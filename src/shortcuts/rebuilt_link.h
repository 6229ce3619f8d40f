// A link that is made anew in the place of a broken one.
#pragma once

#include <string>

#include "platform/links.h"
#include "platform/platform.h"

namespace quillvane {

// Makes `path` a link of this content, shown as a program shows itself. What the old one held is
// lost, its attributes too; where it cannot be removed (it is read-only, or in use), or the new one
// cannot be written, it stays as it is.
void rebuild_link(const Platform& platform, const std::string& path, LinkContent content);

}  // namespace quillvane
