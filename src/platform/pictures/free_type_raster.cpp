#include "platform/pictures/free_type_raster.h"

#include <ft2build.h>

#include <algorithm>
#include FT_FREETYPE_H
#include <utility>

#include "platform/utf8.h"

namespace quillvane {

namespace {

// FreeType counts in 64ths of a pixel.
int rounded(FT_Pos value) { return static_cast<int>((value + 32) >> 6); }

struct CloseFace {
  void operator()(FT_Face face) const { FT_Done_Face(face); }
};
using FaceOwner = std::unique_ptr<FT_FaceRec, CloseFace>;

FaceOwner open_face(FT_Library library, const std::string& file) {
  FT_Face face = nullptr;
  if (FT_New_Face(library, file.c_str(), 0, &face) != 0) return nullptr;
  return FaceOwner(face);
}

// Calls `take` with each letter's glyph and where it begins; answers where the next would.
template <typename Take>
int walk(FT_Face face, std::string_view text, FT_Int32 flags, Take take) {
  FT_Pos place = 0;
  FT_UInt before = 0;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint letter = decode_utf8(text, at);
    at += letter.length;
    const FT_UInt glyph = FT_Get_Char_Index(face, letter.valid ? letter.value : U'\uFFFD');
    FT_Vector closer = {};
    if (before != 0 && FT_Get_Kerning(face, before, glyph, FT_KERNING_DEFAULT, &closer) == 0) {
      place += closer.x;
    }
    before = glyph;
    if (FT_Load_Glyph(face, glyph, flags) != 0) continue;
    take(*face->glyph, rounded(place));
    place += face->glyph->advance.x;
  }
  return rounded(place);
}

void add_glyph(Coverage& coverage, const FT_GlyphSlotRec& glyph, int left, int baseline) {
  const FT_Bitmap& bitmap = glyph.bitmap;
  for (unsigned row = 0; row < bitmap.rows; ++row) {
    const int y = baseline - glyph.bitmap_top + static_cast<int>(row);
    if (y < 0 || y >= coverage.height) continue;
    for (unsigned column = 0; column < bitmap.width; ++column) {
      const int x = left + glyph.bitmap_left + static_cast<int>(column);
      if (x < 0 || x >= coverage.width) continue;
      auto& value = coverage.values[static_cast<std::size_t>(y * coverage.width + x)];
      const auto at = static_cast<std::ptrdiff_t>(row) * bitmap.pitch;
      value = std::max(value, bitmap.buffer[at + static_cast<std::ptrdiff_t>(column)]);
    }
  }
}

}  // namespace

const std::vector<FontFiles>& usual_fonts() {
  static const auto* fonts = new std::vector<FontFiles>([] {
    constexpr std::pair<const char*, const char*> kFonts[] = {
        {"truetype/dejavu/DejaVuSans.ttf", "truetype/dejavu/DejaVuSans-Bold.ttf"},
        {"TTF/DejaVuSans.ttf", "TTF/DejaVuSans-Bold.ttf"},
        {"dejavu-sans-fonts/DejaVuSans.ttf", "dejavu-sans-fonts/DejaVuSans-Bold.ttf"},
        {"truetype/liberation2/LiberationSans-Regular.ttf",
         "truetype/liberation2/LiberationSans-Bold.ttf"},
        {"truetype/liberation/LiberationSans-Regular.ttf",
         "truetype/liberation/LiberationSans-Bold.ttf"},
        {"truetype/noto/NotoSans-Regular.ttf", "truetype/noto/NotoSans-Bold.ttf"},
        {"truetype/freefont/FreeSans.ttf", "truetype/freefont/FreeSansBold.ttf"},
    };
    std::vector<FontFiles> files;
    for (const auto& [regular, bold] : kFonts) {
      const std::string folder = "/usr/share/fonts/";
      files.push_back({folder + regular, folder + bold});
    }
    return files;
  }());
  return *fonts;
}

struct FreeTypeRaster::Faces {
  explicit Faces(const std::vector<FontFiles>& fonts) {
    if (FT_Init_FreeType(&library) != 0) return;
    for (const FontFiles& font : fonts) {
      regular = open_face(library, font.regular);
      if (regular == nullptr) continue;
      bold = open_face(library, font.bold);
      return;
    }
  }
  ~Faces() {
    regular.reset();
    bold.reset();
    if (library != nullptr) FT_Done_FreeType(library);
  }
  Faces(const Faces&) = delete;
  Faces& operator=(const Faces&) = delete;

  // Ready for that style; null without a font.
  [[nodiscard]] FT_Face face(const FontStyle& font) const {
    FT_Face face = font.bold && bold != nullptr ? bold.get() : regular.get();
    if (face == nullptr) return nullptr;
    FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(std::max(1, font.pixels)));
    constexpr FT_Fixed kOne = 0x10000;
    FT_Matrix slant = {kOne, font.italic ? kOne / 5 : 0, 0, kOne};
    FT_Set_Transform(face, &slant, nullptr);
    return face;
  }

  FT_Library library = nullptr;
  FaceOwner regular;
  FaceOwner bold;
};

FreeTypeRaster::FreeTypeRaster(std::vector<FontFiles> fonts) : fonts_(std::move(fonts)) {}
FreeTypeRaster::~FreeTypeRaster() = default;

FreeTypeRaster::Faces& FreeTypeRaster::faces() {
  if (faces_ == nullptr) faces_ = std::make_unique<Faces>(fonts_);
  return *faces_;
}

std::optional<std::string> FreeTypeRaster::problem() {
  if (faces().regular != nullptr) return std::nullopt;
  return "fonts: none is there to write captions with (DejaVu Sans serves: Debian's "
         "fonts-dejavu-core)";
}

LineMetrics FreeTypeRaster::metrics(const FontStyle& font) {
  const FT_Face face = faces().face(font);
  if (face == nullptr) return {};
  const FT_Size_Metrics& size = face->size->metrics;
  const int baseline = rounded(size.ascender);
  return {baseline - rounded(size.descender), baseline};
}

int FreeTypeRaster::width(std::string_view text, const FontStyle& font) {
  const FT_Face face = faces().face(font);
  if (face == nullptr) return 0;
  return walk(face, text, FT_LOAD_DEFAULT, [](const FT_GlyphSlotRec& /*glyph*/, int /*at*/) {});
}

Coverage FreeTypeRaster::draw(std::string_view text, const FontStyle& font) {
  const LineMetrics line = metrics(font);
  Coverage coverage{width(text, font), line.height, {}};
  coverage.values.resize(static_cast<std::size_t>(coverage.width * coverage.height));
  const FT_Face face = faces().face(font);
  if (face == nullptr) return coverage;
  walk(face, text, FT_LOAD_RENDER, [&](const FT_GlyphSlotRec& glyph, int left) {
    add_glyph(coverage, glyph, left, line.baseline);
  });
  return coverage;
}

}  // namespace quillvane
