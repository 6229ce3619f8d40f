// A picture as a bitmap of Windows.
#pragma once

#include <windows.h>

#include <memory>

#include "platform/image.h"
#include "view/win32/gdi_objects.h"

namespace quillvane {

// Selected into a device context of its own as long as this lives.
class PictureBitmap {
 public:
  // What the picture's alpha is taken for.
  enum class Alpha {
    kOpaque,      // nothing: all is seen
    kStraight,    // Windows wants the colours multiplied by it, which is done here
    kMultiplied,  // that has been done
  };

  PictureBitmap(const Image& picture, Alpha alpha);
  ~PictureBitmap();
  PictureBitmap(const PictureBitmap&) = delete;
  PictureBitmap& operator=(const PictureBitmap&) = delete;

  [[nodiscard]] HDC dc() const { return dc_.get(); }

 private:
  struct DeleteDeviceContext {
    void operator()(HDC dc) const { DeleteDC(dc); }
  };

  std::unique_ptr<std::remove_pointer_t<HDC>, DeleteDeviceContext> dc_;
  BitmapOwner bitmap_;
  HGDIOBJ before_ = nullptr;
};

}  // namespace quillvane
