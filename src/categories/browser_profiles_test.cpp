// Which profiles of a browser are scanned: those that the registry names, or the disk.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "categories/chromium_browsers.h"
#include "categories/other_browsers.h"
#include "platform/folder/posix/folder_file_system.h"
#include "scan/catalogue.h"
#include "tests/support/scan_fixture.h"
#include "tests/support/told_browsers.h"
#include "tests/support/watched_files.h"

namespace quillvane {
namespace {

const ToldBrowser& brave() { return told_browsers()[2]; }
const std::string kBrave = place_of(brave());

// Brave with these names below its key.
struct Profiles : ScanFixture {
  explicit Profiles(const Texts& names) {
    for (const std::string& name : names) {
      machine.add_registry_key(Hive::kCurrentUser, std::string(brave().key) + "\\" + name);
    }
  }
  Texts scan() {
    Form7& form = start();
    bravecache(form);
    return rows(form.view1);
  }
};

TEST(BrowserProfiles, WithoutTheKeyNoFolderIsTouched) {
  for (const ToldBrowser& browser : told_browsers()) {
    ScanFixture fixture;
    fixture.machine.add_file(place_of(browser) + "\\Default\\Cache\\data_0", 10);
    WatchedFiles watched(fixture.machine.machine().files());
    fixture.program.emplace(fixture.machine.platform().with({.files = &watched}));
    fixture.program->start("");
    Form7& form = fixture.program->main_window();
    const std::string caption = form.Tv1.node(browser.node).text;
    watched.asked.clear();

    browser.routine(form);

    EXPECT_EQ(watched.asked, Texts{}) << browser.key;
    EXPECT_EQ(form.Tv1.node(browser.node).text, caption + " ( 0 files, 0 B )");
    EXPECT_EQ(form.Tv1.node(browser.node).fore_color, 0U);
  }
}

TEST(BrowserProfiles, AKeyWithoutSubKeysScansNothing) {
  ScanFixture fixture;
  fixture.machine.add_registry_key(Hive::kCurrentUser, brave().key);
  fixture.machine.add_file(kBrave + "\\Default\\Cache\\data_0", 10);
  bravecache(fixture.start());
  EXPECT_EQ(rows(fixture.program->main_window().view1), Texts{});
}

TEST(BrowserProfiles, ABlankInANameStays) {
  Profiles staged({"Profile 1"});
  staged.machine.add_file(kBrave + "\\Profile 1\\Cache\\data_0", 10);
  staged.machine.add_file(kBrave + "\\Profile1\\Cache\\data_0", 10);
  EXPECT_EQ(staged.scan(), Texts{kBrave + "\\Profile 1\\Cache\\data_0"});
}

TEST(BrowserProfiles, BlanksAtTheEndsOfANameGo) {
  Profiles staged({"  Two words  "});
  staged.machine.add_file(kBrave + "\\Two words\\Cache\\data_0", 10);
  EXPECT_EQ(staged.scan(), Texts{kBrave + "\\Two words\\Cache\\data_0"});
}

TEST(BrowserProfiles, ANameOfBlanksIsNone) {
  Profiles staged({"   "});
  staged.machine.add_file(kBrave + "\\Cache\\data_0", 10);
  staged.machine.add_file(kBrave + "\\Cookies-journal", 10);
  EXPECT_EQ(staged.scan(), Texts{});
}

TEST(BrowserProfiles, DotsInANameAreLetters) {
  Profiles staged({"my.profile.v2", ".hidden"});
  staged.machine.add_file(kBrave + "\\my.profile.v2\\Cache\\a", 10);
  staged.machine.add_file(kBrave + "\\.hidden\\GPUCache\\b", 10);
  EXPECT_EQ(staged.scan(),
            (Texts{kBrave + "\\.hidden\\GPUCache\\b", kBrave + "\\my.profile.v2\\Cache\\a"}));
}

// As the disk reads them, "." is the folder of all profiles and ".." the one above it.
TEST(BrowserProfiles, NamesOfDotsAreUsedAsTheyStand) {
  Profiles staged({".", ".."});
  staged.machine.add_file(kBrave + "\\Cache\\a", 10);
  staged.machine.add_file("C:\\Users\\User\\AppData\\Local\\BraveSoftware\\Brave-Browser\\Cache\\b",
                          10);
  EXPECT_EQ(staged.scan(), (Texts{kBrave + "\\.\\Cache\\a", kBrave + "\\..\\Cache\\b"}));
}

// The registry parts keys by the backslash, so what stands behind it is no part of the name.
TEST(BrowserProfiles, ABackslashEndsTheName) {
  Profiles staged({"one\\two"});
  staged.machine.add_file(kBrave + "\\one\\Cache\\a", 10);
  staged.machine.add_file(kBrave + "\\one\\two\\Cache\\b", 10);
  EXPECT_EQ(staged.scan(), Texts{kBrave + "\\one\\Cache\\a"});
}

// The profile's own paths cannot be opened; the rows of the folder of all profiles run for it.
TEST(BrowserProfiles, ANameOf250LettersStillRunsTheRowsOfAllProfiles) {
  const std::string name(250, 'p');
  Profiles staged({name, "Default"});
  staged.machine.add_file(kBrave + "\\Default\\Cache\\a", 10);
  staged.machine.add_file(kBrave + "\\Default\\b-journal", 10);
  std::filesystem::create_directories(staged.machine.host_path(kBrave) + "/" + name + "/Cache");
  std::ofstream(staged.machine.host_path(kBrave) + "/" + name + "/Cache/c") << "x";
  EXPECT_EQ(staged.scan(), (Texts{kBrave + "\\Default\\Cache\\a", kBrave + "\\Default\\b-journal",
                                  kBrave + "\\Default\\b-journal"}));
}

TEST(BrowserProfiles, LettersThatNoFolderCanHaveFindNothing) {
  Profiles staged({"a*b", "what?", "C:", "x|y", "con/cat"});
  staged.machine.add_file(kBrave + "\\ab\\Cache\\a", 10);
  EXPECT_EQ(staged.scan(), Texts{});
}

TEST(BrowserProfiles, AProfileOnTheDiskAloneIsNotScanned) {
  Profiles staged({"Default"});
  staged.machine.add_file(kBrave + "\\Profile 1\\Cache\\a", 10);
  staged.machine.add_file(kBrave + "\\Profile 1\\b-journal", 10);
  EXPECT_EQ(staged.scan(), Texts{kBrave + "\\Profile 1\\b-journal"});  // by the row of all
}

TEST(BrowserProfiles, AProfileInTheRegistryAloneFindsNothing) {
  Profiles staged({"Default", "Gone"});
  staged.machine.add_file(kBrave + "\\Default\\Cache\\a", 10);
  EXPECT_EQ(staged.scan(), Texts{kBrave + "\\Default\\Cache\\a"});
}

TEST(BrowserProfiles, ABrowserWhoseFolderIsGoneHasNothing) {
  for (const ToldBrowser& browser : told_browsers()) {
    ScanFixture fixture;
    fixture.machine.add_registry_key(Hive::kCurrentUser, std::string(browser.key) + "\\Default");
    Form7& form = fixture.start();
    browser.routine(form);
    EXPECT_TRUE(form.Tv1.node(browser.node).text.ends_with(" ( 0 files, 0 B )"));
  }
}

TEST(BrowserProfiles, RowsComeProfileByProfile) {
  Profiles staged({"Default", "Profile 1"});
  for (const char* file :
       {"\\Default\\Cache\\a", "\\Default\\Storage\\b", "\\Profile 1\\Cache\\c",
        "\\Profile 1\\Storage\\d", "\\e-journal", "\\ShaderCache\\GPUCache\\f"}) {
    staged.machine.add_file(kBrave + file, 10);
  }
  Texts expected;
  for (const char* file : {"\\Default\\Cache\\a", "\\e-journal", "\\Default\\Storage\\b",
                           "\\ShaderCache\\GPUCache\\f", "\\Profile 1\\Cache\\c", "\\e-journal",
                           "\\Profile 1\\Storage\\d", "\\ShaderCache\\GPUCache\\f"}) {
    expected.push_back(kBrave + file);
  }
  EXPECT_EQ(staged.scan(), expected);
  const Form7& form = staged.program->main_window();
  EXPECT_EQ(form.totals.brfiles, 8);
  EXPECT_EQ(form.totals.brsize, 80);
  EXPECT_EQ(form.Tv1.node(18).text, "Brave Browser ( 8 files, 80 B )");
  EXPECT_EQ(form.Tv1.node(18).fore_color, kDarkRed);
}

TEST(BrowserProfiles, ChromeWithoutExtensionsStillWritesItsResult) {
  ScanFixture fixture;
  fixture.machine.add_registry_key(Hive::kCurrentUser,
                                   "Software\\Google\\Chrome\\PreferenceMACs\\Default");
  const std::string profile = "C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\Default";
  fixture.machine.add_file(profile + "\\Cache\\a", 10);
  fixture.machine.add_file(profile + "\\Storage\\ext", 10);  // a file where the folder should be
  Form7& form = fixture.start();
  googlecache(form);
  EXPECT_EQ(rows(form.view1), Texts{profile + "\\Cache\\a"});
  EXPECT_EQ(form.Tv1.node(15).text, "Google Chrome Cache ( 1 files, 10 B )");
}

TEST(BrowserProfiles, OperaOfAnotherChannelHasNothing) {
  ScanFixture fixture;
  for (const char* channel : {"Opera Beta", "Opera Developer", "Opera Stable 2"}) {
    const std::string folder =
        "C:\\Users\\User\\AppData\\Roaming\\Opera Software\\" + std::string(channel);
    fixture.machine.add_file(folder + "\\GPUCache\\index", 10);
    fixture.machine.add_file(folder + "\\Cookies-journal", 10);
  }
  Form7& form = fixture.start();
  operacache(form);
  EXPECT_EQ(rows(form.view1), Texts{});
  EXPECT_EQ(form.Tv1.node(16).text, "Opera Cache ( 0 files, 0 B )");
}

TEST(BrowserProfiles, FirefoxTakesThumbnailsOfProfilesThatRoamingNames) {
  const std::string data = "C:\\Users\\User\\AppData\\";
  const std::string below = "\\Mozilla\\Firefox\\Profiles\\";
  ScanFixture fixture;
  fixture.machine.add_folder(data + "Roaming" + below + "both");
  fixture.machine.add_file(data + "Local" + below + "both\\thumbnails\\a.png", 10);
  fixture.machine.add_file(data + "Local" + below + "alone\\thumbnails\\b.png", 10);
  fixture.machine.add_file(data + "Local" + below + "alone\\cache2\\c", 10);
  Form7& form = fixture.start();
  firefoxcache(form);
  EXPECT_EQ(rows(form.view1), (Texts{data + "Local" + below + "alone\\cache2\\c",
                                     data + "Local" + below + "both\\thumbnails\\a.png"}));
}

// Each pass goes over all profiles before the next begins.
TEST(BrowserProfiles, FirefoxComesPassByPass) {
  const std::string roaming = "C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\";
  ScanFixture fixture;
  const Texts files = {"a\\cache2\\x",
                       "b\\cache2\\x",
                       "a\\places.sqlite",
                       "a\\places.sqlite-wal.x",
                       "a\\deep\\sessionstore.jsonlz4",
                       "b\\places.sqlite.bak"};
  for (const std::string& file : files) fixture.machine.add_file(roaming + file, 10);
  Form7& form = fixture.start();
  firefoxcache(form);
  EXPECT_EQ(rows(form.view1),
            (Texts{roaming + "a\\cache2\\x", roaming + "b\\cache2\\x", roaming + "a\\places.sqlite",
                   roaming + "a\\deep\\sessionstore.jsonlz4", roaming + "b\\places.sqlite.bak"}));
}

TEST(BrowserProfiles, UcBrowserWithoutItsFolderHasNothing) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  uccache(form);
  EXPECT_EQ(form.Tv1.node(23).text, "UC Browser ( 0 files, 0 B )");
}

}  // namespace
}  // namespace quillvane
