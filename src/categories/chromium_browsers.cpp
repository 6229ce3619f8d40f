#include "categories/chromium_browsers.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "categories/category_frame.h"
#include "categories/place.h"
#include "scan/catalogue.h"
#include "scan/junk_page.h"
#include "scan/kept_listing.h"
#include "scan/registry_keys.h"

namespace quillvane {

namespace {

enum class Below {
  kProfile,     // the profile's folder
  kUserData,    // the folder of all profiles; such a row runs once for each profile, as is meant
  kExtensions,  // "\def\GPUCache" of each direct subfolder of the profile's folder
};

struct Row {
  Below below;
  const char* suffix;
  const char* pattern;
};

constexpr Row kCommonRows[] = {
    {Below::kProfile, "\\Cache", "*.*"},
    {Below::kUserData, "", "*-journal.*"},
    {Below::kProfile, "\\Service Worker", "*.*"},
    {Below::kProfile, "\\JumpListIconsTopSites", "*.tmp"},
    {Below::kProfile, "\\JumpListIconsRecentClosed", "*.tmp"},
    {Below::kProfile, "\\Storage", "*.*"},
    {Below::kProfile, "\\GPUCache", "*.*"},
    {Below::kUserData, "\\ShaderCache\\GPUCache", "*.*"},
};

constexpr Row kChromeRows[] = {
    {Below::kProfile, "\\Cache", "*.*"},
    {Below::kUserData, "", "*-journal.*"},
    {Below::kProfile, "\\file System", "*.*"},
    {Below::kProfile, "\\Service Worker", "*.*"},
    {Below::kProfile, "\\GPUCache", "*.*"},
    {Below::kProfile, "", "*.tmp"},
    {Below::kUserData, "\\ShaderCache", "*.*"},
    {Below::kUserData, "\\PnaclTranslationCache", "*.*"},
    {Below::kExtensions, "\\Storage\\ext", "*.*"},
};

constexpr Row kEdgeLastRows[] = {
    {Below::kProfile, "\\Extension State", "*.*"},
    {Below::kProfile, "\\Session Storage", "*.*"},
};

constexpr Row kVivaldiFirstRows[] = {
    {Below::kProfile, "", "Visited Links.*"},
    {Below::kProfile, "", "Top Sites.*"},
    {Below::kProfile, "", "Network Action Predictor.*"},
    {Below::kProfile, "", "History.*"},
};

constexpr Row kTemporaryFilesFirst[] = {{Below::kProfile, "", "*.tmp"}};

constexpr Row kYandexFirstRows[] = {
    {Below::kProfile, "", "*.tmp"},
    {Below::kProfile, "", "Top Sites.*"},
    {Below::kProfile, "", "Network Action Predictor.*"},
    {Below::kProfile, "", "History.*"},
    {Below::kProfile, "", "History Provider Cache.*"},
    {Below::kProfile, "", "Visited Links.*"},
};

struct Browser {
  int node;
  const char* profiles_key;  // under HKCU: one sub-key for each profile
  const char* user_data;     // under env "USERPROFILE"
  std::span<const Row> first_rows;
  std::span<const Row> rows;
  std::span<const Row> last_rows;
};

constexpr Browser kChrome{kChromeNode,
                          "Software\\Google\\Chrome\\PreferenceMACs",
                          "\\AppData\\Local\\Google\\Chrome\\User Data",
                          {},
                          kChromeRows,
                          {}};
constexpr Browser kEdge{kEdgeNode,
                        "Software\\Microsoft\\Edge\\PreferenceMACs",
                        "\\AppData\\Local\\Microsoft\\Edge\\User Data",
                        {},
                        kCommonRows,
                        kEdgeLastRows};
constexpr Browser kBrave{kBraveNode,
                         "Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
                         "\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data",
                         {},
                         kCommonRows,
                         {}};
constexpr Browser kVivaldi{kVivaldiNode,
                           "Software\\vivaldi\\PreferenceMACs",
                           "\\AppData\\Local\\vivaldi\\User Data",
                           kVivaldiFirstRows,
                           kCommonRows,
                           {}};
constexpr Browser kTorch{kTorchNode,
                         "Software\\Torch\\PreferenceMACs",
                         "\\AppData\\Local\\Torch\\User Data",
                         kTemporaryFilesFirst,
                         kCommonRows,
                         {}};
constexpr Browser kMaxthon{kMaxthonNode,
                           "Software\\Maxthon\\PreferenceMACs",
                           "\\AppData\\Local\\Maxthon\\Application\\User Data",
                           kTemporaryFilesFirst,
                           kCommonRows,
                           {}};
constexpr Browser kYandex{kYandexNode,
                          "Software\\Yandex\\YandexBrowser\\PreferenceMACs",
                          "\\AppData\\Local\\Yandex\\YandexBrowser\\User Data",
                          kYandexFirstRows,
                          kCommonRows,
                          {}};

std::vector<Row> all_rows(const Browser& browser) {
  std::vector<Row> rows;
  for (const auto& part : {browser.first_rows, browser.rows, browser.last_rows}) {
    rows.insert(rows.end(), part.begin(), part.end());
  }
  return rows;
}

std::vector<std::string> patterns_of(const std::vector<Row>& rows) {
  std::vector<std::string> patterns;
  for (const Row& row : rows) {
    if (std::find(patterns.begin(), patterns.end(), row.pattern) == patterns.end()) {
      patterns.emplace_back(row.pattern);
    }
  }
  return patterns;
}

void scan_row(JunkPage& page, KeptListing& listing, const Row& row, const std::string& user_data,
              const std::string& profile, int node) {
  const std::string folder = (row.below == Below::kUserData ? user_data : profile) + row.suffix;
  if (row.below != Below::kExtensions) {
    listing.srch(folder, row.pattern, node);
    return;
  }
  for (const std::string& name : subfolder_names(page, folder)) {
    listing.srch(folder + "\\" + name + "\\def\\GPUCache", row.pattern, node);
  }
}

// The profiles are those that the registry names; the disk is not asked for them. Without the key
// nothing is scanned, whatever the folders hold.
void scan_browser(JunkPage& page, const Browser& browser) {
  begin_category(page, browser.node);
  page.List1.clear();
  std::string joined_names;  // the list box has them one by one
  fEnumKey(page, "HKCU", browser.profiles_key, joined_names);
  const std::string user_data = page.platform().environment.get("USERPROFILE") + browser.user_data;
  const std::vector<Row> rows = all_rows(browser);
  KeptListing listing(page, user_data, patterns_of(rows));
  for (int i = 0; i < page.List1.count(); ++i) {
    const std::string profile = user_data + "\\" + page.List1.item(i);
    for (const Row& row : rows) scan_row(page, listing, row, user_data, profile, browser.node);
  }
  end_category(page, browser.node);
}

}  // namespace

void googlecache(JunkPage& page) { scan_browser(page, kChrome); }
void edgecache(JunkPage& page) { scan_browser(page, kEdge); }
void bravecache(JunkPage& page) { scan_browser(page, kBrave); }
void vivaldicache(JunkPage& page) { scan_browser(page, kVivaldi); }
void Torchcache(JunkPage& page) { scan_browser(page, kTorch); }
void maxcache(JunkPage& page) { scan_browser(page, kMaxthon); }
void ydxcache(JunkPage& page) { scan_browser(page, kYandex); }

}  // namespace quillvane
