#include "categories/chromium_browsers.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "categories/category_frame.h"
#include "categories/place.h"
#include "core/form7.h"
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

constexpr Browser kChrome{15,
                          "Software\\Google\\Chrome\\PreferenceMACs",
                          "\\AppData\\Local\\Google\\Chrome\\User Data",
                          {},
                          kChromeRows,
                          {}};
constexpr Browser kEdge{17,
                        "Software\\Microsoft\\Edge\\PreferenceMACs",
                        "\\AppData\\Local\\Microsoft\\Edge\\User Data",
                        {},
                        kCommonRows,
                        kEdgeLastRows};
constexpr Browser kBrave{18,
                         "Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
                         "\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data",
                         {},
                         kCommonRows,
                         {}};
constexpr Browser kVivaldi{19,
                           "Software\\vivaldi\\PreferenceMACs",
                           "\\AppData\\Local\\vivaldi\\User Data",
                           kVivaldiFirstRows,
                           kCommonRows,
                           {}};
constexpr Browser kTorch{20,
                         "Software\\Torch\\PreferenceMACs",
                         "\\AppData\\Local\\Torch\\User Data",
                         kTemporaryFilesFirst,
                         kCommonRows,
                         {}};
constexpr Browser kMaxthon{21,
                           "Software\\Maxthon\\PreferenceMACs",
                           "\\AppData\\Local\\Maxthon\\Application\\User Data",
                           kTemporaryFilesFirst,
                           kCommonRows,
                           {}};
constexpr Browser kYandex{22,
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

void scan_row(Form7& form, KeptListing& listing, const Row& row, const std::string& user_data,
              const std::string& profile, int node) {
  const std::string folder = (row.below == Below::kUserData ? user_data : profile) + row.suffix;
  if (row.below != Below::kExtensions) {
    listing.srch(folder, row.pattern, node);
    return;
  }
  for (const std::string& name : subfolder_names(form, folder)) {
    listing.srch(folder + "\\" + name + "\\def\\GPUCache", row.pattern, node);
  }
}

// The profiles are those that the registry names; the disk is not asked for them. Without the key
// nothing is scanned, whatever the folders hold.
void scan_browser(Form7& form, const Browser& browser) {
  begin_category(form, browser.node);
  form.List1.clear();
  std::string joined_names;  // the list box has them one by one
  fEnumKey(form, "HKCU", browser.profiles_key, joined_names);
  const std::string user_data = form.platform().environment.get("USERPROFILE") + browser.user_data;
  const std::vector<Row> rows = all_rows(browser);
  KeptListing listing(form, user_data, patterns_of(rows));
  for (int i = 0; i < form.List1.count(); ++i) {
    const std::string profile = user_data + "\\" + form.List1.item(i);
    for (const Row& row : rows) scan_row(form, listing, row, user_data, profile, browser.node);
  }
  end_category(form, browser.node);
}

}  // namespace

void googlecache(Form7& form) { scan_browser(form, kChrome); }
void edgecache(Form7& form) { scan_browser(form, kEdge); }
void bravecache(Form7& form) { scan_browser(form, kBrave); }
void vivaldicache(Form7& form) { scan_browser(form, kVivaldi); }
void Torchcache(Form7& form) { scan_browser(form, kTorch); }
void maxcache(Form7& form) { scan_browser(form, kMaxthon); }
void ydxcache(Form7& form) { scan_browser(form, kYandex); }

}  // namespace quillvane
