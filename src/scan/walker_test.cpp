// The walker: which files become rows, and what it adds to the totals.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "platform/forwarding_file_system.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

constexpr std::uint64_t kGiB = std::uint64_t{1} << 30U;

// The window without a user, on a machine with these files of 10 bytes each.
struct Walked : ScanFixture {
  explicit Walked(const Texts& files) {
    for (const std::string& path : files) machine.add_file(path, 10);
    start();
  }
  Form7& form() { return program->main_window(); }

  // The rows that a walk adds.
  Texts srch(const std::string& path, const std::string& pattern = "*.*", int category = 2) {
    form().srch(path, pattern, category);
    return rows(form().view1);
  }
  Texts srch2(const std::string& path, const std::string& pattern) {
    form().srch2(path, pattern, 10);
    return rows(form().view1);
  }
};

// --- Places.

TEST(Srch, ListsTheFilesOfTheFolderAndOfAllBelow) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\sub\\b.tmp", "C:\\T\\sub\\deep\\c.tmp", "C:\\U\\d.tmp"});
  EXPECT_EQ(walked.srch("C:\\T"),
            (Texts{"C:\\T\\sub\\deep\\c.tmp", "C:\\T\\sub\\b.tmp", "C:\\T\\a.tmp"}));
}

TEST(Srch, APathWithABackslashAndOneWithoutBehaveTheSame) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\sub\\b.tmp"});
  EXPECT_EQ(walked.srch("C:\\T\\"), (Texts{"C:\\T\\sub\\b.tmp", "C:\\T\\a.tmp"}));
  walked.form().view1.clear();
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\sub\\b.tmp", "C:\\T\\a.tmp"}));
}

TEST(Srch, ListsOnlyFilesThatMatchThePattern) {
  Walked walked({"C:\\T\\~font1.dat", "C:\\T\\font1.dat", "C:\\T\\sub\\~x.dat", "C:\\T\\~x.txt"});
  EXPECT_EQ(walked.srch("C:\\T", "~*.dat"), (Texts{"C:\\T\\sub\\~x.dat", "C:\\T\\~font1.dat"}));
}

TEST(Srch, APatternAlsoMatchesAShortName) {
  Walked walked({"C:\\T\\a.tmpx"});
  EXPECT_EQ(walked.srch("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmpx"}));
}

TEST(Srch, ListsHiddenSystemAndReadOnlyFiles) {
  Walked walked({"C:\\T\\hidden", "C:\\T\\readonly", "C:\\T\\system"});
  FileSystem& files = walked.program->session.platform.files;
  EXPECT_TRUE(files.set_attributes("C:\\T\\hidden", kAttributeHidden));
  EXPECT_TRUE(files.set_attributes("C:\\T\\readonly", kAttributeReadOnly));
  EXPECT_TRUE(files.set_attributes("C:\\T\\system", kAttributeSystem));
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\hidden", "C:\\T\\readonly", "C:\\T\\system"}));
}

TEST(Srch, FollowsLinksAsPlainFolders) {
  Walked walked({"C:\\Real\\a.tmp"});
  walked.machine.add_junction("C:\\T\\link", "C:\\Real");
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\link\\a.tmp"}));
}

TEST(Srch, EntersNoLinkToAFolderItLiesIn) {
  Walked walked({"C:\\T\\a.tmp"});
  walked.machine.add_junction("C:\\T\\loop", "C:\\T");
  walked.machine.add_junction("C:\\T\\again", "C:\\T");
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\a.tmp"}));
}

TEST(Srch, ANameThatIsNoTextIsListedAsItIs) {
  Walked walked({"C:\\T\\bad\xFF\xC3.tmp", "C:\\\xFE\\b.tmp"});
  EXPECT_EQ(walked.srch("C:\\"), (Texts{"C:\\T\\bad\xFF\xC3.tmp", "C:\\\xFE\\b.tmp"}));
  walked.form().view1.clear();
  walked.form().ignorelist.set_text("c:\\\xFE\\|");
  EXPECT_EQ(walked.srch("C:\\"), (Texts{"C:\\T\\bad\xFF\xC3.tmp"}));
}

TEST(Srch, AnEmptyOrMissingFolderChangesNothing) {
  Walked walked({});
  walked.machine.add_folder("C:\\Empty");
  walked.form().totals.catfiles = 3;
  walked.form().totals.catsize = 30;
  EXPECT_EQ(walked.srch("C:\\Empty"), Texts{});
  EXPECT_EQ(walked.srch("C:\\Missing"), Texts{});
  EXPECT_EQ(walked.form().totals.catfiles, 3);
  EXPECT_EQ(walked.form().totals.catsize, 30);
}

// --- Rows and totals.

TEST(Srch, ARowHoldsSizeCategoryAndIcon) {
  Walked walked({});
  walked.machine.add_file("C:\\T\\a.tmp", 1536);
  walked.srch("C:\\T", "*.*", 7);
  walked.srch("C:\\T", "*.*", 13);

  const ListView& list = walked.form().view1;
  EXPECT_EQ(rows(list, 1), (Texts{"1.5 KB", "1.5 KB"}));
  EXPECT_EQ(rows(list, 3), (Texts{"7", "13"}));
  EXPECT_EQ(list.icon(1), "6");
  EXPECT_EQ(list.icon(2), "11");
  EXPECT_FALSE(list.checked(1));
}

TEST(Srch, AddsToTheCategorysCountAndBytes) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\b.tmp"});
  walked.form().totals.catfiles = 1;
  walked.form().totals.catsize = 5;
  walked.srch("C:\\T");
  EXPECT_EQ(walked.form().totals.catfiles, 3);
  EXPECT_EQ(walked.form().totals.catsize, 25);
  EXPECT_EQ(walked.form().totals.winfiles, 0);
}

TEST(Srch, AFileOf3GibTakesAwayFromTheBytes) {
  Walked walked({"C:\\T\\a.tmp"});
  walked.machine.add_file("C:\\T\\big.bin", 3 * kGiB);
  walked.srch("C:\\T");
  EXPECT_EQ(walked.form().totals.catfiles, 2);
  EXPECT_EQ(walked.form().totals.catsize, 10 - 1073741824.0);
}

TEST(Srch, AFileOf5GibEndsItsFolderAndCountsNoBytes) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\z.tmp", "C:\\T\\sub\\b.tmp"});
  walked.machine.add_file("C:\\T\\big.bin", 5 * kGiB);
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\sub\\b.tmp", "C:\\T\\a.tmp", "C:\\T\\big.bin"}));
  EXPECT_EQ(rows(walked.form().view1, 1), (Texts{"10 B", "10 B", "0 B"}));
  EXPECT_EQ(walked.form().totals.catfiles, 3);
  EXPECT_EQ(walked.form().totals.catsize, 20);
}

// --- The pending test.

TEST(Srch, SkipsAFileThatIsAlreadyPending) {
  Walked walked({"C:\\T\\A.tmp", "C:\\T\\b.tmp"});
  walked.form().Text15.set_text("|\\??\\c:\\t\\a.tmp|");
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\b.tmp"}));
}

TEST(Srch, SkipsAFileWhosePathIsPartOfAPendingOne) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\b.tmp"});
  walked.form().Text15.set_text("|\\??\\c:\\t\\a.tmp.bak|");
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\b.tmp"}));
}

TEST(Srch, FoldsAllLettersForThePendingTest) {
  Walked walked({"C:\\T\\ÄÖ.tmp"});
  walked.form().Text15.set_text("|\\??\\c:\\t\\äö.tmp|");
  EXPECT_EQ(walked.srch("C:\\T"), Texts{});
}

TEST(Srch, NothingIsCountedForAFileThatIsNotListed) {
  Walked walked({"C:\\T\\a.tmp"});
  walked.form().Text15.set_text("|c:\\t\\a.tmp|");
  walked.srch("C:\\T");
  EXPECT_EQ(walked.form().totals.catfiles, 0);
  EXPECT_EQ(walked.form().totals.catsize, 0);
}

// --- The desktop test.

TEST(Srch, NeverListsDesktopIniInAnyCase) {
  Walked walked({"C:\\T\\desktop.ini", "C:\\T\\sub\\Desktop.INI", "C:\\T\\desktop.txt"});
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\desktop.txt"}));
}

TEST(Srch, LooksForDesktopIniInTheWholePath) {
  Walked walked({"C:\\T\\My Desktop.ini files\\a.tmp", "C:\\T\\old-desktop.ini.bak", "C:\\T\\b"});
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\b"}));
}

// --- The ignore test.

TEST(Srch, AnEntryForAFileKeepsOutItsWholeFolder) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\b.tmp", "C:\\U\\c.tmp"});
  walked.form().ignorelist.set_text("c:\\t\\a.tmp|");
  EXPECT_EQ(walked.srch("C:\\"), (Texts{"C:\\U\\c.tmp"}));
}

TEST(Srch, AnEntryForAFolderKeepsOutTheFilesDirectlyInIt) {
  for (const char* entry : {"c:\\t\\|", "c:\\t|"}) {
    Walked walked({"C:\\T\\a.tmp", "C:\\T\\sub\\b.tmp"});
    walked.form().ignorelist.set_text(entry);
    EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\sub\\b.tmp"})) << entry;
  }
}

TEST(Srch, AFolderNamedInsideALongerEntryIsLeftOut) {
  Walked walked(
      {"C:\\T\\a.tmp", "C:\\T\\sub\\b.tmp", "C:\\T\\sub\\deep\\c.tmp", "C:\\T\\x\\d.tmp"});
  walked.form().ignorelist.set_text("c:\\t\\sub\\deep\\|");
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\x\\d.tmp"}));
}

TEST(Srch, AnEntryDoesNotReachAFolderWhoseNameOnlyBeginsLikeIt) {
  Walked walked({"C:\\T\\a.tmp", "C:\\Temp\\b.tmp"});
  walked.form().ignorelist.set_text("c:\\temp|");
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\a.tmp"}));
}

TEST(Srch, FoldsAllLettersForTheIgnoreTest) {
  Walked walked({"C:\\ÄÖ\\a.tmp"});
  walked.form().ignorelist.set_text("c:\\äö\\|");
  EXPECT_EQ(walked.srch("C:\\ÄÖ"), Texts{});
}

TEST(Srch, AFileThatOverflowedHasNoFolderToIgnore) {
  Walked walked({"C:\\T\\a.tmp"});
  walked.machine.add_file("C:\\T\\big.bin", 5 * kGiB);
  walked.form().ignorelist.set_text("c:\\t\\|");
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\big.bin"}));
}

// --- The message loop and the cancel request.

TEST(Srch, ServesTheLoopOnceForEachFileListedOrNot) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\desktop.ini", "C:\\T\\sub\\b.tmp"});
  int served = 0;
  walked.machine.loop().set_served_hook([&] { ++served; });
  walked.srch("C:\\T");
  EXPECT_EQ(served, 3);
}

TEST(Srch, ShowsTheFileItLooksAt) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\desktop.ini"});
  Texts shown;
  walked.form().Text13.on_change = [&] { shown.push_back(walked.form().Text13.text()); };
  walked.srch("C:\\T");
  EXPECT_EQ(shown, (Texts{"C:\\T\\a.tmp", "C:\\T\\desktop.ini"}));
}

TEST(Srch, StopsAtTheFirstFileAfterACancel) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\b.tmp", "C:\\T\\c.tmp"});
  walked.at_serving(2, [&] { walked.form().cancelflag = 1; });
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\a.tmp"}));
  EXPECT_EQ(walked.form().Text13.text(), "C:\\T\\b.tmp");
  EXPECT_EQ(walked.form().totals.catfiles, 1);
}

// --- A reading that is looked on at.

TEST(Srch, ShowsTheFolderBeforeItIsRead) {
  Walked walked({"C:\\T\\a.tmp"});
  Texts shown;
  walked.machine.loop().set_reading_hook([&](const TreeProgress& progress) {
    shown.emplace_back(progress.folder);
    return true;
  });
  EXPECT_EQ(walked.srch("C:\\T\\"), (Texts{"C:\\T\\a.tmp"}));
  ASSERT_FALSE(shown.empty());
  EXPECT_EQ(shown.front(), "C:\\T");
}

TEST(Srch, ALookAtTheReadingChangesNothing) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\b.tmp"});
  int served = 0;
  walked.machine.loop().set_served_hook([&] { ++served; });
  Texts shown;
  walked.form().Text13.on_change = [&] { shown.push_back(walked.form().Text13.text()); };
  walked.machine.loop().set_reading_hook([](const TreeProgress&) { return true; });
  walked.srch("C:\\T");
  EXPECT_EQ(served, 2);
  EXPECT_EQ(shown, (Texts{"C:\\T\\a.tmp", "C:\\T\\b.tmp"}));
}

TEST(Srch, AnEndedReadingServesTheLoopSoThatTheCancelIsSeen) {
  Walked walked({"C:\\T\\a.tmp"});
  int served = 0;
  walked.machine.loop().set_reading_hook([](const TreeProgress&) { return false; });
  walked.machine.loop().set_served_hook([&] {
    ++served;
    walked.form().cancelflag = 1;
  });
  EXPECT_EQ(walked.srch("C:\\T"), Texts{});
  // Ended before anything was read: the turn is not one for a file.
  EXPECT_EQ(served, 1);
  EXPECT_EQ(walked.form().Text13.text(), "");
}

TEST(Srch, WhatWasReadBeforeTheEndIsJudgedAsEver) {
  // A disk whose reading the user ends behind the first file.
  Walked walked({"C:\\T\\a.tmp"});
  struct EndedFiles final : ForwardingFileSystem {
    using ForwardingFileSystem::ForwardingFileSystem;
    std::shared_ptr<const FolderTree> read_tree_watched(const std::string& folder,
                                                        const TreeRequest& request,
                                                        TreeReading* watch) const override {
      auto tree = next().read_tree_for(folder, request);
      EXPECT_FALSE(watch->go_on({folder, 1}));
      return tree;
    }
  } files(walked.machine.platform().files);
  Program program(walked.machine.platform().with({.files = &files}));
  program.start("");
  Form7& form = program.main_window();
  form.view1.clear();
  walked.machine.loop().set_reading_hook([](const TreeProgress&) { return false; });
  int served = 0;
  walked.machine.loop().set_served_hook([&] { ++served; });

  form.srch("C:\\T", "*.*", 2);

  // Nobody said Cancel in the end: the file is listed, in a turn of its own.
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\T\\a.tmp"}));
  EXPECT_EQ(served, 2);
}

TEST(Srch, ACancelBeforeTheFirstFileStillLetsTheTreeBeWalked) {
  Walked walked({"C:\\T\\a.tmp"});
  walked.machine.add_file("C:\\T\\z\\big.bin", 5 * kGiB);
  walked.form().cancelflag = 1;
  static_cast<void>(walked.machine.effects().take());

  EXPECT_EQ(walked.srch("C:\\T"), Texts{});

  // The search came by the file that is too big.
  const auto effects = walked.machine.effects().take();
  ASSERT_EQ(effects.size(), 1U);
  EXPECT_EQ(effects[0].kind, "event-log");
}

TEST(Srch, AQueueThatGrowsDuringTheWalkCountsFromTheNextFileOn) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\b.tmp", "C:\\T\\c.tmp"});
  walked.at_serving(2, [&] { walked.form().Text15.set_text("|c:\\t\\b.tmp|c:\\t\\a.tmp|"); });
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\a.tmp", "C:\\T\\c.tmp"}));
}

TEST(Srch, GoesOnInAListThatWasEmptiedMeanwhile) {
  Walked walked({"C:\\T\\a.tmp", "C:\\T\\b.tmp", "C:\\T\\c.tmp"});
  walked.at_serving(3, [&] { walked.form().view1.clear(); });
  EXPECT_EQ(walked.srch("C:\\T"), (Texts{"C:\\T\\c.tmp"}));
}

// --- srch2.

TEST(Srch2, ListsEmptyFilesOnly) {
  Walked walked({"C:\\T\\full.msi"});
  walked.machine.add_file("C:\\T\\empty.msi", 0);
  walked.machine.add_file("C:\\T\\sub\\empty.msi", 0);
  walked.machine.add_file("C:\\T\\empty.txt", 0);
  EXPECT_EQ(walked.srch2("C:\\T", "*.msi"), (Texts{"C:\\T\\sub\\empty.msi", "C:\\T\\empty.msi"}));
  EXPECT_EQ(walked.form().totals.catfiles, 2);
  EXPECT_EQ(walked.form().totals.catsize, 0);
}

TEST(Srch2, AFileWhoseSizeOverflowsIsNotEmpty) {
  Walked walked({});
  walked.machine.add_file("C:\\T\\empty.msi", 0);
  walked.machine.add_file("C:\\T\\huge.msi", 5'368'709'120);
  EXPECT_EQ(walked.srch2("C:\\T", "*.msi"), (Texts{"C:\\T\\empty.msi"}));
  EXPECT_EQ(walked.form().totals.catfiles, 1);
}

TEST(Srch2, ListsAnEmptyDesktopIni) {
  Walked walked({});
  walked.machine.add_file("C:\\T\\desktop.ini", 0);
  EXPECT_EQ(walked.srch2("C:\\T", "*.ini"), (Texts{"C:\\T\\desktop.ini"}));
}

TEST(Srch2, AppliesTheOtherTestsAsSrchDoes) {
  Walked walked({});
  for (const char* path : {"C:\\T\\a.msi", "C:\\T\\b.msi", "C:\\U\\c.msi"}) {
    walked.machine.add_file(path, 0);
  }
  walked.form().Text15.set_text("|c:\\t\\a.msi|");
  walked.form().ignorelist.set_text("c:\\u\\|");
  EXPECT_EQ(walked.srch2("C:\\", "*.msi"), (Texts{"C:\\T\\b.msi"}));
}

TEST(Srch2, StopsAtACancelToo) {
  Walked walked({});
  walked.machine.add_file("C:\\T\\a.msi", 0);
  walked.form().cancelflag = 1;
  EXPECT_EQ(walked.srch2("C:\\T", "*.msi"), Texts{});
}

}  // namespace
}  // namespace quillvane
