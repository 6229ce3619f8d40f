#include "categories/windows_categories.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

using Routine = void (*)(JunkPage&);

// The window on a machine that has these files of 10 bytes each.
struct Staged : ScanFixture {
  explicit Staged(const Texts& files, std::string_view machine_json = {})
      : ScanFixture(machine_json) {
    for (const std::string& path : files) machine.add_file(path, 10);
    start();
  }
  Form7& form() { return program->main_window(); }

  // The rows that a routine adds.
  Texts run(Routine routine) {
    const int before = form().view1.count();
    routine(form());
    Texts all = rows(form().view1);
    all.erase(all.begin(), all.begin() + before);
    return all;
  }
};

// Plants files that the routine finds, in the order of its places, and decoys beside them that it
// does not. A file that two places find stands there twice.
void expect_finds(Routine routine, int node, const Texts& found, const Texts& decoys) {
  Staged staged(found);
  for (const std::string& path : decoys) staged.machine.add_file(path, 10);

  EXPECT_EQ(staged.run(routine), found);

  EXPECT_EQ(rows_of(staged.form().view1, node), found);
  EXPECT_EQ(staged.form().totals.catfiles, static_cast<double>(found.size()));
  EXPECT_EQ(staged.form().totals.catsize, 10.0 * static_cast<double>(found.size()));
}

// --- The places, one file for each.

TEST(WindowsCategories, SystempLooksAtSixPlaces) {
  const std::string cache = "\\AppData\\LocalLow\\Microsoft\\CryptnetUrlCache";
  const std::string local_service = "C:\\Windows\\ServiceProfiles\\LocalService";
  const std::string system_profile = "C:\\Windows\\System32\\config\\systemprofile";
  expect_finds(systemp, 2,
               {
                   "C:\\Windows\\Temp\\deep\\a.any",
                   "C:\\Users\\User" + cache + "\\Content\\B1",
                   system_profile + cache + "\\Content\\C1",
                   local_service + cache + "\\Content\\D1",
                   local_service + "\\AppData\\Local\\FontCache\\~e.dat",
                   "C:\\Windows\\winsxs\\ManifestCache\\f.bin",
               },
               {
                   "C:\\Windows\\Temporary\\a.any",
                   "C:\\Users\\User" + cache + "\\MetaData\\B1",
                   system_profile + cache + "\\MetaData\\C1",
                   "C:\\Windows\\ServiceProfiles\\NetworkService" + cache + "\\Content\\D1",
                   local_service + "\\AppData\\Local\\FontCache\\e.dat",
                   local_service + "\\AppData\\Local\\FontCache\\~e.txt",
                   "C:\\Windows\\winsxs\\Manifests\\f.bin",
               });
}

TEST(WindowsCategories, UtempLooksAtTheFolderForTemporaryFiles) {
  expect_finds(utemp, 3, {"C:\\Users\\User\\AppData\\Local\\Temp\\deep\\a.any"},
               {"C:\\Users\\User\\AppData\\Local\\b.any", "C:\\Windows\\Temp\\c.any"});
}

TEST(WindowsCategories, ThumbLooksAtThumbnailsAndFontCaches) {
  expect_finds(
      thumb, 4,
      {
          "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer\\thumbcache_32.db",
          "C:\\Windows\\ServiceProfiles\\LocalService\\AppData\\Local\\~FontCache-1.dat",
          "C:\\Windows\\system32\\deep\\FNTCACHE.DAT",
      },
      {
          "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer\\thumbs.txt",
          "C:\\Windows\\ServiceProfiles\\LocalService\\AppData\\Local\\~other.dat",
          "C:\\Windows\\system32\\FNTCACHE.BAK",
      });
}

TEST(WindowsCategories, ErrorrepLooksAtSixPlaces) {
  const std::string user = "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\WER";
  const std::string odd = "C:\\ProgramData\\AppData\\Local\\Microsoft\\Windows\\WER";
  const std::string all = "C:\\ProgramData\\Microsoft\\Windows\\WER";
  expect_finds(errorrep, 6,
               {
                   user + "\\ReportArchive\\one\\a.wer",
                   user + "\\ReportQueue\\b.wer",
                   odd + "\\ReportArchive\\c.wer",
                   odd + "\\ReportQueue\\d.wer",
                   all + "\\ReportArchive\\e.wer",
                   all + "\\ReportQueue\\f.wer",
               },
               {user + "\\a.wer", odd + "\\Temp\\c.wer", all + "\\Temp\\e.wer"});
}

// Two places stand twice in the list, and what they find is listed and counted twice.
TEST(WindowsCategories, LogfileLooksAtNineteenPlaces) {
  const std::string search = "C:\\ProgramData\\Microsoft\\Search\\Data\\Applications";
  const std::string user = "C:\\Users\\User\\AppData";
  expect_finds(logfile, 7,
               {
                   "C:\\Windows\\system32\\logfiles\\a.log",
                   "C:\\Windows\\system32\\logfiles\\a.log",
                   "C:\\Windows\\system32\\logfiles\\wmi\\b.etl",
                   "C:\\Windows\\Logs\\CBS\\c.log",
                   "C:\\Windows\\SoftwareDistribution\\d.log",
                   "C:\\Windows\\SoftwareDistribution\\DataStore\\e.jrs",
                   "C:\\Windows\\SoftwareDistribution\\DataStore\\f.chk",
                   user + "\\Roaming\\Microsoft\\Windows\\g.log",
                   user + "\\local\\Microsoft\\Windows\\h.log",
                   user + "\\local\\Microsoft\\CLR_v4.0\\UsageLogs\\i.log",
                   "C:\\Windows\\debug\\j.log",
                   "C:\\Windows\\system32\\logfiles\\wmi\\b.etl",
                   "C:\\Windows\\system32\\logfiles\\scm\\k.any",
                   "C:\\Windows\\security\\logs\\l.any",
                   "C:\\Windows\\inf\\m.log",
                   "C:\\Windows\\Microsoft.NET\\Framework\\n.log",
                   search + "\\Windows\\o.log",
                   search + "\\Windows\\p.jrs",
                   search + "\\Windows\\q.chk",
               },
               {
                   "C:\\Windows\\system32\\logfiles\\a.txt",
                   "C:\\Windows\\Logs\\c.etl",
                   "C:\\Windows\\SoftwareDistribution\\d.txt",
                   user + "\\Roaming\\Microsoft\\g.log",
                   user + "\\local\\Microsoft\\h.log",
                   user + "\\local\\Microsoft\\CLR_v4.0\\i.txt",
                   user + "\\local\\Microsoft\\Office\\i.log",
                   user + "\\local\\Microsoft\\Office\\CLR_v4.0\\i.log",  // no direct subfolder
                   "C:\\Windows\\debug\\j.txt",
                   "C:\\Windows\\security\\l.any",
                   "C:\\Windows\\inf\\m.inf",
                   "C:\\Windows\\Microsoft.NET\\n.txt",
                   search + "\\o.log",
                   search + "\\Windows\\p.edb",
               });
}

TEST(WindowsCategories, DownloadprogLooksAtOnePlace) {
  expect_finds(downloadprog, 9, {"C:\\Windows\\Downloaded Program Files\\deep\\a.any"},
               {"C:\\Windows\\Downloaded Programs\\b.any"});
}

TEST(WindowsCategories, WupdatesLooksForDownloadsAndPatches) {
  expect_finds(wupdates, 10,
               {
                   "C:\\Windows\\SoftwareDistribution\\Download\\deep\\a.any",
                   "C:\\Windows\\Installer\\$PatchCache$\\Managed\\b.any",
               },
               {
                   "C:\\Windows\\SoftwareDistribution\\c.any",
                   "C:\\Windows\\Installer\\d.any",
                   "C:\\Windows\\Installer\\full.msi",
               });
}

TEST(WindowsCategories, WupdatesTakesEmptyPackagesOfTheInstaller) {
  Staged staged({});
  staged.machine.add_file("C:\\Windows\\Installer\\a.msi", 0);
  staged.machine.add_file("C:\\Windows\\Installer\\deep\\b.msi", 0);
  staged.machine.add_file("C:\\Windows\\Installer\\c.msp", 0);
  EXPECT_EQ(staged.run(wupdates),
            (Texts{"C:\\Windows\\Installer\\deep\\b.msi", "C:\\Windows\\Installer\\a.msi"}));
  EXPECT_EQ(rows(staged.form().view1, kCategoryColumn), (Texts{"10", "10"}));
}

TEST(WindowsCategories, WhistoryLooksAtTwoPlaces) {
  const std::string roaming = "C:\\Users\\User\\AppData\\Roaming\\microsoft";
  expect_finds(whistory, 11,
               {
                   roaming + "\\windows\\recent\\deep\\a.lnk",
                   roaming + "\\office\\recent\\b.lnk",
               },
               {
                   roaming + "\\windows\\recent\\a.txt",
                   roaming + "\\windows\\a.lnk",
                   roaming + "\\office\\recent\\b.url",
               });
}

TEST(WindowsCategories, AFontCacheIsListedUnderTwoCategories) {
  const std::string path = "C:\\Windows\\ServiceProfiles\\LocalService\\AppData\\Local\\~font1.dat";
  Staged staged({path});
  EXPECT_EQ(staged.run(systemp), Texts{path});
  EXPECT_EQ(staged.run(thumb), Texts{path});
  EXPECT_EQ(rows(staged.form().view1, kCategoryColumn), (Texts{"2", "4"}));
}

TEST(WindowsCategories, PlacesFollowTheEnvironmentOfTheMoment) {
  Staged staged({"C:\\Other\\Temp\\a.tmp", "C:\\Windows\\Temp\\b.tmp", "C:\\Mine\\c.tmp"});
  staged.machine.set_environment("windir", "C:\\Other");
  staged.machine.set_environment("TEMP", "C:\\Mine");
  EXPECT_EQ(staged.run(systemp), (Texts{"C:\\Other\\Temp\\a.tmp"}));
  EXPECT_EQ(staged.run(utemp), (Texts{"C:\\Mine\\c.tmp"}));
}

// --- What every routine does around its places.

TEST(WindowsCategories, ANodeIsGreenWhileItIsScannedAndThenRed) {
  Staged staged({"C:\\Windows\\Temp\\a.tmp"});
  Color during = 0;
  staged.at_serving(1, [&] { during = staged.form().Tv1.node(2).fore_color; });
  staged.run(systemp);
  EXPECT_EQ(during, 32768U);
  EXPECT_EQ(staged.form().Tv1.node(2).fore_color, 192U);
  EXPECT_EQ(staged.form().Tv1.node(2).text, "System Temporary ( 1 files, 10 B )");
}

TEST(WindowsCategories, ACategoryWithoutFilesEndsInBlack) {
  struct Case {
    Routine routine;
    int node;
    std::string text;
  };
  const Case cases[] = {
      {systemp, 2, "System Temporary ( 0 files, 0 B )"},
      {utemp, 3, "User Temporary ( 0 files, 0 B )"},
      {thumb, 4, "Thumbnail cache ( 0 files, 0 B )"},
      {memdump, 5, "Memory Dump Files ( 0 files, 0 Byte )"},
      {errorrep, 6, "Error Report Files ( 0 files, 0 B )"},
      {logfile, 7, "Log Files ( 0 files, 0 B )"},
      {recycleb, 8, "Recycle Bin ( 0 files, 0 B )"},
      {downloadprog, 9, "Downloaded Programs ( 0 files, 0 B )"},
      {wupdates, 10, "Windows Updates & installer ( 0 files, 0 B )"},
      {whistory, 11, "Windows History ( 0 files, 0 B )"},
  };
  Staged staged({});
  for (const auto& [routine, node, text] : cases) {
    EXPECT_EQ(staged.run(routine), Texts{}) << node;
    EXPECT_EQ(staged.form().Tv1.node(node).text, text);
    EXPECT_EQ(staged.form().Tv1.node(node).fore_color, 0U) << node;
  }
}

TEST(WindowsCategories, ADeniedPlaceIsPassedOver) {
  Staged staged({"C:\\Windows\\Temp\\a.tmp", "C:\\Windows\\winsxs\\ManifestCache\\b.bin"});
  staged.machine.machine().add_denied("C:\\Windows\\Temp");
  EXPECT_EQ(staged.run(systemp), (Texts{"C:\\Windows\\winsxs\\ManifestCache\\b.bin"}));
}

TEST(WindowsCategories, EachAddsItsCountAndBytesToTheGroup) {
  Staged staged({"C:\\Windows\\Temp\\a.tmp", "C:\\Windows\\Downloaded Program Files\\b.dll"});
  staged.run(systemp);
  staged.run(downloadprog);
  EXPECT_EQ(staged.form().totals.winfiles, 2);
  EXPECT_EQ(staged.form().totals.winsize, 20);
  EXPECT_EQ(staged.form().totals.catfiles, 1);
}

TEST(WindowsCategories, ANodeThatIsScannedTwiceHasTwoResults) {
  Staged staged({"C:\\Windows\\Temp\\a.tmp"});
  staged.run(systemp);
  staged.run(systemp);
  EXPECT_EQ(staged.form().Tv1.node(2).text, "System Temporary ( 1 files, 10 B ) ( 1 files, 10 B )");
}

TEST(WindowsCategories, ACancelledCategoryStillWritesItsResult) {
  Staged staged({"C:\\Windows\\Temp\\a.tmp", "C:\\Windows\\Temp\\b.tmp",
                 "C:\\Windows\\winsxs\\ManifestCache\\c.bin"});
  staged.at_serving(2, [&] { staged.form().cancelflag = 1; });
  EXPECT_EQ(staged.run(systemp), (Texts{"C:\\Windows\\Temp\\a.tmp"}));
  EXPECT_EQ(staged.form().Text13.text(), "C:\\Windows\\winsxs\\ManifestCache\\c.bin");
  EXPECT_EQ(staged.form().Tv1.node(2).text, "System Temporary ( 1 files, 10 B )");
}

// --- The dump file, which is reported but neither listed nor counted.

const std::string kCrashControl = "SYSTEM\\CurrentControlSet\\Control\\CrashControl";

// A machine whose dump file is stored like this.
struct WithDump : Staged {
  explicit WithDump(const std::string& stored, std::string_view machine_json = {})
      : Staged({}, machine_json) {
    machine.set_registry_value(Hive::kLocalMachine, kCrashControl, "DumpFile",
                               {RegistryType::kExpandSz, stored + '\0'});
  }
};

TEST(Memdump, ReportsTheFileInItsNodeOnly) {
  WithDump staged("%SystemRoot%\\MEMORY.DMP");
  staged.machine.add_file("C:\\Windows\\MEMORY.DMP", 3575644);

  EXPECT_EQ(staged.run(memdump), Texts{});

  EXPECT_EQ(staged.form().Tv1.node(5).text, "Memory Dump Files ( 1 file, 3.41 MB )");
  EXPECT_EQ(staged.form().Tv1.node(5).fore_color, 192U);
  EXPECT_EQ(staged.form().totals.winfiles, 0);
  EXPECT_EQ(staged.form().totals.winsize, 0);
}

TEST(Memdump, AddsTheNumbersOfTheCategoryBeforeASecondTime) {
  for (const bool dumped : {false, true}) {
    WithDump staged("C:\\MEMORY.DMP");
    if (dumped) staged.machine.add_file("C:\\MEMORY.DMP", 5000);
    staged.machine.add_file("C:\\Windows\\system32\\FNTCACHE.DAT", 30);
    staged.run(thumb);

    staged.run(memdump);

    EXPECT_EQ(staged.form().totals.catfiles, 1) << dumped;
    EXPECT_EQ(staged.form().totals.winfiles, 2) << dumped;
    EXPECT_EQ(staged.form().totals.winsize, 60) << dumped;
  }
}

struct DumpCase {
  const char* what;
  const char* stored;
  bool is_there;
};

TEST(Memdump, CountsOnlyAFileThatIsThere) {
  const DumpCase cases[] = {
      {"the file", "C:\\dumps\\MEMORY.DMP", true},
      {"a folder", "C:\\dumps", false},
      {"a missing file", "C:\\dumps\\OTHER.DMP", false},
      {"a reference that is not set", "%NoSuchName%\\MEMORY.DMP", false},
      {"no path", "", false},
  };
  for (const DumpCase& dump : cases) {
    WithDump staged(dump.stored);
    staged.machine.add_file("C:\\dumps\\MEMORY.DMP", 5);
    staged.run(memdump);
    EXPECT_EQ(staged.form().Tv1.node(5).text, dump.is_there
                                                  ? "Memory Dump Files ( 1 file, 5 B )"
                                                  : "Memory Dump Files ( 0 files, 0 Byte )")
        << dump.what;
    EXPECT_EQ(staged.form().Tv1.node(5).fore_color, dump.is_there ? 192U : 0U) << dump.what;
  }
}

TEST(Memdump, LeadsPastTheRedirectionOn64Bit) {
  WithDump staged("%SystemRoot%\\System32\\MEMORY.DMP", R"({"is64Bit": true})");
  staged.machine.add_file("C:\\Windows\\System32\\MEMORY.DMP", 5);
  staged.run(memdump);
  EXPECT_EQ(staged.form().Tv1.node(5).text, "Memory Dump Files ( 1 file, 5 B )");
}

// --- The recycle bin.

const std::string kHiveList = "SYSTEM\\CurrentControlSet\\Control\\hivelist";
const std::string kUser = "S-1-5-21-1-2-3-1001";
const std::string kOtherUser = "S-1-5-21-1-2-3-1002";

// Drives of four kinds, each with deleted files of two users.
struct WithBins : Staged {
  WithBins()
      : Staged({}, R"({"drives": [{"letter": "C"}, {"letter": "D"},
                       {"letter": "E", "type": "removable"}, {"letter": "F", "type": "remote"}]})") {
    for (const char* drive : {"C:", "D:", "E:", "F:"}) {
      for (const std::string& user : {kUser, kOtherUser}) {
        machine.add_file(drive + ("\\$Recycle.Bin\\" + user) + "\\$R1.txt", 10);
        machine.add_file(drive + ("\\$Recycle.Bin\\" + user) + "\\desktop.ini", 10);
      }
    }
  }
  void load_hive(const std::string& name) {
    machine.set_registry_text(Hive::kLocalMachine, kHiveList, name, "");
  }
};

TEST(Recycleb, ScansTheBinOfTheFirstLoadedUserOnEachFixedDrive) {
  WithBins staged;
  staged.load_hive("\\REGISTRY\\USER\\S-1-5-18");
  staged.load_hive("\\REGISTRY\\USER\\" + kUser + "_Classes");
  staged.load_hive("\\REGISTRY\\USER\\" + kUser);
  staged.load_hive("\\REGISTRY\\USER\\" + kOtherUser);

  const std::string bin = "\\$RECYCLE.BIN\\s-1-5-21-1-2-3-1001";
  EXPECT_EQ(staged.run(recycleb), (Texts{"C:" + bin + "\\$R1.txt", "D:" + bin + "\\$R1.txt"}));
  EXPECT_EQ(rows(staged.form().view1, kCategoryColumn), (Texts{"8", "8"}));
}

TEST(Recycleb, ScansTheWholeBinWithoutAUsersHive) {
  WithBins staged;
  staged.load_hive("\\REGISTRY\\USER\\S-1-5-18");
  Texts expected;
  for (const char* drive : {"C:", "D:"}) {
    for (const std::string& user : {kUser, kOtherUser}) {
      expected.push_back(drive + ("\\$RECYCLE.BIN\\" + user) + "\\$R1.txt");
    }
  }
  EXPECT_EQ(staged.run(recycleb), expected);
}

}  // namespace
}  // namespace quillvane
