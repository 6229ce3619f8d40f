// All controls in all their states on one sheet.
#pragma once

#include "platform/image.h"
#include "platform/text_raster.h"

namespace quillvane {

[[nodiscard]] Image make_gallery(TextRaster& text);

}  // namespace quillvane
