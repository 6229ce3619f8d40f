// Text and picture files as this system has them.
#pragma once

#include "platform/picture_tools.h"

namespace quillvane {

// Those of the process; they last as long as it does.
[[nodiscard]] PictureTools& picture_tools();

}  // namespace quillvane
