// How often a browser's category reads the disk, and how long it keeps what it has read.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "categories/other_browsers.h"
#include "platform/folder/posix/folder_file_system.h"
#include "tests/support/scan_fixture.h"
#include "tests/support/told_browsers.h"
#include "tests/support/watched_files.h"

namespace quillvane {
namespace {

// A browser's folder with something for each row, in which all folders that the rows name are
// there.
struct WholeFolder : ScanFixture {
  explicit WholeFolder(const ToldBrowser& browser) : watched(machine.machine().files()) {
    const std::string folder = place_of(browser);
    for (const char* profile : {"Default", "Profile 1"}) {
      machine.add_registry_key(Hive::kCurrentUser, std::string(browser.key) + "\\" + profile);
      for (const ToldRow& row : browser.rows) {
        const std::string base = row.base == 'R' ? folder : folder + "\\" + profile;
        const std::string below = row.base == 'X' ? "\\one\\def\\GPUCache" : "";
        machine.add_file(base + row.suffix + below + "\\History-journal.tmp", 10);
      }
    }
    program.emplace(machine.platform().with({.files = &watched}));
    program->start("");
    watched.walked.clear();
    watched.trees.clear();
  }
  Form7& form() { return program->main_window(); }

  WatchedFiles watched;
};

TEST(BrowserReading, TheDiskIsReadOnceForAllRowsOfBothProfiles) {
  for (const ToldBrowser& browser : told_browsers()) {
    WholeFolder staged(browser);
    browser.routine(staged.form());
    EXPECT_EQ(staged.watched.walked, Texts{place_of(browser)});
    EXPECT_GT(staged.form().view1.count(), 0);
  }
}

TEST(BrowserReading, TheListingIsGoneWhenTheCategoryIsDoneThoughItsRowsStay) {
  for (const ToldBrowser& browser : told_browsers()) {
    WholeFolder staged(browser);
    browser.routine(staged.form());
    EXPECT_GT(staged.form().view1.count(), 0);
    ASSERT_EQ(staged.watched.trees.size(), 1U);
    EXPECT_TRUE(staged.watched.trees[0].expired()) << browser.key;
  }
}

TEST(BrowserReading, OperaReadsItsFolderAndTheOlderCacheOnce) {
  ScanFixture fixture;
  WatchedFiles watched(fixture.machine.machine().files());
  const std::string stable = "C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable";
  for (const char* folder : {"GPUCache", "ShaderCache\\GPUCache", "Service Worker\\CacheStorage",
                             "Service Worker\\ScriptCache", "Service Worker\\Database",
                             "Service Worker\\Origins", "file System"}) {
    fixture.machine.add_file(stable + "\\" + folder + "\\a", 10);
  }
  fixture.program.emplace(fixture.machine.platform().with({.files = &watched}));
  fixture.program->start("");

  operacache(fixture.program->main_window());

  EXPECT_EQ(
      watched.walked,
      (Texts{"C:\\Users\\User\\Local Settings\\Opera Software\\Opera Stable\\Cache\\", stable}));
  EXPECT_EQ(fixture.program->main_window().view1.count(), 7);
}

TEST(BrowserReading, TheNextScanReadsTheDiskAnew) {
  const ToldBrowser& brave = told_browsers()[2];
  WholeFolder staged(brave);
  brave.routine(staged.form());
  const int before = staged.form().view1.count();

  staged.machine.add_file(place_of(brave) + "\\Default\\Cache\\new", 10);
  staged.form().view1.clear();
  brave.routine(staged.form());

  EXPECT_EQ(staged.form().view1.count(), before + 1);
}

TEST(BrowserReading, UcBrowserAndFirefoxReadTheirFoldersOnceToo) {
  struct Case {
    void (*routine)(JunkPage&);
    std::string folder;
    Texts files;
  };
  const std::string user = "C:\\Users\\User\\AppData\\";
  const Case cases[] = {
      {uccache, user + "Local\\UCBrowser", {"\\User Data\\Default\\Cache\\a.tmp"}},
      {firefoxcache,
       user + "Roaming\\Mozilla\\Firefox\\Profiles",
       {"\\x\\cache2\\a", "\\x\\places.sqlite"}},
  };
  for (const Case& each : cases) {
    ScanFixture fixture;
    WatchedFiles watched(fixture.machine.machine().files());
    for (const std::string& file : each.files) fixture.machine.add_file(each.folder + file, 10);
    fixture.program.emplace(fixture.machine.platform().with({.files = &watched}));
    fixture.program->start("");
    each.routine(fixture.program->main_window());
    EXPECT_EQ(std::count(watched.walked.begin(), watched.walked.end(), each.folder), 1);
    for (const std::string& walked : watched.walked) {
      EXPECT_FALSE(walked.starts_with(each.folder + "\\")) << walked;
    }
  }
}

}  // namespace
}  // namespace quillvane
