// The catalogue of categories: the fixed nodes of the tree Tv1.
//
// The number of a node is part of the data: it stands in every row of the hit list, and every
// routine that filters, rescans or deletes compares it.
#pragma once

#include <string_view>

namespace quillvane {

class Form7;

inline constexpr int kWindowsNode = 1;
inline constexpr int kFirstWindowsLeaf = 2;
inline constexpr int kLastWindowsLeaf = 11;
inline constexpr int kBrowsersNode = 12;
inline constexpr int kFirstBrowserLeaf = 13;
inline constexpr int kLastBrowserLeaf = 23;
inline constexpr int kCustomNode = 24;
inline constexpr int kFirstCustomLeaf = 25;

inline constexpr int kGroupImage = 1;
inline constexpr int kCustomImage = 22;

struct CatalogueNode {
  std::string_view key;
  std::string_view parent;  // empty for a group
  std::string_view caption;
  int image;  // of ImageList4, from 1
};

// In the order of the tree; the first has Index 1.
inline constexpr CatalogueNode kCatalogue[] = {
    {"w", "", "Windows", kGroupImage},
    {"st", "w", "System Temporary", 1},
    {"ut", "w", "User Temporary", 2},
    {"tc", "w", "Thumbnail cache", 3},
    {"mdf", "w", "Memory Dump Files", 4},
    {"erf", "w", "Error Report Files", 5},
    {"slf", "w", "Log Files", 6},
    {"rb", "w", "Recycle Bin", 7},
    {"dp", "w", "Downloaded Programs", 8},
    {"wu0", "w", "Windows Updates & installer", 9},
    {"wh", "w", "Windows History", 10},
    {"b", "", "Browsers", kGroupImage},
    {"ie", "b", "Internet Explorer", 11},
    {"mfc", "b", "Mozila Firefox Cache", 12},
    {"gcc", "b", "Google Chrome Cache", 13},
    {"oc", "b", "Opera Cache", 14},
    {"me", "b", "Microsoft Edge", 15},
    {"brv", "b", "Brave Browser", 16},
    {"viv", "b", "Vivaldi Browser", 17},
    {"tor", "b", "Torch Browser", 18},
    {"max", "b", "Maxthon Browser", 19},
    {"ydx", "b", "Yandex Browser", 20},
    {"uc", "b", "UC Browser", 21},
    {"f", "", "Custom Files and Folders", kGroupImage},
};

}  // namespace quillvane
