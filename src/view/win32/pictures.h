// The program's pictures: PNG files among its resources, drawn at the size that a screen asks for.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "view/win32/gdi_objects.h"

namespace Gdiplus {
class Bitmap;
}

namespace quillvane {

// Keeps the drawing library ready; it must outlive all pictures.
class PictureLibrary {
 public:
  PictureLibrary();
  ~PictureLibrary();
  PictureLibrary(const PictureLibrary&) = delete;
  PictureLibrary& operator=(const PictureLibrary&) = delete;

 private:
  ULONG_PTR token_ = 0;
};

class Pictures {
 public:
  Pictures();
  ~Pictures();
  Pictures(const Pictures&) = delete;
  Pictures& operator=(const Pictures&) = delete;

  // Draws a picture ("title-close") into a square of `size` pixels; a picture that is not there
  // leaves it as it was. `tint` recolours it, keeping its shape; CLR_NONE keeps its colours.
  void draw(HDC dc, int left, int top, int size, std::string_view name, COLORREF tint);

  // Pictures "NAME-01", "NAME-02", ... as far as there are any; where a picture has that name
  // itself, it alone. `look`: kPale is without colour,
  // for what is disabled; any other look is a tint as above. Each stands in a space of its own,
  // `beside` pixels wider on its left and right and `above` higher, so that rows have room.
  [[nodiscard]] ImageListOwner list(std::string_view name, int size, COLORREF look = CLR_NONE,
                                    int beside = 0, int above = 0);
  // Pictures of these names, in their order.
  [[nodiscard]] ImageListOwner list_of(const std::vector<std::string>& names, int size,
                                       COLORREF look = CLR_NONE, int beside = 0, int above = 0);
  static constexpr COLORREF kPale = CLR_NONE - 1;

 private:
  // The resource that is best drawn at that size; null when there is none.
  Gdiplus::Bitmap* find(std::string_view name, int size);

  std::map<std::string, std::unique_ptr<Gdiplus::Bitmap>> loaded_;  // by resource
};

// Reads a stream over a copy of the bytes; for the drawing library.
struct ReleaseStream {
  void operator()(IStream* stream) const;
};
using StreamOwner = std::unique_ptr<IStream, ReleaseStream>;
[[nodiscard]] StreamOwner stream_of(const void* data, std::size_t bytes);

}  // namespace quillvane
