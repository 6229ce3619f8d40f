#include "scan/clsdirsearch.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"
#include "tests/support/watched_files.h"

namespace quillvane {
namespace {

// A search on a machine with these files, which writes down what it is told.
struct Told {
  explicit Told(const Texts& files) {
    for (const std::string& path : files) machine.add_file(path, 10);
    search.searching = [this](const std::string& path) { folders.push_back(path); };
    search.found = [this](const std::string& path, const std::string& name) {
      files_found.push_back(path + name);
      if (on_found) on_found();
    };
  }

  Texts find(const std::string& path, const std::string& patterns) {
    files_found.clear();
    folders.clear();
    search.findfiles(path, patterns);
    return files_found;
  }

  TempMachine machine;
  Session session{machine.platform()};
  clsdirsearch search{session};
  std::function<void()> on_found;
  Texts files_found;
  Texts folders;
};

// --- Order.

TEST(Findfiles, TakesAFolderWhollyBeforeItsSubfolders) {
  Told told({"C:\\T\\z.tmp", "C:\\T\\a\\b.tmp", "C:\\T\\a\\deep\\c.tmp", "C:\\T\\b\\d.tmp",
             "C:\\U\\e.tmp"});
  EXPECT_EQ(told.find("C:\\T", "*.tmp"),
            (Texts{"C:\\T\\z.tmp", "C:\\T\\a\\b.tmp", "C:\\T\\a\\deep\\c.tmp", "C:\\T\\b\\d.tmp"}));
  EXPECT_EQ(told.folders, (Texts{"C:\\T\\", "C:\\T\\a\\", "C:\\T\\a\\deep\\", "C:\\T\\b\\"}));
}

TEST(Findfiles, TakesOnePatternAfterTheOtherInEachFolder) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.bak", "C:\\T\\c.tmp", "C:\\T\\s\\d.bak", "C:\\T\\s\\e.tmp"});
  EXPECT_EQ(told.find("C:\\T", "*.bak|*.tmp"),
            (Texts{"C:\\T\\b.bak", "C:\\T\\a.tmp", "C:\\T\\c.tmp", "C:\\T\\s\\d.bak",
                   "C:\\T\\s\\e.tmp"}));
}

TEST(Findfiles, TellsOfAFolderBeforeItsFiles) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\s\\b.tmp"});
  Texts order;
  told.search.searching = [&](const std::string& path) { order.push_back(path); };
  told.search.found = [&](const std::string& path, const std::string& name) {
    order.push_back(path + "|" + name);
  };
  told.search.findfiles("C:\\T", "*.tmp");
  EXPECT_EQ(order, (Texts{"C:\\T\\", "C:\\T\\|a.tmp", "C:\\T\\s\\", "C:\\T\\s\\|b.tmp"}));
}

TEST(Findfiles, FindsEveryFileOfADriveByItsLetter) {
  Told told({"C:\\a", "C:\\T\\b.tmp"});
  EXPECT_EQ(told.find("C:", "*.*"), (Texts{"C:\\a", "C:\\T\\b.tmp"}));
  EXPECT_EQ(told.find("C:\\", "*.*"), (Texts{"C:\\a", "C:\\T\\b.tmp"}));
}

TEST(Findfiles, StaysInTheFolderWithoutSubfolders) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\s\\b.tmp"});
  told.search.searchinsubfolders = false;
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
  EXPECT_EQ(told.folders, (Texts{"C:\\T\\"}));
}

TEST(Findfiles, SearchesSubfoldersUnlessToldOtherwise) {
  Told told({});
  EXPECT_TRUE(told.search.searchinsubfolders);
}

TEST(Findfiles, APatternAlsoMatchesAShortName) {
  Told told({"C:\\T\\a.tmpx", "C:\\T\\b.bak"});
  EXPECT_EQ(told.find("C:\\T", "*.bak|*.tmp"), (Texts{"C:\\T\\b.bak", "C:\\T\\a.tmpx"}));
}

TEST(Findfiles, TakesAnyNumberOfPatterns) {
  Told told({"C:\\T\\0.x", "C:\\T\\40.x", "C:\\T\\99.x"});
  std::string patterns = "99.*";
  for (int i = 98; i >= 0; --i) patterns += "|" + std::to_string(i) + ".*";
  EXPECT_EQ(told.find("C:\\T", patterns), (Texts{"C:\\T\\99.x", "C:\\T\\40.x", "C:\\T\\0.x"}));
}

// --- The disk and the message loop.

TEST(Findfiles, ReadsTheDiskOnceWhateverTheNumberOfPatterns) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\s\\b.bak"});
  WatchedFiles files(told.machine.platform().files);
  Session session(told.machine.platform().with({.files = &files}));
  clsdirsearch search(session);
  search.findfiles("C:\\T", "*.tmp|*.bak|*.*");
  EXPECT_EQ(files.asked, (Texts{"C:\\T\\"}));
}

TEST(Findfiles, ReadsNoSubfolderThatItDoesNotSearch) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\s\\b.tmp"});
  WatchedFiles files(told.machine.platform().files);
  Session session(told.machine.platform().with({.files = &files}));
  clsdirsearch search(session);
  search.searchinsubfolders = false;
  search.findfiles("C:\\T", "*.tmp");
  ASSERT_NE(search.filesfound(), nullptr);
  ASSERT_EQ(files.trees.size(), 1U);
  EXPECT_EQ(files.trees[0].lock()->root().first_subfolder(), nullptr);
}

TEST(Findfiles, ServesTheLoopForEachEntryOfAFolder) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.txt", "C:\\T\\s\\c.txt"});
  int served = 0;
  told.machine.loop().set_served_hook([&] { ++served; });
  // T holds ".", "..", two files and a folder; s holds ".", ".." and a file. Patterns count
  // nothing.
  told.find("C:\\T", "*.tmp|*.bak");
  EXPECT_EQ(served, 5 + 3);
  // The root of a drive lists no dots: T and what is in it.
  served = 0;
  told.find("C:", "*.tmp");
  EXPECT_EQ(served, 1 + 5 + 3);
  served = 0;
  told.find("C:\\missing", "*.tmp");
  EXPECT_EQ(served, 0);
}

// --- Each file once.

TEST(Findfiles, AFileThatTwoPatternsMatchComesByTheFirst) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.bak"});
  EXPECT_EQ(told.find("C:\\T", "b*|*.*|*.bak"), (Texts{"C:\\T\\b.bak", "C:\\T\\a.tmp"}));
}

// Windows makes no names that differ by case alone; a host does.
void add_host_files(Told& told, const Texts& paths) {
  told.machine.add_folder("C:\\T");
  for (const std::string& path : paths) {
    const std::filesystem::path file = told.machine.host_path("C:\\T") + "/" + path;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "x";
  }
}

TEST(Findfiles, FilesThatDifferByCaseAloneComeOnce) {
  Told told({});
  add_host_files(told, {"A.tmp", "a.tmp", "Ä.tmp", "ä.tmp", "b.tmp"});
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\A.tmp", "C:\\T\\b.tmp", "C:\\T\\Ä.tmp"}));
}

TEST(Findfiles, FilesOfFoldersThatDifferByCaseAloneComeOnce) {
  Told told({});
  add_host_files(told, {"Sub/x/a.tmp", "sub/x/A.tmp", "sub/x/b.tmp", "v/a.tmp"});
  EXPECT_EQ(told.find("C:\\T", "*.tmp"),
            (Texts{"C:\\T\\Sub\\x\\a.tmp", "C:\\T\\sub\\x\\b.tmp", "C:\\T\\v\\a.tmp"}));
}

TEST(Findfiles, EachSearchBeginsAnew) {
  Told told({"C:\\T\\a.tmp"});
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
  EXPECT_EQ(told.search.filesfound()->Count(), 1U);
}

TEST(Findfiles, KeepsWhatItHasFound) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.bak", "C:\\T\\s\\c.tmp"});
  Texts last;
  told.on_found = [&] {
    const Files& files = *told.search.filesfound();
    last.push_back(files.full_name(files.Count() - 1));
  };
  told.find("C:\\T", "*.bak|*.tmp");
  EXPECT_EQ(last, (Texts{"C:\\T\\b.bak", "C:\\T\\a.tmp", "C:\\T\\s\\c.tmp"}));
}

// --- Places that are none.

TEST(Findfiles, AMissingFolderIsToldOfAndYieldsNothing) {
  Told told({"C:\\a.tmp"});
  EXPECT_EQ(told.find("C:\\missing", "*.*"), Texts{});
  EXPECT_EQ(told.folders, (Texts{"C:\\missing\\"}));
  EXPECT_EQ(told.find("Q:", "*.*"), Texts{});
  EXPECT_EQ(told.search.filesfound(), nullptr);
}

TEST(Findfiles, APathWithoutADriveIsNotSearched) {
  Told told({"C:\\a.tmp", "C:\\temp\\b.tmp"});
  for (const char* path : {"", "\\", "\\temp", "temp", "."}) {
    EXPECT_EQ(told.find(path, "*.*"), Texts{}) << path;
    EXPECT_EQ(told.folders, Texts{}) << path;
  }
}

TEST(Findfiles, PatternsThatAreNoneMatchNothing) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\s\\b.tmp"});
  for (const char* patterns : {"", "|", "s\\*.tmp", "..", "fgrft.gftr"}) {
    EXPECT_EQ(told.find("C:\\T", patterns), Texts{}) << patterns;
    EXPECT_EQ(told.folders.size(), 2U) << patterns;
  }
}

TEST(Findfiles, AFolderThatCannotBeReadIsToldOfAndYieldsNothing) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\s\\b.tmp"});
  told.machine.machine().add_denied("C:\\T\\s");
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
  EXPECT_EQ(told.folders, (Texts{"C:\\T\\", "C:\\T\\s\\"}));
}

TEST(Findfiles, AFileWhosePathIsTooLongIsNotFound) {
  const std::string folder = "C:\\" + std::string(200, 'f') + "\\";
  const std::string longest = std::string(259 - folder.size() - 4, 'n') + ".tmp";
  Told told({folder + longest, folder + "n" + longest});
  EXPECT_EQ(told.find("C:", "*.tmp"), (Texts{folder + longest}));
}

// --- Cancel and pause.

TEST(Cancel, EndsTheSearchBehindTheFileInHand) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.tmp", "C:\\T\\s\\c.tmp"});
  told.on_found = [&] { told.search.Cancel(); };
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
  EXPECT_EQ(told.folders, (Texts{"C:\\T\\"}));
}

TEST(Cancel, IsForgottenByTheNextSearch) {
  Told told({"C:\\T\\a.tmp"});
  told.search.Cancel();
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
}

TEST(Cancel, IsSeenWhileTheEntriesOfAFolderPass) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.tmp"});
  told.machine.loop().set_served_hook([&] { told.search.Cancel(); });
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), Texts{});
}

TEST(Pause, HoldsTheSearchUntilItIsTakenBack) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.tmp"});
  int waited = 0;
  told.machine.loop().set_served_hook([&] {
    if (told.search.pause && ++waited == 5) told.search.pause = false;
  });
  told.on_found = [&] { told.search.pause = told.files_found.size() == 1; };
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp", "C:\\T\\b.tmp"}));
  EXPECT_EQ(waited, 5);
}

TEST(Pause, EndsWithACancel) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.tmp"});
  int waited = 0;
  told.machine.loop().set_served_hook([&] {
    if (told.search.pause && ++waited == 3) told.search.Cancel();
  });
  told.on_found = [&] { told.search.pause = true; };
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
}

TEST(Pause, IsForgottenByTheNextSearch) {
  Told told({"C:\\T\\a.tmp"});
  told.search.pause = true;
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
}

TEST(Pause, EndsWithTheProgram) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.tmp"});
  told.on_found = [&] {
    told.search.pause = true;
    told.session.end();
  };
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp"}));
}

TEST(Findfiles, AHandlerMayBeginASearchOfItsOwn) {
  Told told({"C:\\T\\a.tmp", "C:\\T\\b.tmp", "C:\\U\\c.tmp"});
  bool nested = false;
  told.on_found = [&] {
    if (std::exchange(nested, true)) return;
    told.search.findfiles("C:\\U", "*.*");
  };
  EXPECT_EQ(told.find("C:\\T", "*.tmp"), (Texts{"C:\\T\\a.tmp", "C:\\U\\c.tmp", "C:\\T\\b.tmp"}));
  EXPECT_EQ(told.search.filesfound()->Count(), 2U);
}

}  // namespace
}  // namespace quillvane
