// What the drive search leaves out, and what it tells on its way.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tests/support/search_fixture.h"

namespace quillvane {
namespace {

const std::string kReal = "software\\Quillvane\\Tidewrack Deluxe\\real";

// A search of C:\T for all files, with these files in it.
struct Judged : SearchFixture {
  explicit Judged(const Texts& names) {
    for (const std::string& name : names) machine.add_file("C:\\T\\" + name, 1000);
    start();
  }
  Form7& form() { return program->main_window(); }
  Texts found() {
    form().search.findfiles("C:\\T", "*.*");
    return rows(form().view1);
  }
};

// --- The list of names.

TEST(SearchFound, WithoutListsEveryFileIsTaken) {
  Judged judged({"a[.tmp", "b.tmp"});
  EXPECT_EQ(judged.found(), (Texts{"C:\\T\\a[.tmp", "C:\\T\\b.tmp"}));
}

TEST(SearchFound, ANameLikeAnItemIsLeftOut) {
  Judged judged({"a.BAK", "b.tmp"});
  judged.form().List6.add("*.bak");
  EXPECT_EQ(judged.found(), Texts{"C:\\T\\b.tmp"});
}

TEST(SearchFound, AnItemLikeTheNameIsLeftOut) {
  Judged judged({"file#.tmp", "file2.tmp"});
  judged.form().List6.add("file7.tmp");
  EXPECT_EQ(judged.found(), Texts{"C:\\T\\file2.tmp"});
}

TEST(SearchFound, AnIllFormedNameIsLeftOutWhereThereIsAList) {
  Judged judged({"a[.tmp", "b.tmp"});
  judged.form().List6.add("other");
  EXPECT_EQ(judged.found(), Texts{"C:\\T\\b.tmp"});
}

TEST(SearchFound, AnIllFormedItemLeavesEverythingOut) {
  Judged judged({"a.tmp", "b.tmp"});
  judged.form().List6.add("x[");
  EXPECT_EQ(judged.found(), Texts{});
}

TEST(SearchFound, AFolderOfTheExcludeListLeavesNothingOut) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.exclude({"C:\\T"});
  fixture.machine.add_file("C:\\T\\a.tmp", 10);
  Form7& form = fixture.start_with_drives({1});
  form.Command11.click();
  EXPECT_EQ(form.List6.item(0), "c:\\t");
  EXPECT_EQ(rows(form.view1), Texts{"C:\\T\\a.tmp"});
}

TEST(SearchFound, AnItemThatIsAddedLaterCounts) {
  Judged judged({"a.bak", "b.tmp"});
  judged.form().List6.add("nothing");
  EXPECT_EQ(judged.found().size(), 2U);
  judged.form().view1.clear();
  judged.form().List6.add("*.bak");
  EXPECT_EQ(judged.found(), Texts{"C:\\T\\b.tmp"});
}

// --- The ignore list.

TEST(SearchFound, AFolderThatTheIgnoreListBeginsWithIsTaken) {
  Judged judged({"a.tmp"});
  judged.form().List6.add("nothing");
  judged.form().ignorelist.set_text("c:\\t\\|");
  EXPECT_EQ(judged.found(), Texts{"C:\\T\\a.tmp"});
}

TEST(SearchFound, AFolderFurtherBehindInTheIgnoreListIsLeftOut) {
  Judged judged({"a.tmp"});
  judged.form().List6.add("nothing");
  judged.form().ignorelist.set_text("c:\\u\\|c:\\t\\|");
  EXPECT_EQ(judged.found(), Texts{});
}

TEST(SearchFound, AFolderAtTheBeginningAndOnceMoreIsLeftOut) {
  Judged judged({"a.tmp"});
  judged.form().List6.add("nothing");
  judged.form().ignorelist.set_text("c:\\t\\|c:\\t\\|");
  EXPECT_EQ(judged.found(), Texts{});
}

TEST(SearchFound, TheIgnoreListIsComparedAsItStands) {
  Judged judged({"a.tmp"});
  judged.form().List6.add("nothing");
  judged.form().ignorelist.set_text("c:\\u\\|C:\\T\\|");
  EXPECT_EQ(judged.found(), Texts{"C:\\T\\a.tmp"});
}

// --- The queue of the next restart.

TEST(SearchFound, AQueuedFileIsNeverLeftOut) {
  Judged judged({"a.bak", "b.bak"});
  judged.form().List6.add("*.bak");
  judged.form().ignorelist.set_text("x|c:\\t\\|");
  judged.form().Text15.set_text("|\\??\\c:\\t\\a.bak|");
  EXPECT_EQ(judged.found(), Texts{"C:\\T\\a.bak"});
}

// --- The loop.

TEST(SearchFound, ServesTheLoopOnceAFileWhereThereIsAList) {
  Judged judged({"a.tmp", "b.tmp"});
  int served = 0;
  judged.machine.loop().set_served_hook([&] { ++served; });
  judged.found();
  EXPECT_EQ(served, 4);  // the entries of the folder, dots and all
  served = 0;
  judged.form().List6.add("nothing");
  judged.found();
  EXPECT_EQ(served, 4 + 2);
}

// --- Progress.

TEST(SearchSearching, TellsFolderCountAndSize) {
  Judged judged({"a.tmp", "s\\b.tmp"});
  judged.found();
  const Form7& form = judged.form();
  // As of the last folder: its own file is not in it yet.
  EXPECT_EQ(form.Label5.caption(), "C:\\T\\s\\");
  EXPECT_EQ(form.Label7.caption(), "1");
  EXPECT_EQ(form.Label10.caption(), "1000 Byte");
  EXPECT_EQ(form.Label11.caption(),
            "Junk files found : ( 1 ) files , Size : ( 1000 Byte ) - Click \"Delete\" to delete "
            "selected Files");
  EXPECT_EQ(form.foundsizetext, "1000 Byte");
  EXPECT_EQ(form.foundcount, 2);
  EXPECT_EQ(form.foundbytes, 2000);
}

TEST(SearchSearching, WritesCountAndSizeForTheSuite) {
  Judged judged({"a.tmp", "s\\b.tmp"});
  std::optional<std::string> in_the_middle;
  judged.when([&] { return judged.form().Label5.caption() == "C:\\T\\"; },
              [&] {
                in_the_middle =
                    judged.machine.registry_text(Hive::kLocalMachine, kReal, "junk-count");
              });
  judged.found();
  EXPECT_EQ(in_the_middle, "0");
  EXPECT_EQ(judged.machine.registry_text(Hive::kLocalMachine, kReal, "junk-count"), "1");
  EXPECT_EQ(judged.machine.registry_text(Hive::kLocalMachine, kReal, "junk-size"), "1000 Byte");
}

TEST(SearchSearching, TheLastOfManyFoldersIsWrittenToo) {
  SearchFixture fixture;
  for (int i = 100; i < 400; ++i) {
    fixture.machine.add_file("C:\\T\\" + std::to_string(i) + "\\a.tmp", 10);
  }
  fixture.add_types({{"Temp", "*.tmp", true}});
  Form7& form = fixture.start_with_drives({1});
  form.Command11.click();
  // As of the last folder, whose own file is not in it.
  EXPECT_EQ(form.foundcount, 300);
  EXPECT_EQ(fixture.machine.registry_text(Hive::kLocalMachine, kReal, "junk-count"), "299");
}

}  // namespace
}  // namespace quillvane
