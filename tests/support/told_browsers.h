// The rows of the Chromium browsers as they are told, written down a second time, apart from the
// tables of the program.
#pragma once

#include <string>
#include <vector>

#include "categories/chromium_browsers.h"

namespace quillvane {

// A row, as the folder of all profiles (R), a profile's (P) or its extensions' (X), with what
// follows, and a pattern.
struct ToldRow {
  char base;
  const char* suffix;
  const char* pattern;
};
using ToldRows = std::vector<ToldRow>;

inline const ToldRows kToldCommonRows = {{'P', "\\Cache", "*.*"},
                                         {'R', "", "*-journal.*"},
                                         {'P', "\\Service Worker", "*.*"},
                                         {'P', "\\JumpListIconsTopSites", "*.tmp"},
                                         {'P', "\\JumpListIconsRecentClosed", "*.tmp"},
                                         {'P', "\\Storage", "*.*"},
                                         {'P', "\\GPUCache", "*.*"},
                                         {'R', "\\ShaderCache\\GPUCache", "*.*"}};

inline ToldRows joined(ToldRows first, const ToldRows& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

struct ToldBrowser {
  int node;
  void (*routine)(JunkPage&);
  const char* key;
  const char* user_data;
  ToldRows rows;
};

inline const std::vector<ToldBrowser>& told_browsers() {
  static const std::vector<ToldBrowser> all = {
      {15,
       googlecache,
       "Software\\Google\\Chrome\\PreferenceMACs",
       "\\AppData\\Local\\Google\\Chrome\\User Data",
       {{'P', "\\Cache", "*.*"},
        {'R', "", "*-journal.*"},
        {'P', "\\file System", "*.*"},
        {'P', "\\Service Worker", "*.*"},
        {'P', "\\GPUCache", "*.*"},
        {'P', "", "*.tmp"},
        {'R', "\\ShaderCache", "*.*"},
        {'R', "\\PnaclTranslationCache", "*.*"},
        {'X', "\\Storage\\ext", "*.*"}}},
      {17, edgecache, "Software\\Microsoft\\Edge\\PreferenceMACs",
       "\\AppData\\Local\\Microsoft\\Edge\\User Data",
       joined(kToldCommonRows,
              {{'P', "\\Extension State", "*.*"}, {'P', "\\Session Storage", "*.*"}})},
      {18, bravecache, "Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
       "\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data", kToldCommonRows},
      {19, vivaldicache, "Software\\vivaldi\\PreferenceMACs",
       "\\AppData\\Local\\vivaldi\\User Data",
       joined({{'P', "", "Visited Links.*"},
               {'P', "", "Top Sites.*"},
               {'P', "", "Network Action Predictor.*"},
               {'P', "", "History.*"}},
              kToldCommonRows)},
      {20, Torchcache, "Software\\Torch\\PreferenceMACs", "\\AppData\\Local\\Torch\\User Data",
       joined({{'P', "", "*.tmp"}}, kToldCommonRows)},
      {21, maxcache, "Software\\Maxthon\\PreferenceMACs",
       "\\AppData\\Local\\Maxthon\\Application\\User Data",
       joined({{'P', "", "*.tmp"}}, kToldCommonRows)},
      {22, ydxcache, "Software\\Yandex\\YandexBrowser\\PreferenceMACs",
       "\\AppData\\Local\\Yandex\\YandexBrowser\\User Data",
       joined({{'P', "", "*.tmp"},
               {'P', "", "Top Sites.*"},
               {'P', "", "Network Action Predictor.*"},
               {'P', "", "History.*"},
               {'P', "", "History Provider Cache.*"},
               {'P', "", "Visited Links.*"}},
              kToldCommonRows)},
  };
  return all;
}

// The folder of all profiles.
inline std::string place_of(const ToldBrowser& browser) {
  return "C:\\Users\\User" + std::string(browser.user_data);
}

}  // namespace quillvane
