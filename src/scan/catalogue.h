// The catalogue of categories: the fixed nodes of the tree Tv1.
//
// The number of a node is part of the data: it stands in every row of the hit list, and every
// routine that filters, rescans or deletes compares it. The routine that scans a category stands in
// categories/routines.cpp, one for each leaf of this table.
#pragma once

#include <string_view>

namespace quillvane {

// The Index of each node. Those of the user's own entries go on from kFirstCustomLeaf.
inline constexpr int kWindowsNode = 1;
inline constexpr int kSystemTempNode = 2;
inline constexpr int kUserTempNode = 3;
inline constexpr int kThumbnailNode = 4;
inline constexpr int kMemoryDumpNode = 5;
inline constexpr int kErrorReportNode = 6;
inline constexpr int kLogFileNode = 7;
inline constexpr int kRecycleBinNode = 8;
inline constexpr int kDownloadedNode = 9;
inline constexpr int kUpdatesNode = 10;
inline constexpr int kHistoryNode = 11;
inline constexpr int kBrowsersNode = 12;
inline constexpr int kInternetExplorerNode = 13;
inline constexpr int kFirefoxNode = 14;
inline constexpr int kChromeNode = 15;
inline constexpr int kOperaNode = 16;
inline constexpr int kEdgeNode = 17;
inline constexpr int kBraveNode = 18;
inline constexpr int kVivaldiNode = 19;
inline constexpr int kTorchNode = 20;
inline constexpr int kMaxthonNode = 21;
inline constexpr int kYandexNode = 22;
inline constexpr int kUcBrowserNode = 23;
inline constexpr int kCustomNode = 24;
inline constexpr int kFirstCustomLeaf = 25;

inline constexpr int kFirstWindowsLeaf = kWindowsNode + 1;
inline constexpr int kLastWindowsLeaf = kBrowsersNode - 1;
inline constexpr int kFirstBrowserLeaf = kBrowsersNode + 1;
inline constexpr int kLastBrowserLeaf = kCustomNode - 1;

inline constexpr int kGroupImage = 1;
inline constexpr int kCustomImage = 22;

struct CatalogueNode {
  int node;  // its Index
  std::string_view key;
  std::string_view parent;  // key of the group; empty for a group
  std::string_view caption;
  int image;  // of ImageList4, from 1
  // The process that holds a browser's files open while it runs, and what the question before its
  // scan calls it; empty: nobody is asked. "launcher.exe" stands for Opera and "browser.exe" for
  // Yandex, by their own names: any process of that name brings the question.
  std::string_view process = {};
  std::string_view spoken_name = {};
};

// In the order of the tree.
inline constexpr CatalogueNode kCatalogue[] = {
    {kWindowsNode, "w", "", "Windows", kGroupImage},
    {kSystemTempNode, "st", "w", "System Temporary", 1},
    {kUserTempNode, "ut", "w", "User Temporary", 2},
    {kThumbnailNode, "tc", "w", "Thumbnail cache", 3},
    {kMemoryDumpNode, "mdf", "w", "Memory Dump Files", 4},
    {kErrorReportNode, "erf", "w", "Error Report Files", 5},
    {kLogFileNode, "slf", "w", "Log Files", 6},
    {kRecycleBinNode, "rb", "w", "Recycle Bin", 7},
    {kDownloadedNode, "dp", "w", "Downloaded Programs", 8},
    {kUpdatesNode, "wu0", "w", "Windows Updates & installer", 9},
    {kHistoryNode, "wh", "w", "Windows History", 10},
    {kBrowsersNode, "b", "", "Browsers", kGroupImage},
    {kInternetExplorerNode, "ie", "b", "Internet Explorer", 11, "iexplore.exe",
     "Internet Explorer"},
    {kFirefoxNode, "mfc", "b", "Mozila Firefox Cache", 12, "firefox.exe", "FireFox"},
    {kChromeNode, "gcc", "b", "Google Chrome Cache", 13, "chrome.exe", "Google chrome"},
    {kOperaNode, "oc", "b", "Opera Cache", 14, "launcher.exe", "Opera browser"},
    {kEdgeNode, "me", "b", "Microsoft Edge", 15, "msedge.exe", "Microsoft Edge browser"},
    {kBraveNode, "brv", "b", "Brave Browser", 16, "brave.exe", "Brave browser"},
    {kVivaldiNode, "viv", "b", "Vivaldi Browser", 17, "vivaldi.exe", "Vivaldi browser"},
    {kTorchNode, "tor", "b", "Torch Browser", 18, "torch.exe", "Torch browser"},
    {kMaxthonNode, "max", "b", "Maxthon Browser", 19, "Maxthon.exe", "Maxthon browser"},
    {kYandexNode, "ydx", "b", "Yandex Browser", 20, "browser.exe", "Yandex browser"},
    {kUcBrowserNode, "uc", "b", "UC Browser", 21},
    {kCustomNode, "f", "", "Custom Files and Folders", kGroupImage},
};

// Requires: a number of the catalogue, from 1 to kCustomNode.
[[nodiscard]] constexpr const CatalogueNode& catalogue_node(int node) {
  return kCatalogue[node - 1];
}

// Each row stands where its number says, and each leaf below the group that its number lies in.
constexpr bool catalogue_is_in_order() {
  int number = 0;
  std::string_view group;
  for (const CatalogueNode& row : kCatalogue) {
    if (row.node != ++number || row.parent != (row.parent.empty() ? "" : group)) return false;
    if (row.parent.empty()) group = row.key;
  }
  return number == kCustomNode;
}
static_assert(catalogue_is_in_order());
static_assert(kFirstCustomLeaf == kCustomNode + 1);
static_assert(catalogue_node(kWindowsNode).parent.empty());
static_assert(catalogue_node(kBrowsersNode).parent.empty());
static_assert(catalogue_node(kCustomNode).parent.empty());

}  // namespace quillvane
