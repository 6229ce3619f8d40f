#include "controls/bar_pictures.h"

#include <algorithm>

#include "controls/shades.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kOpaque = 0xFF000000U;
constexpr int kBlockHeight = 16;
constexpr int kBlockWidth = kBarBlock - 2;  // the rest is the gap

struct Look {
  std::string_view name;
  Color color;
  bool metallic;
};

constexpr Look kLooks[kBarLooks] = {
    {"master", 0x43A02E, false}, {"blue", 0xD26E26, false},  {"orangemet", 0x1C7EE8, true},
    {"greymet", 0x8A8480, true}, {"grmet", 0x3C9646, true},  {"goldmet", 0x2CA4D0, true},
    {"bluemet", 0xBE783C, true}, {"redmet", 0x3034C8, true},
};

const Look& look_of(int number) { return kLooks[number >= 0 && number < kBarLooks ? number : 0]; }

// The plain ones shine at their upper edge; metal has a hard horizon.
Color shade(const Look& look, int row) {
  constexpr int kHalf = kBlockHeight / 2;
  if (!look.metallic) return lightened(look.color, 120 - 120 * row / (kBlockHeight - 1));
  if (row < kHalf) return lightened(look.color, 150 - 12 * row);
  return shifted(look.color, -28 + 7 * (row - kHalf));
}

}  // namespace

std::string_view block_pictures_name(int look) { return look_of(look).name; }

BlockPictures block_pictures(int look) {
  constexpr int kGapPaler = 170;
  BlockPictures pictures{Image(kBarBlock, kBlockHeight), Image(1, kBlockHeight)};
  for (int y = 0; y < kBlockHeight; ++y) {
    const Color color = shade(look_of(look), y);
    pictures.fill.at(0, y) = kOpaque | color;
    for (int x = 0; x < kBarBlock; ++x) {
      const Color here = x < kBlockWidth ? color : lightened(color, kGapPaler);
      pictures.block.at(x, y) = kOpaque | here;
    }
  }
  return pictures;
}

Image bar_frame(int height) {
  constexpr Color kEdge = 0x9A928C;
  constexpr Color kInner = 0xDAD5D0;
  constexpr int kWidth = 2 * kBarCap + 1;
  Image frame(kWidth, height, kOpaque | kBarBlank);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const int from_side = std::min(std::min(x, kWidth - 1 - x), std::min(y, height - 1 - y));
      if (from_side == 0) frame.at(x, y) = kOpaque | kEdge;
      if (from_side == 1) frame.at(x, y) = kOpaque | kInner;
    }
  }
  // Its corners are round.
  for (const int x : {0, kWidth - 1}) {
    for (const int y : {0, height - 1}) {
      if (height > 2) frame.at(x, y) = kOpaque | kInner;
    }
  }
  return frame;
}

}  // namespace quillvane
