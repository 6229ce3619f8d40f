#include "lang/text_width.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "platform/utf8.h"

namespace quillvane {

namespace {

// Hundredths of a pixel.
constexpr int kWhole = 100;
constexpr int kUsual = 670;

struct Letters {
  std::string_view letters;
  int width;
};

constexpr Letters kAscii[] = {
    {"ijl'|", 290},    {" .,:;!()[]", 330},       {"frt-\"/\\", 420},
    {"cksvxyz", 570},  {"aeg?_0123456789$", 640}, {"bdhnopqu", 700},
    {"EFLSTZIJ", 640}, {"ABCKPRVXY", 740},        {"DGHNOQU&", 850},
    {"+<=>^~", 820},   {"mMW%@w", 1030},
};

struct Block {
  char32_t first;
  char32_t last;
  int width;
};

constexpr Block kBlocks[] = {
    {0x0300, 0x036F, 0},                               // marks above and below
    {0x0400, 0x042F, 800},                             // Cyrillic, upper case
    {0x0430, 0x045F, 680},                             // and lower case
    {0x0590, 0x05FF, 620},                             // Hebrew
    {0x064B, 0x065F, 0},                               // Arabic marks
    {0x0600, 0x06FF, 560},                             // Arabic, joined
    {0x1100, 0x11FF, 1200},                            // Korean
    {0x2E80, 0xD7A3, 1200},                            // Chinese, Japanese, Korean
    {0xF900, 0xFAFF, 1200},   {0xFF00, 0xFF60, 1200},  // wide forms
    {0xFF61, 0xFF9F, 600},                             // narrow kana
    {0x20000, 0x3FFFF, 1200},
};

int ascii_width(char letter) {
  const auto* found = std::find_if(
      std::begin(kAscii), std::end(kAscii),
      [letter](const Letters& row) { return row.letters.find(letter) != std::string_view::npos; });
  return found == std::end(kAscii) ? kUsual : found->width;
}

int width_of(char32_t letter) {
  if (letter < 0x80) return ascii_width(static_cast<char>(letter));
  const auto* found = std::find_if(
      std::begin(kBlocks), std::end(kBlocks),
      [letter](const Block& block) { return letter >= block.first && letter <= block.last; });
  return found == std::end(kBlocks) ? kUsual : found->width;
}

}  // namespace

int estimated_width(std::string_view text) {
  int width = 0;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint letter = decode_utf8(text, at);
    width += width_of(letter.value);
    at += letter.length;
  }
  return (width + kWhole - 1) / kWhole;
}

}  // namespace quillvane
