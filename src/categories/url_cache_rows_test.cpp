// The rows of Internet Explorer that come from the URL cache, and its emptying.
#include "categories/url_cache_rows.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "categories/other_browsers.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kTemporaryFiles =
    "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Temporary Internet Files";

struct Staged : ScanFixture {
  // An entry of the cache; a file of a length is made for it.
  void add(const std::string& url, const std::string& file,
           std::optional<std::uint64_t> bytes = std::nullopt,
           const std::string& last_access = "2013-03-07 09:05:00") {
    if (bytes) machine.add_file(file, *bytes);
    machine.machine().add_url_cache_entry({url, file, std::nullopt, last_access});
  }
  Form7& form() { return program->main_window(); }

  // Rows, each as its text, size, date, category and icon.
  std::vector<Texts> scan() {
    iecache(start());
    std::vector<Texts> all;
    for (int row = 1; row <= form().view1.count(); ++row) {
      const ListView& list = form().view1;
      all.push_back({list.text(row), list.sub_item(row, 1), list.sub_item(row, 2),
                     list.sub_item(row, 3), list.icon(row).value_or("none")});
    }
    return all;
  }
  // The addresses that are left in the cache.
  Texts addresses() {
    Texts urls;
    for (const MachineCacheEntry& entry : machine.machine().state().url_cache) {
      urls.push_back(entry.url);
    }
    return urls;
  }
};

TEST(UrlCacheRows, ARowShowsFileSizeLastAccessCategoryAndItsOwnIcon) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 1536);
  EXPECT_EQ(
      staged.scan(),
      (std::vector<Texts>{{"C:\\cache\\a.htm", "1.5 KB", "3/7/2013 9:05:00 AM", "13", "12"}}));
  EXPECT_EQ(staged.form().totals.brfiles, 1);
  EXPECT_EQ(staged.form().totals.brsize, 1536);
  EXPECT_EQ(staged.form().Tv1.node(13).text, "Internet Explorer ( 1 files, 1.5 KB )");
}

TEST(UrlCacheRows, StandBeforeThoseOfTheFolders) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 10);
  staged.machine.add_file(kTemporaryFiles + "\\b.htm", 10);
  staged.scan();
  EXPECT_EQ(rows(staged.form().view1), (Texts{"C:\\cache\\a.htm", kTemporaryFiles + "\\b.htm"}));
}

// One empty entry at the front hides all behind it: meant so.
TEST(UrlCacheRows, AnEmptyFirstFileHidesTheCacheButNotTheFolders) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 0);
  staged.add("http://b.test/", "C:\\cache\\b.htm", 10);
  staged.machine.add_file(kTemporaryFiles + "\\c.htm", 10);
  staged.machine.add_file("C:\\Users\\User\\AppData\\Local\\Microsoft\\Feeds Cache\\d.xml", 10);
  staged.scan();
  EXPECT_EQ(rows(staged.form().view1),
            (Texts{kTemporaryFiles + "\\c.htm",
                   "C:\\Users\\User\\AppData\\Local\\Microsoft\\Feeds Cache\\d.xml"}));
}

TEST(UrlCacheRows, SoDoesAFirstEntryWhoseFileIsGoneOrThatHasNone) {
  for (const char* file :
       {"C:\\cache\\gone.htm", "C:\\no\\such\\folder\\a.htm", "", "nonsense", "C:\\cache"}) {
    Staged staged;
    staged.add("http://a.test/", file);
    staged.add("http://b.test/", "C:\\cache\\b.htm", 10);
    EXPECT_EQ(staged.scan(), std::vector<Texts>{}) << file;
    EXPECT_EQ(staged.form().Tv1.node(13).text, "Internet Explorer ( 0 files, 0 B )");
  }
}

// The steps that need the file's length fail, and are passed over.
TEST(UrlCacheRows, ALaterEntryWhoseFileIsGoneCountsWithoutASize) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 10);
  staged.add("http://b.test/", "C:\\cache\\gone.htm");
  staged.add("http://c.test/", "C:\\cache\\empty.htm", 0);
  EXPECT_EQ(staged.scan(), (std::vector<Texts>{
                               {"C:\\cache\\a.htm", "10 B", "3/7/2013 9:05:00 AM", "13", "12"},
                               {"C:\\cache\\gone.htm", "", "3/7/2013 9:05:00 AM", "13", "12"},
                               {"C:\\cache\\empty.htm", "0 B", "3/7/2013 9:05:00 AM", "13", "12"},
                           }));
  EXPECT_EQ(staged.form().totals.brfiles, 3);
  EXPECT_EQ(staged.form().totals.brsize, 10);
}

TEST(UrlCacheRows, AnEntryWithoutAFileIsPassedOver) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 10);
  staged.add("http://none.test/", "");
  staged.add("http://b.test/", "C:\\cache\\b.htm", 20);
  staged.scan();
  EXPECT_EQ(rows(staged.form().view1), (Texts{"C:\\cache\\a.htm", "C:\\cache\\b.htm"}));
}

TEST(UrlCacheRows, TheTestsOfTheWalkerDoNotApplyToThem) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 10);
  staged.add("http://b.test/", "C:\\cache\\desktop.ini", 10);
  staged.machine.add_file(kTemporaryFiles + "\\ignored.htm", 10);
  staged.machine.add_file(kTemporaryFiles + "\\desktop.ini", 10);
  Form7& form = staged.start();
  form.ignorelist.set_text("c:\\cache\\|" +
                           std::string("c:\\users\\user\\appdata\\local\\microsoft\\"
                                       "windows\\temporary internet files\\|"));
  form.Text15.set_text("|\\??\\c:\\cache\\a.htm|");
  iecache(form);
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\cache\\a.htm", "C:\\cache\\desktop.ini"}));
}

TEST(UrlCacheRows, NoCancelIsSeenAmongThem) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 10);
  staged.add("http://b.test/", "C:\\cache\\b.htm", 10);
  staged.machine.add_file(kTemporaryFiles + "\\c.htm", 10);
  Form7& form = staged.start();
  form.cancelflag = 1;
  iecache(form);
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\cache\\a.htm", "C:\\cache\\b.htm"}));
}

TEST(UrlCacheEmptying, LeavesEntriesWithoutAFileExceptTheFirst) {
  Staged staged;
  staged.add("http://first.test/", "");
  staged.add("http://a.test/", "C:\\cache\\a.htm", 10);
  staged.add("http://none.test/", "");
  staged.add("http://gone.test/", "C:\\cache\\gone.htm");
  deleteiecach(staged.start());
  EXPECT_EQ(staged.addresses(), Texts{"http://none.test/"});
  EXPECT_TRUE(staged.machine.has_file("C:\\cache\\a.htm"));
}

TEST(UrlCacheEmptying, OfAnEmptyCacheDoesNothing) {
  Staged staged;
  deleteiecach(staged.start());
  EXPECT_EQ(staged.addresses(), Texts{});
}

// The listing that the hidden cache leaves open is closed by the next one.
TEST(UrlCacheEmptying, WorksAfterAListingThatWasLeftOpen) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 0);
  staged.add("http://b.test/", "C:\\cache\\b.htm", 10);
  staged.scan();
  deleteiecach(staged.form());
  EXPECT_EQ(staged.addresses(), Texts{});
}

TEST(UrlCacheEmptying, ComesWithEveryCleaningWhateverIsTicked) {
  Staged staged;
  staged.add("http://a.test/", "C:\\cache\\a.htm", 0);  // hides the cache: it has no rows
  staged.add("http://b.test/", "C:\\cache\\b.htm", 10);
  staged.machine.add_file("C:\\Windows\\Temp\\a.tmp", 10);
  Form7& form = staged.start();
  form.cmd_start.click();
  form.Tv1.tick_node(13, false);
  EXPECT_EQ(rows_of(form.view1, 13), Texts{});

  staged.machine.dialogs().answer(Answer::kYes);
  form.cmd_clean.click();

  EXPECT_EQ(staged.addresses(), Texts{});
  EXPECT_TRUE(staged.machine.has_file("C:\\cache\\b.htm"));
}

}  // namespace
}  // namespace quillvane
