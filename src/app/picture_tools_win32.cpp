#include "app/picture_tools.h"
#include "platform/win32/win32_picture_file.h"
#include "platform/win32/win32_text_raster.h"

namespace quillvane {

PictureTools& picture_tools() {
  static Win32TextRaster text;
  static Win32PictureFile files;
  static PictureTools tools{text, files};
  return tools;
}

}  // namespace quillvane
