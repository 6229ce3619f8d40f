// A browser's folder with two profiles, made up by a seed on the host, where names that differ by
// case alone can stand together.
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace quillvane {

class SeededRandom {
 public:
  explicit SeededRandom(std::uint32_t seed) : engine_(seed) {}

  std::size_t below(std::size_t bound) { return engine_() % bound; }
  bool one_in(std::size_t count) { return below(count) == 0; }
  template <typename Choices>
  auto one_of(const Choices& choices) {
    return choices[below(std::size(choices))];
  }

 private:
  std::mt19937 engine_;
};

inline constexpr const char* kFoldersOfBrowsers[] = {
    "Cache",
    "CACHE",
    "Service Worker",
    "service worker",
    "GPUCache",
    "gpucache",
    "Storage",
    "ext",
    "def",
    "DEF",
    "JumpListIconsTopSites",
    "JumpListIconsRecentClosed",
    "ShaderCache",
    "shadercache",
    "PnaclTranslationCache",
    "File System",
    "file System",
    "Extension State",
    "Session Storage",
    "deep",
    "\xC3\x84rger",
    "\xC3\xA4rger",
    "Desktop.ini files",
};

inline constexpr const char* kFilesOfBrowsers[] = {
    "a.tmp",
    "A.TMP",
    "b.tmpx",
    "Cookies-journal",
    "cookies-JOURNAL.old",
    "History",
    "history.db",
    "History-journal",
    "Top Sites",
    "TOP SITES.x",
    "data_0",
    "index",
    "Visited Links",
    "desktop.ini",
    "Network Action Predictor",
    "GPUCACHE",
    "H\xC4\xB1story",
    "History Provider Cache",
    "x.a-journal",
};

// What a tree of a seed has beside folders and files.
struct Oddities {
  bool links_outside = false;  // to places of the drive that lie elsewhere
  bool links_inside = false;   // these may lead back
  bool denied = false;
  bool long_paths = false;
};

// The tree may be moved: its links within are relative.
class RandomTree {
 public:
  RandomTree(std::uint32_t seed, const Oddities& oddities, const std::filesystem::path& folder)
      : random_(seed), oddities_(oddities), folder_(folder) {
    fill(folder_, 4, 1);
    for (const char* profile : {"Default", "Profile 1"}) {
      fill(folder_ / profile, 12, 2);
      for (const char* extension : {"one", "Two"}) {
        fill(folder_ / profile / "Storage/ext" / extension / "def" / "GPUCache", 2, 1);
      }
    }
  }

  void add_links(const std::filesystem::path& outside) {
    for (int number = 0; number < 4; ++number) {
      const std::filesystem::path place = random_.one_of(places_);
      if (oddities_.links_outside) link(place, outside);
    }
    for (int number = 0; number < 2; ++number) {
      const std::filesystem::path place = random_.one_of(places_);
      if (oddities_.links_inside)
        link(place, std::filesystem::relative(random_.one_of(places_), place));
    }
  }

  // The way to a folder of the tree that the seed chooses, as the machine writes it.
  std::string any_folder() {
    std::string below = std::filesystem::relative(random_.one_of(places_), folder_).string();
    std::replace(below.begin(), below.end(), '/', '\\');
    return below;
  }

 private:
  // `subfolders` is the most of them, `depth` how deep they go.
  void fill(const std::filesystem::path& folder, std::size_t subfolders, int depth) {
    std::filesystem::create_directories(folder);
    places_.push_back(folder);
    for (std::size_t count = random_.below(5); count > 0; --count) {
      const std::filesystem::path file = folder / random_.one_of(kFilesOfBrowsers);
      if (!std::filesystem::exists(file))
        std::ofstream(file) << std::string(random_.below(3000), 'x');
    }
    if (depth == 0) return;
    for (std::size_t count = random_.below(subfolders + 1); count > 0; --count) {
      const std::filesystem::path next = folder / random_.one_of(kFoldersOfBrowsers);
      if (!std::filesystem::exists(next)) fill(next, 2, depth - 1);
    }
    if (oddities_.long_paths && random_.one_in(3)) {
      const std::filesystem::path next = folder / std::string(100 + random_.below(90), 'l');
      if (!std::filesystem::exists(next)) fill(next, 2, depth - 1);
    }
  }

  void link(const std::filesystem::path& place, const std::filesystem::path& target) {
    const std::filesystem::path name = place / ("link" + std::to_string(random_.below(3)));
    if (!std::filesystem::exists(std::filesystem::symlink_status(name)))
      std::filesystem::create_directory_symlink(target, name);
  }

  SeededRandom random_;
  Oddities oddities_;
  std::filesystem::path folder_;
  std::vector<std::filesystem::path> places_;
};

}  // namespace quillvane
