// What making a picture takes from the system.
#pragma once

#include "platform/picture_file.h"
#include "platform/text_raster.h"

namespace quillvane {

struct PictureTools {
  TextRaster& text;
  PictureFile& files;
};

}  // namespace quillvane
