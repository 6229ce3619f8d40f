#include "app/picture_tools.h"
#include "platform/pictures/free_type_raster.h"
#include "platform/pictures/png_file.h"

namespace quillvane {

PictureTools& picture_tools() {
  static FreeTypeRaster text;
  static PngFile files;
  static PictureTools tools{text, files};
  return tools;
}

}  // namespace quillvane
