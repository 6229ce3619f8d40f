// The browsers' places: one planted file for each, which only that place finds, and decoys beside
// them that none finds.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "categories/chromium_browsers.h"
#include "categories/other_browsers.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

using Routine = void (*)(JunkPage&);

// A Chromium browser with profiles that the registry names. `found` and `decoys` are below its
// folder of all profiles.
struct Browser {
  const char* key;
  const char* user_data;
  Routine routine;
};

constexpr Browser kChrome{"Software\\Google\\Chrome\\PreferenceMACs", "Google\\Chrome\\User Data",
                          googlecache};
constexpr Browser kEdge{"Software\\Microsoft\\Edge\\PreferenceMACs", "Microsoft\\Edge\\User Data",
                        edgecache};
constexpr Browser kBrave{"Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
                         "BraveSoftware\\Brave-Browser\\User Data", bravecache};
constexpr Browser kVivaldi{"Software\\vivaldi\\PreferenceMACs", "vivaldi\\User Data", vivaldicache};
constexpr Browser kTorch{"Software\\Torch\\PreferenceMACs", "Torch\\User Data", Torchcache};
constexpr Browser kMaxthon{"Software\\Maxthon\\PreferenceMACs", "Maxthon\\Application\\User Data",
                           maxcache};
constexpr Browser kYandex{"Software\\Yandex\\YandexBrowser\\PreferenceMACs",
                          "Yandex\\YandexBrowser\\User Data", ydxcache};

Texts below(const std::string& folder, const Texts& names) {
  Texts paths;
  for (const std::string& name : names) paths.push_back(folder + "\\" + name);
  return paths;
}

Texts run(ScanFixture& fixture, Routine routine, const Texts& files, const Texts& decoys) {
  for (const std::string& path : files) fixture.machine.add_file(path, 10);
  for (const std::string& path : decoys) fixture.machine.add_file(path, 10);
  Form7& form = fixture.start();
  routine(form);
  EXPECT_EQ(form.totals.brfiles, static_cast<double>(form.view1.count()));
  return rows(form.view1);
}

void expect_finds(const Browser& browser, const Texts& found, const Texts& decoys) {
  ScanFixture fixture;
  fixture.machine.add_registry_key(Hive::kCurrentUser, std::string(browser.key) + "\\Default");
  const std::string folder = "C:\\Users\\User\\AppData\\Local\\" + std::string(browser.user_data);
  EXPECT_EQ(run(fixture, browser.routine, below(folder, found), below(folder, decoys)),
            below(folder, found));
}

const Texts kCommon = {
    "Default\\Cache\\data_0",
    "Default\\Cookies-journal",
    "Default\\Service Worker\\Database\\LOG",
    "Default\\JumpListIconsTopSites\\a.tmp",
    "Default\\JumpListIconsRecentClosed\\b.tmp",
    "Default\\Storage\\ext\\x\\data",
    "Default\\GPUCache\\index",
    "ShaderCache\\GPUCache\\index",
};

const Texts kNever = {
    "Default\\Bookmarks",
    "Default\\Preferences",
    "Default\\JumpListIconsTopSites\\a.ico",
    "Default\\JumpListIconsRecentClosed\\b.ico",
    "ShaderCache\\data",
    "Local State",
    "Guest\\Cache\\data_0",
};

Texts with(Texts first, const Texts& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST(ChromiumBrowsers, BraveHasTheCommonPlacesAlone) {
  expect_finds(kBrave, kCommon, with(kNever, {"Default\\a.tmp", "Default\\History"}));
}

TEST(ChromiumBrowsers, EdgeAlsoLosesExtensionStateAndSessions) {
  expect_finds(
      kEdge,
      with(kCommon, {"Default\\Extension State\\000003.ldb", "Default\\Session Storage\\LOG"}),
      with(kNever, {"Default\\History"}));
}

TEST(ChromiumBrowsers, VivaldiBeginsWithTheHistory) {
  expect_finds(kVivaldi,
               with({"Default\\Visited Links", "Default\\Top Sites",
                     "Default\\Network Action Predictor", "Default\\History"},
                    kCommon),
               with(kNever, {"Default\\a.tmp", "Default\\History Provider Cache"}));
}

// A first place for "*.tmp" below the profile finds those of the jump lists too.
Texts common_without_temporary_files() {
  Texts common = kCommon;
  std::erase_if(common, [](const std::string& name) { return name.ends_with(".tmp"); });
  return common;
}

TEST(ChromiumBrowsers, TorchAndMaxthonBeginWithTemporaryFiles) {
  for (const Browser& browser : {kTorch, kMaxthon}) {
    expect_finds(browser, with({"Default\\deep\\a.tmp"}, common_without_temporary_files()),
                 with({"Default\\Bookmarks", "Local State"}, {"Default\\History"}));
  }
}

TEST(ChromiumBrowsers, TemporaryFilesOfTheJumpListsComeTwiceWithTorch) {
  ScanFixture fixture;
  fixture.machine.add_registry_key(Hive::kCurrentUser, std::string(kTorch.key) + "\\Default");
  const std::string file =
      "C:\\Users\\User\\AppData\\Local\\Torch\\User Data\\Default\\JumpListIconsTopSites\\a.tmp";
  EXPECT_EQ(run(fixture, Torchcache, {file}, {}), (Texts{file, file}));
}

TEST(ChromiumBrowsers, ChromeHasAListOfItsOwn) {
  expect_finds(kChrome,
               {
                   "Default\\Cache\\data_0",
                   "Default\\Cookies-journal",
                   "Default\\file System\\000\\t",
                   "Default\\Service Worker\\Database\\LOG",
                   "Default\\GPUCache\\index",
                   "Default\\deep\\a.tmp",
                   "ShaderCache\\data",
                   "PnaclTranslationCache\\c",
                   "Default\\Storage\\ext\\one\\def\\GPUCache\\index",
                   "Default\\Storage\\ext\\two\\def\\GPUCache\\index",
               },
               {
                   "Default\\Bookmarks",
                   "Default\\History",
                   "Default\\JumpListIconsTopSites\\a.ico",
                   "Default\\Storage\\ext\\one\\def\\data",
                   "Default\\Storage\\other\\def\\GPUCache\\index",
                   "Guest\\Cache\\data_0",
               });
}

TEST(ChromiumBrowsers, YandexBeginsWithTemporaryFilesAndTheHistory) {
  const Texts common = common_without_temporary_files();
  expect_finds(
      kYandex,
      with({"Default\\deep\\a.tmp", "Default\\Top Sites", "Default\\Network Action Predictor",
            "Default\\History", "Default\\History Provider Cache", "Default\\Visited Links"},
           common),
      kNever);
}

TEST(ChromiumBrowsers, WithoutTheKeyNothingIsScanned) {
  ScanFixture fixture;
  EXPECT_EQ(run(fixture, bravecache,
                below("C:\\Users\\User\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data",
                      kCommon),
                {}),
            Texts{});
}

TEST(ChromiumBrowsers, VivaldisHistoryAndItsJournalComeFromTwoPlaces) {
  expect_finds(kVivaldi, {"Default\\History", "Default\\History-journal"}, {});
}

TEST(Firefox, LooksIntoBothTrees) {
  const std::string local =
      "C:\\Users\\User\\AppData\\Local\\Mozilla\\Firefox\\Profiles\\x.default";
  const std::string roaming =
      "C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x.default";
  const Texts found = {
      local + "\\cache2\\entries\\A1",       roaming + "\\cache2\\B1",
      local + "\\thumbnails\\c.png",         roaming + "\\places.sqlite",
      roaming + "\\sessionCheckpoints.json", roaming + "\\sessionstore.jsonlz4",
      local + "\\startupCache\\d.little",    local + "\\jumpListCache\\e.ico",
  };
  ScanFixture fixture;
  EXPECT_EQ(run(fixture, firefoxcache, found,
                {roaming + "\\prefs.js", roaming + "\\thumbnails\\f.png", local + "\\other\\g"}),
            found);
}

TEST(Firefox, WithAProfileOnlyInRoamingTheRestWorks) {
  const std::string roaming =
      "C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x.default";
  ScanFixture fixture;
  EXPECT_EQ(run(fixture, firefoxcache, {roaming + "\\places.sqlite"}, {}),
            Texts{roaming + "\\places.sqlite"});
}

TEST(Opera, LooksAtTenPlaces) {
  const std::string stable = "C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable";
  const Texts found = {
      "C:\\Users\\User\\Local Settings\\Opera Software\\Opera Stable\\Cache\\f_1",
      stable + "\\Cookies-journal",
      stable + "\\a.tmp",
      stable + "\\GPUCache\\index",
      stable + "\\ShaderCache\\GPUCache\\index",
      stable + "\\Service Worker\\CacheStorage\\b",
      stable + "\\Service Worker\\ScriptCache\\c",
      stable + "\\Service Worker\\Database\\d",
      stable + "\\Service Worker\\Origins\\e",
      stable + "\\file System\\f",
  };
  ScanFixture fixture;
  EXPECT_EQ(run(fixture, operacache, found,
                {stable + "\\Bookmarks", stable + "\\Service Worker\\g",
                 "C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Beta\\a.tmp"}),
            found);
}

TEST(UcBrowser, TakesTheCacheOfEachFolderOfUserData) {
  const std::string folder = "C:\\Users\\User\\AppData\\Local\\UCBrowser";
  const Texts found = {
      folder + "\\deep\\a.tmp",
      folder + "\\User Data_1\\Default\\b-journal",
      folder + "\\User Data_1\\Default\\Cache\\c",
      folder + "\\User Data_2\\Default\\Cache\\d",
  };
  ScanFixture fixture;
  EXPECT_EQ(run(fixture, uccache, found,
                {folder + "\\other\\Default\\Cache\\e", folder + "\\User Data_1\\Guest\\Cache\\f",
                 folder + "\\User Data_1\\Default\\Bookmarks"}),
            found);
}

}  // namespace
}  // namespace quillvane
