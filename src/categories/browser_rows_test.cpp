// Each row of each browser's table by itself: one file that only this row finds, and one beside it
// that none finds.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "categories/chromium_browsers.h"
#include "categories/other_browsers.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

struct RowCase {
  const char* planted;
  const char* decoy;
  // In how many rows of view1 the planted file comes up, with one profile and with two.
  int times = 1;
  int times_with_two = 1;
};

constexpr RowCase kCommonRows[] = {
    {"Default\\Cache\\data_0", "Default\\Cache2\\data_0"},
    {"Crashpad\\reports-journal", "Crashpad\\journal-reports", 1, 2},
    {"Default\\Service Worker\\Database\\LOG", "Default\\Service Workers\\LOG"},
    {"Default\\JumpListIconsTopSites\\a.tmp", "Default\\JumpListIconsTopSites\\a.ico"},
    {"Default\\JumpListIconsRecentClosed\\b.tmp", "Default\\JumpListIconsRecentClosed\\b.ico"},
    {"Default\\Storage\\deep\\data", "Default\\Local Storage\\data"},
    {"Default\\GPUCache\\index", "Default\\DawnCache\\index"},
    {"ShaderCache\\GPUCache\\index", "ShaderCache\\index", 1, 2},
};

// The same after a row that takes "*.tmp" from the whole profile: no file of the two rows of jump
// lists is theirs alone.
constexpr RowCase kJumpListsAfterTemporaryFiles[] = {
    {"Default\\JumpListIconsTopSites\\a.tmp", "Default\\JumpListIconsTopSites\\a.ico", 2, 2},
    {"Default\\JumpListIconsRecentClosed\\b.tmp", "Default\\JumpListIconsRecentClosed\\b.ico", 2,
     2},
};

constexpr RowCase kChromeRows[] = {
    {"Default\\Cache\\data_0", "Guest\\Cache\\data_0"},
    {"Crashpad\\reports-journal", "Crashpad\\journal-reports", 1, 2},
    {"Default\\file System\\000\\t", "Default\\Sync Data\\t"},
    {"Default\\Service Worker\\LOG", "Default\\IndexedDB\\LOG"},
    {"Default\\GPUCache\\index", "Default\\Code Cache\\index"},
    {"Default\\deep\\a.tmp", "Crashpad\\a.tmp"},
    {"ShaderCache\\data", "GrShaderCache\\data", 1, 2},
    {"PnaclTranslationCache\\c", "pnacl\\c", 1, 2},
    {"Default\\Storage\\ext\\one\\def\\GPUCache\\index", "Default\\Storage\\ext\\one\\def\\index"},
};

constexpr RowCase kEdgeLastRows[] = {
    {"Default\\Extension State\\000003.ldb", "Default\\Extension Rules\\000003.ldb"},
    {"Default\\Session Storage\\LOG", "Default\\Sessions\\LOG"},
};

constexpr RowCase kVivaldiFirstRows[] = {
    {"Default\\Visited Links", "Default\\Visited Links2"},
    {"Default\\Top Sites.db", "Default\\Top Site"},
    {"Default\\deep\\Network Action Predictor", "Default\\Network Action"},
    {"Default\\History", "Default\\Media History"},
};

constexpr RowCase kTemporaryFilesFirst[] = {
    {"Default\\deep\\a.tmp", "Default\\deep\\a.tm"},
};

constexpr RowCase kYandexFirstRows[] = {
    {"Default\\deep\\a.tmp", "Default\\deep\\a.tm"},
    {"Default\\Top Sites", "Default\\Top Sites2.db"},
    {"Default\\Network Action Predictor", "Default\\Predictor"},
    {"Default\\History.db", "Default\\Historic"},
    {"Default\\History Provider Cache", "Default\\History Provider"},
    {"Default\\Visited Links", "Default\\Links"},
};

using Cases = std::vector<RowCase>;

struct Browser {
  const char* key;
  const char* user_data;  // below the user's local data
  void (*routine)(JunkPage&);
  Cases cases;
};

template <std::size_t count>
Cases list(const RowCase (&cases)[count]) {
  return {cases, cases + count};
}

Cases joined(Cases first, const Cases& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

Cases common_after_temporary_files() {
  Cases cases = list(kCommonRows);
  for (RowCase& each : cases) {
    for (const RowCase& other : kJumpListsAfterTemporaryFiles) {
      if (std::string(each.planted) == other.planted) each = other;
    }
  }
  return cases;
}

const std::vector<Browser>& browsers() {
  static const std::vector<Browser> all = {
      {"Software\\Google\\Chrome\\PreferenceMACs", "Google\\Chrome\\User Data", googlecache,
       list(kChromeRows)},
      {"Software\\Microsoft\\Edge\\PreferenceMACs", "Microsoft\\Edge\\User Data", edgecache,
       joined(list(kCommonRows), list(kEdgeLastRows))},
      {"Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
       "BraveSoftware\\Brave-Browser\\User Data", bravecache, list(kCommonRows)},
      {"Software\\vivaldi\\PreferenceMACs", "vivaldi\\User Data", vivaldicache,
       joined(list(kVivaldiFirstRows), list(kCommonRows))},
      {"Software\\Torch\\PreferenceMACs", "Torch\\User Data", Torchcache,
       joined(list(kTemporaryFilesFirst), common_after_temporary_files())},
      {"Software\\Maxthon\\PreferenceMACs", "Maxthon\\Application\\User Data", maxcache,
       joined(list(kTemporaryFilesFirst), common_after_temporary_files())},
      {"Software\\Yandex\\YandexBrowser\\PreferenceMACs", "Yandex\\YandexBrowser\\User Data",
       ydxcache, joined(list(kYandexFirstRows), common_after_temporary_files())},
  };
  return all;
}

// The rows of a scan of a machine that holds this file and its decoy alone.
Texts scan(const Browser& browser, const RowCase& row, const Texts& profiles) {
  ScanFixture fixture;
  const std::string folder = "C:\\Users\\User\\AppData\\Local\\" + std::string(browser.user_data);
  fixture.machine.add_file(folder + "\\" + row.planted, 10);
  fixture.machine.add_file(folder + "\\" + row.decoy, 10);
  for (const std::string& profile : profiles) {
    fixture.machine.add_registry_key(Hive::kCurrentUser, std::string(browser.key) + "\\" + profile);
  }
  Form7& form = fixture.start();
  browser.routine(form);
  return rows(form.view1);
}

Texts times(const Browser& browser, const RowCase& row, int count) {
  return Texts(
      static_cast<std::size_t>(count),
      "C:\\Users\\User\\AppData\\Local\\" + std::string(browser.user_data) + "\\" + row.planted);
}

TEST(BrowserRows, EachFindsItsFileAndNotTheOneBesideIt) {
  for (const Browser& browser : browsers()) {
    for (const RowCase& row : browser.cases) {
      EXPECT_EQ(scan(browser, row, {"Default"}), times(browser, row, row.times))
          << browser.key << " " << row.planted;
    }
  }
}

TEST(BrowserRows, ThoseOfTheFolderOfAllProfilesRunOnceForEachProfile) {
  for (const Browser& browser : browsers()) {
    for (const RowCase& row : browser.cases) {
      EXPECT_EQ(scan(browser, row, {"Default", "Profile 1"}),
                times(browser, row, row.times_with_two))
          << browser.key << " " << row.planted;
    }
  }
}

// A place of a browser without profiles in the registry; all below the user's folder.
struct PlaceCase {
  void (*routine)(JunkPage&);
  const char* planted;
  const char* decoy;
};

constexpr PlaceCase kPlaces[] = {
    {iecache, "AppData\\Local\\Microsoft\\Windows\\Temporary Internet Files\\a.htm",
     "AppData\\Local\\Microsoft\\Windows\\INetCookies\\a.htm"},
    {iecache, "AppData\\Local\\Microsoft\\Feeds Cache\\x\\feed.xml",
     "AppData\\Local\\Microsoft\\Feeds\\feed.xml"},
    {operacache, "Local Settings\\Opera Software\\Opera Stable\\Cache\\f_1",
     "Local Settings\\Opera Software\\Opera Stable\\f_1"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\deep\\Cookies-journal",
     "AppData\\Roaming\\Opera Software\\Opera Stable\\Cookies"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\deep\\a.tmp",
     "AppData\\Roaming\\Opera Software\\Opera Next\\a.tmp"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\GPUCache\\index",
     "AppData\\Roaming\\Opera Software\\Opera Stable\\Jump List Icons\\index"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\ShaderCache\\GPUCache\\index",
     "AppData\\Roaming\\Opera Software\\Opera Stable\\ShaderCache\\index"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\CacheStorage\\b",
     "AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\b"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\ScriptCache\\c",
     "AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Scripts\\c"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Database\\d",
     "AppData\\Roaming\\Opera Software\\Opera Stable\\databases\\d"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Origins\\e",
     "AppData\\Roaming\\Opera Software\\Opera Stable\\Origins\\e"},
    {operacache, "AppData\\Roaming\\Opera Software\\Opera Stable\\file System\\f",
     "AppData\\Roaming\\Opera Software\\Opera Stable\\Files\\f"},
    {uccache, "AppData\\Local\\UCBrowser\\deep\\a.tmp", "AppData\\Local\\UCBrowser\\deep\\a.tm"},
    {uccache, "AppData\\Local\\UCBrowser\\deep\\Cookies-journal",
     "AppData\\Local\\UCBrowser\\deep\\Cookies"},
    {uccache, "AppData\\Local\\UCBrowser\\My USER DATA 2\\Default\\Cache\\f_1",
     "AppData\\Local\\UCBrowser\\My Users Data\\Default\\Cache\\f_1"},
};

TEST(BrowserRows, EachPlaceWithoutProfilesFindsItsFileAndNotTheOneBesideIt) {
  for (const PlaceCase& place : kPlaces) {
    ScanFixture fixture;
    const std::string user = "C:\\Users\\User\\";
    fixture.machine.add_file(user + place.planted, 10);
    fixture.machine.add_file(user + place.decoy, 10);
    Form7& form = fixture.start();
    place.routine(form);
    EXPECT_EQ(rows(form.view1), Texts{user + place.planted});
  }
}

// Firefox lists profiles from Roaming unless told; the first row lists them from Local.
struct FirefoxCase {
  const char* planted;  // below AppData; each makes the profile's folder there
  const char* decoy;
};

constexpr FirefoxCase kFirefoxRows[] = {
    {"Local\\Mozilla\\Firefox\\Profiles\\p\\cache2\\entries\\A",
     "Local\\Mozilla\\Firefox\\Profiles\\p\\cache\\A"},
    {"Roaming\\Mozilla\\Firefox\\Profiles\\p\\cache2\\B",
     "Roaming\\Mozilla\\Firefox\\Profiles\\p\\startupCache\\B"},
    {"Local\\Mozilla\\Firefox\\Profiles\\p\\thumbnails\\c.png",
     "Roaming\\Mozilla\\Firefox\\Profiles\\p\\thumbnails\\c.png"},
    {"Roaming\\Mozilla\\Firefox\\Profiles\\p\\places.sqlite",
     "Roaming\\Mozilla\\Firefox\\Profiles\\p\\places2.sqlite"},
    {"Roaming\\Mozilla\\Firefox\\Profiles\\p\\deep\\sessionCheckpoints.json",
     "Roaming\\Mozilla\\Firefox\\Profiles\\p\\deep\\sessionCheckpoints.json2"},
    {"Roaming\\Mozilla\\Firefox\\Profiles\\p\\sessionstore.jsonlz4",
     "Roaming\\Mozilla\\Firefox\\Profiles\\p\\search.json.mozlz4"},
    {"Local\\Mozilla\\Firefox\\Profiles\\p\\startupCache\\d",
     "Local\\Mozilla\\Firefox\\Profiles\\p\\safebrowsing\\d"},
    {"Local\\Mozilla\\Firefox\\Profiles\\p\\jumpListCache\\e.ico",
     "Local\\Mozilla\\Firefox\\Profiles\\p\\settings\\e.ico"},
};

TEST(BrowserRows, EachOfFirefoxFindsItsFileAndNotTheOneBesideIt) {
  for (const FirefoxCase& row : kFirefoxRows) {
    ScanFixture fixture;
    const std::string data = "C:\\Users\\User\\AppData\\";
    fixture.machine.add_folder(data + "Roaming\\Mozilla\\Firefox\\Profiles\\p");
    fixture.machine.add_file(data + row.planted, 10);
    fixture.machine.add_file(data + row.decoy, 10);
    Form7& form = fixture.start();
    firefoxcache(form);
    EXPECT_EQ(rows(form.view1), Texts{data + row.planted});
  }
}

}  // namespace
}  // namespace quillvane
