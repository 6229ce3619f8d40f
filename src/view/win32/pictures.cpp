#include "view/win32/pictures.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <utility>

#include "platform/win32/gdiplus_api.h"

namespace quillvane {

namespace {

constexpr int kSizes[] = {16, 24, 32, 36, 48};  // in which a picture may have been drawn
constexpr int kMostPictures = 99;               // of a list

struct Resource {
  const void* data = nullptr;
  std::size_t bytes = 0;
};

// "title-close" at 16 is TITLE_CLOSE_16.
std::wstring resource_name(std::string_view name, int size) {
  std::wstring result;
  for (const char c : name) {
    const bool is_lower = c >= 'a' && c <= 'z';
    result.push_back(c == '-' ? L'_' : static_cast<wchar_t>(is_lower ? c - 'a' + 'A' : c));
  }
  return result + L"_" + std::to_wstring(size);
}

Resource find_resource(const std::wstring& name) {
  const HRSRC found = FindResourceW(nullptr, name.c_str(), RT_RCDATA);
  if (found == nullptr) return {};
  const HGLOBAL loaded = LoadResource(nullptr, found);
  return {LockResource(loaded), SizeofResource(nullptr, found)};
}

// The smallest that is not smaller than the square, or else the largest.
Resource best_resource(std::string_view name, int size) {
  Resource best;
  for (const int candidate : kSizes) {
    const Resource found = find_resource(resource_name(name, candidate));
    if (found.data == nullptr) continue;
    best = found;
    if (candidate >= size) break;
  }
  return best;
}

using Matrix = Gdiplus::ColorMatrix;

Matrix tint_matrix(COLORREF tint) {
  const auto part = [](BYTE value) { return static_cast<float>(value) / 255.0F; };
  return {{{0, 0, 0, 0, 0},
           {0, 0, 0, 0, 0},
           {0, 0, 0, 0, 0},
           {0, 0, 0, 1, 0},
           {part(GetRValue(tint)), part(GetGValue(tint)), part(GetBValue(tint)), 0, 1}}};
}

Matrix gray_matrix() {
  constexpr float kRed = 0.30F;
  constexpr float kGreen = 0.59F;
  constexpr float kBlue = 0.11F;
  constexpr float kPale = 0.45F;
  return {{{kRed, kRed, kRed, 0, 0},
           {kGreen, kGreen, kGreen, 0, 0},
           {kBlue, kBlue, kBlue, 0, 0},
           {0, 0, 0, kPale, 0},
           {0, 0, 0, 0, 1}}};
}

void draw_scaled(Gdiplus::Graphics& graphics, Gdiplus::Bitmap& picture, int left, int top, int size,
                 const Matrix* matrix) {
  Gdiplus::ImageAttributes attributes;
  if (matrix != nullptr) attributes.SetColorMatrix(matrix);
  graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  graphics.DrawImage(&picture, Gdiplus::Rect(left, top, size, size), 0, 0,
                     static_cast<INT>(picture.GetWidth()), static_cast<INT>(picture.GetHeight()),
                     Gdiplus::UnitPixel, &attributes);
}

}  // namespace

PictureLibrary::PictureLibrary() {
  const Gdiplus::GdiplusStartupInput input;
  Gdiplus::GdiplusStartup(&token_, &input, nullptr);
}

PictureLibrary::~PictureLibrary() { Gdiplus::GdiplusShutdown(token_); }

void ReleaseStream::operator()(IStream* stream) const { stream->Release(); }

StreamOwner stream_of(const void* data, std::size_t bytes) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (memory == nullptr) return nullptr;
  std::memcpy(GlobalLock(memory), data, bytes);
  GlobalUnlock(memory);
  IStream* stream = nullptr;
  if (CreateStreamOnHGlobal(memory, /*fDeleteOnRelease=*/TRUE, &stream) != S_OK) {
    GlobalFree(memory);
    return nullptr;
  }
  return StreamOwner(stream);
}

Pictures::Pictures() = default;
Pictures::~Pictures() = default;

Gdiplus::Bitmap* Pictures::find(std::string_view name, int size) {
  const std::string key = std::string(name) + "/" + std::to_string(size);
  const auto known = loaded_.find(key);
  if (known != loaded_.end()) return known->second.get();
  std::unique_ptr<Gdiplus::Bitmap> picture;
  const Resource resource = best_resource(name, size);
  if (resource.data != nullptr) {
    if (const StreamOwner stream = stream_of(resource.data, resource.bytes)) {
      picture = std::make_unique<Gdiplus::Bitmap>(stream.get());
      if (picture->GetLastStatus() != Gdiplus::Ok) picture = nullptr;
    }
  }
  return (loaded_[key] = std::move(picture)).get();
}

void Pictures::draw(HDC dc, int left, int top, int size, std::string_view name, COLORREF tint) {
  Gdiplus::Bitmap* picture = find(name, size);
  if (picture == nullptr) return;
  Gdiplus::Graphics graphics(dc);
  const Matrix matrix = tint_matrix(tint);
  draw_scaled(graphics, *picture, left, top, size, tint == CLR_NONE ? nullptr : &matrix);
}

ImageListOwner Pictures::list(std::string_view name, int size, COLORREF look, int beside,
                              int above) {
  if (find(name, size) != nullptr) return list_of({std::string(name)}, size, look, beside, above);
  std::vector<std::string> names;
  for (int number = 1; number <= kMostPictures; ++number) {
    std::array<char, 4> digits{};
    std::snprintf(digits.data(), digits.size(), "-%02d", number % 100);
    names.push_back(std::string(name) + digits.data());
    if (find(names.back(), size) != nullptr) continue;
    names.pop_back();
    break;
  }
  return list_of(names, size, look, beside, above);
}

ImageListOwner Pictures::list_of(const std::vector<std::string>& names, int size, COLORREF look,
                                 int beside, int above) {
  const int width = size + 2 * beside;
  const int height = size + 2 * above;
  const auto room = static_cast<int>(names.size());
  ImageListOwner list(ImageList_Create(width, height, ILC_COLOR32 | ILC_MASK, room, 1));
  const Matrix matrix = look == kPale ? gray_matrix() : tint_matrix(look);
  for (const std::string& name : names) {
    Gdiplus::Bitmap space(width, height, PixelFormat32bppARGB);
    // One that is missing leaves its space, so that the others keep their numbers.
    if (Gdiplus::Bitmap* picture = find(name, size)) {
      Gdiplus::Graphics graphics(&space);
      draw_scaled(graphics, *picture, beside, above, size, look == CLR_NONE ? nullptr : &matrix);
    }
    HICON icon = nullptr;
    if (space.GetHICON(&icon) != Gdiplus::Ok) break;
    ImageList_ReplaceIcon(list.get(), -1, IconOwner(icon).get());
  }
  return list;
}

}  // namespace quillvane
