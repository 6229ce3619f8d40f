#include "scan/kept_listing.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kRoot = "C:\\Users\\User\\AppData\\Local\\Browser";

// A browser's folder with two profiles.
struct Staged : ScanFixture {
  Staged() {
    for (const char* file : {"\\one\\Cache\\a", "\\one\\Cache\\b.tmp", "\\one\\History.db",
                             "\\two\\Cache\\deep\\c", "\\two\\History.db", "\\top.tmp"}) {
      machine.add_file(kRoot + file, 10);
    }
    start();
  }
  Form7& form() { return program->main_window(); }

  // The rows of a walk from the listing, after those of a walk of the disk were found to be equal.
  Texts srch(KeptListing& listing, const std::string& path, const std::string& pattern) {
    form().view1.clear();
    form().srch(path, pattern, 15);
    const Texts from_disk = rows(form().view1);
    form().view1.clear();
    listing.srch(path, pattern, 15);
    EXPECT_EQ(rows(form().view1), from_disk) << path << " " << pattern;
    return rows(form().view1);
  }
};

TEST(KeptListing, GivesTheRowsOfAWalk) {
  Staged staged;
  KeptListing listing(staged.form(), kRoot, {"*.*", "*.tmp"});
  EXPECT_EQ(staged.srch(listing, kRoot + "\\one", "*.*"),
            (Texts{kRoot + "\\one\\Cache\\a", kRoot + "\\one\\Cache\\b.tmp",
                   kRoot + "\\one\\History.db"}));
  EXPECT_EQ(staged.srch(listing, kRoot + "\\one\\Cache", "*.tmp"),
            (Texts{kRoot + "\\one\\Cache\\b.tmp"}));
  EXPECT_EQ(staged.srch(listing, kRoot, "*.tmp"),
            (Texts{kRoot + "\\one\\Cache\\b.tmp", kRoot + "\\top.tmp"}));
}

TEST(KeptListing, FindsAPlaceHoweverItsPathIsWritten) {
  Staged staged;
  KeptListing listing(staged.form(), kRoot, {"*.*"});
  EXPECT_EQ(staged.srch(listing, kRoot + "\\ONE\\cache", "*.*"),
            (Texts{kRoot + "\\ONE\\cache\\a", kRoot + "\\ONE\\cache\\b.tmp"}));
  EXPECT_EQ(staged.srch(listing, kRoot + "\\two\\", "*.*").size(), 2U);
}

TEST(KeptListing, AnswersFromOneReading) {
  Staged staged;
  KeptListing listing(staged.form(), kRoot, {"*.*"});
  EXPECT_TRUE(listing.find(kRoot + "\\one", "*.*").has_value());

  staged.machine.add_file(kRoot + "\\one\\new.tmp", 10);
  listing.srch(kRoot + "\\one", "*.*", 15);

  EXPECT_EQ(staged.form().view1.count(), 3);
}

struct AsideCase {
  const char* what;
  std::string path;
  const char* pattern;
};

TEST(KeptListing, LeavesTheRestToTheDisk) {
  const AsideCase cases[] = {
      {"another pattern", kRoot + "\\one", "*.db"},
      {"a place outside", "C:\\Users\\User\\AppData\\Local", "*.*"},
      {"a neighbour whose name begins alike", kRoot + " Beta", "*.*"},
      {"a folder that is not there", kRoot + "\\three", "*.*"},
      {"a name that only the disk resolves", kRoot + "\\one.", "*.*"},
  };
  Staged staged;
  staged.machine.add_file(kRoot + " Beta\\x.tmp", 10);
  KeptListing listing(staged.form(), kRoot, {"*.*"});
  for (const AsideCase& aside : cases) {
    EXPECT_FALSE(listing.find(aside.path, aside.pattern).has_value()) << aside.what;
    staged.srch(listing, aside.path, aside.pattern);
  }
}

TEST(KeptListing, LeavesATreeWithLoopsToTheDisk) {
  Staged staged;
  staged.machine.add_junction(kRoot + "\\one\\loop", kRoot);
  KeptListing listing(staged.form(), kRoot, {"*.*"});
  EXPECT_FALSE(listing.find(kRoot + "\\one", "*.*").has_value());
  staged.srch(listing, kRoot + "\\one", "*.*");
}

// On a disk that tells names apart by case the nearer name is a file's.
TEST(KeptListing, AFileUnderANearerNameHidesTheFolder) {
  Staged staged;
  std::ofstream(staged.machine.host_path(kRoot + "\\one") + "/CACHE") << "x";
  KeptListing listing(staged.form(), kRoot, {"*.*"});
  EXPECT_EQ(staged.srch(listing, kRoot + "\\one\\CACHE", "*.*"), Texts{});
  EXPECT_EQ(staged.srch(listing, kRoot + "\\one\\caCHE", "*.*"), Texts{});
  EXPECT_EQ(staged.srch(listing, kRoot + "\\one\\Cache", "*.*").size(), 2U);
}

TEST(KeptListing, AMissingFolderYieldsNothing) {
  Staged staged;
  KeptListing listing(staged.form(), "C:\\Missing", {"*.*"});
  EXPECT_EQ(staged.srch(listing, "C:\\Missing\\one", "*.*"), Texts{});
}

}  // namespace
}  // namespace quillvane
