#include "bench/make_user_data.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

namespace quillvane::bench {

namespace {

constexpr const char* kProfiles[] = {"/Default", "/Profile 1"};
constexpr std::uint32_t kProfileCount = 2;

// Files of one folder, or of numbered folders of `per_folder` files each, in which "#" is the
// folder's number. A "#" in the name is the file's, in hexadecimal digits.
struct Stock {
  const char* folder;
  const char* name;
  std::uint32_t thousandths;  // of all files; 0 for one file
  std::uint32_t per_folder;   // 0: all in one
  // By how many rows of a list one file is found, in a scan of both profiles.
  std::uint32_t chrome;
  std::uint32_t yandex;
};

// Below each profile. What is left out of the lists is the most, as in a real one.
constexpr Stock kOfProfile[] = {
    {"/Cache/Cache_Data", "f_#", 110, 0, 1, 1},
    {"/Code Cache/js", "#_0", 80, 0, 0, 0},
    {"/Code Cache/wasm", "#_0", 10, 0, 0, 0},
    {"/Service Worker/CacheStorage/a7#/4f1d2c5e-90b1", "#_0", 60, 40, 1, 1},
    {"/Service Worker/ScriptCache", "#_1", 15, 0, 1, 1},
    {"/IndexedDB/https_www.site#.example_0.indexeddb.leveldb", "#.ldb", 40, 8, 0, 0},
    {"/Extensions/aapocclcgogkmnckokdopfmhonfm#/2.14_0/assets", "#.js", 60, 25, 0, 0},
    {"/Local Storage/leveldb", "#.ldb", 5, 0, 0, 0},
    {"/Session Storage", "#.log", 2, 0, 0, 0},
    {"/Storage/ext/nmmhkkegccagdldgiimedpiccmgm#/def/GPUCache", "data_#", 6, 5, 1, 1},
    {"/Storage/ext/nmmhkkegccagdldgiimedpiccmgm#/def/Local Storage", "#.ldb", 4, 5, 0, 1},
    {"/File System/0#/t/00", "0000#", 10, 20, 1, 0},
    {"/GPUCache", "data_#", 2, 0, 1, 1},
    {"/JumpListIconsTopSites", "#.tmp", 1, 0, 1, 2},
    {"/JumpListIconsRecentClosed", "#.tmp", 1, 0, 1, 2},
    {"/Sync Data/LevelDB", "#.ldb", 2, 0, 0, 0},
    {"", "History", 0, 0, 0, 1},
    {"", "History-journal", 0, 0, 2, 2},
    {"", "History Provider Cache", 0, 0, 0, 1},
    {"", "Top Sites", 0, 0, 0, 1},
    {"", "Visited Links", 0, 0, 0, 1},
    {"", "Network Action Predictor", 0, 0, 0, 1},
    {"", "Cookies-journal", 0, 0, 2, 2},
    {"", "Bookmarks", 0, 0, 0, 0},
    {"", "Preferences", 0, 0, 0, 0},
};

// Below the folder of all profiles.
constexpr Stock kOfAll[] = {
    {"/ShaderCache/GPUCache", "data_#", 2, 0, 2, 2},
    {"/PnaclTranslationCache", "data_#", 2, 0, 2, 0},
    {"/Subresource Filter/Unindexed Rules/9.#", "rules_#", 4, 4, 0, 0},
};

// What fills up to the wanted number.
constexpr Stock kRest = {"/component_crx_cache", "#", 0, 0, 0, 0};

std::uint32_t count_of(const Stock& stock, std::uint32_t files) {
  return stock.thousandths == 0 ? 1 : files / 1000 * stock.thousandths;
}

bool report(const std::string& path) {
  std::fprintf(stderr, "%s: %s\n", path.c_str(), std::strerror(errno));
  return false;
}

// The name with its "#" replaced: sixteen digits that look like a hash and differ.
std::string numbered(const std::string& name, std::uint32_t number) {
  const std::size_t mark = name.find('#');
  if (mark == std::string::npos) return name;
  char digits[17];
  std::snprintf(digits, sizeof digits, "%08x%08x", number * 2654435761U, number);
  return std::string(name).replace(mark, 1, digits);
}

bool make_file(const std::string& path, std::uint32_t bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (file < 0) return report(path);
  const bool sized = ftruncate(file, static_cast<off_t>(bytes)) == 0;
  close(file);
  return sized || report(path);
}

bool make_stock(const std::string& root, const Stock& stock, std::uint32_t count) {
  std::string folder;
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint32_t place = stock.per_folder == 0 ? 0 : i / stock.per_folder;
    if (i == 0 || (stock.per_folder != 0 && i % stock.per_folder == 0)) {
      folder = root + numbered(stock.folder, place);
      std::error_code failed;
      std::filesystem::create_directories(folder, failed);
      if (failed) return report(folder);
    }
    if (!make_file(folder + "/" + numbered(stock.name, i), i * 37 % 65536)) return false;
  }
  return true;
}

bool make_contents(const std::string& folder, std::uint32_t files) {
  std::uint32_t made = 0;
  const auto make = [&](const std::string& root, const Stock& stock, std::uint32_t count) {
    made += count;
    return make_stock(root, stock, count);
  };
  for (const char* profile : kProfiles) {
    for (const Stock& stock : kOfProfile) {
      if (!make(folder + profile, stock, count_of(stock, files))) return false;
    }
  }
  for (const Stock& stock : kOfAll) {
    if (!make(folder, stock, count_of(stock, files))) return false;
  }
  return made <= files && make(folder, kRest, files - made);
}

}  // namespace

bool make_user_data(const std::string& folder, std::uint32_t files) {
  const std::string mark = folder + ".made";
  std::string found;
  if (std::getline(std::ifstream(mark), found) && found == std::to_string(files)) return true;
  std::error_code failed;
  if (!std::filesystem::create_directories(folder, failed) || failed) {
    std::fprintf(stderr, "%s: is there already, of another size or half made\n", folder.c_str());
    return false;
  }
  if (!make_contents(folder, files)) return false;
  std::ofstream(mark) << files << "\n";
  return true;
}

Finds finds_in_user_data(std::uint32_t files) {
  Finds finds;
  const auto add = [&](const Stock& stock, std::uint64_t folders) {
    const std::uint64_t count = folders * count_of(stock, files);
    finds.by_chrome += count * stock.chrome;
    finds.by_yandex += count * stock.yandex;
  };
  for (const Stock& stock : kOfProfile) add(stock, kProfileCount);
  for (const Stock& stock : kOfAll) add(stock, 1);
  return finds;
}

}  // namespace quillvane::bench
