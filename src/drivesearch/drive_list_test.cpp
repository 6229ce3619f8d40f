// The drive list View2 and the memory of its ticks.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kTimerKey = "software\\Quillvane\\Tidewrack Deluxe\\timer";

// C: fixed, D: fixed, E: removable, F: remote.
constexpr const char* kFourDrives = R"({"drives": [
  {"letter": "C", "type": "fixed", "total": 1073741824, "free": 1572864},
  {"letter": "D", "type": "fixed", "total": 10485, "free": 0},
  {"letter": "E", "type": "removable", "total": 1048576, "free": 1048576},
  {"letter": "F", "type": "remote", "total": 2097152, "free": 1048576}]})";

struct FourDrives : ScanFixture {
  FourDrives() : ScanFixture(kFourDrives) {}

  void remember(const std::string& name, const std::string& text) {
    machine.set_registry_text(Hive::kLocalMachine, kTimerKey, name, text);
  }
  std::optional<std::string> remembered(const std::string& name) {
    return machine.registry_text(Hive::kLocalMachine, kTimerKey, name);
  }
};

// --- Rows.

TEST(DriveList, EachKindOfDriveHasItsText) {
  FourDrives fixture;
  EXPECT_EQ(rows(fixture.start().View2), (Texts{"Local Disk (C:)", "Local Disk (D:)",
                                                "Removable media (E:)", "Remote Drive (F:)"}));
}

TEST(DriveList, ShowsTotalAndFreeSpaceInMegabytes) {
  FourDrives fixture;
  const ListView& list = fixture.start().View2;
  EXPECT_EQ(list.columns(), (Texts{"Name", "Total", "Free Space", "Status"}));
  EXPECT_EQ(list.sub_item(1, 1), "1024.00 MB");
  EXPECT_EQ(list.sub_item(1, 2), "1.50 MB");
  EXPECT_EQ(list.sub_item(2, 1), "0.01 MB");
  EXPECT_EQ(list.sub_item(2, 2), "0.00 MB");
  EXPECT_EQ(list.sub_item(4, 1), "2.00 MB");
  EXPECT_EQ(list.sub_item(4, 2), "1.00 MB");
}

// 0.125 and 0.375: what lies in the middle goes up, to whichever digit. Just below it goes down.
TEST(DriveList, RoundsTheMiddleBetweenTwoHundredthsUp) {
  ScanFixture fixture(R"({"drives": [{"letter": "C", "total": 393216, "free": 131072},
                          {"letter": "D", "total": 1043334, "free": 131071}]})");
  const ListView& list = fixture.start().View2;
  EXPECT_EQ(list.sub_item(1, 1), "0.38 MB");
  EXPECT_EQ(list.sub_item(1, 2), "0.13 MB");
  EXPECT_EQ(list.sub_item(2, 1), "1.00 MB");  // 0.9950008
  EXPECT_EQ(list.sub_item(2, 2), "0.12 MB");
}

TEST(DriveList, ShowsNoSpaceForRemovableMedia) {
  FourDrives fixture;
  const ListView& list = fixture.start().View2;
  EXPECT_EQ(list.sub_item(3, 1), "");
  EXPECT_EQ(list.sub_item(3, 2), "");
}

TEST(DriveList, TakesARamDiskForALocalOneAndLeavesOutACdRom) {
  ScanFixture fixture(R"({"drives": [{"letter": "C"}, {"letter": "D", "type": "cdrom"},
                          {"letter": "R", "type": "ramdisk"}]})");
  const Form7& form = fixture.start();
  EXPECT_EQ(rows(form.View2), (Texts{"Local Disk (C:)", "Local Disk (R:)"}));
  EXPECT_EQ(form.Drive1.items(), (Texts{"C:", "D:", "R:"}));
}

TEST(DriveList, BeginsWithoutTicks) {
  FourDrives fixture;
  const Form7& form = fixture.start();
  EXPECT_EQ(ticked(form.View2), std::vector<int>{});
  EXPECT_EQ(form.anydrivechecked, 0);
}

// --- Remembering.

TEST(DriveMemory, TicksTheRowsThatWereStored) {
  FourDrives fixture;
  fixture.remember("alldrive", "2");
  fixture.remember("drive1", "Local Disk (C:)");
  fixture.remember("drive2", "Remote Drive (F:)");
  const Form7& form = fixture.start();
  EXPECT_EQ(ticked(form.View2), (std::vector<int>{1, 4}));
  EXPECT_EQ(form.anydrivechecked, 1);
}

TEST(DriveMemory, ComparesTrimmedAndWithoutRegardToCase) {
  FourDrives fixture;
  fixture.remember("alldrive", "1");
  fixture.remember("drive1", "  LOCAL disk (d:)  ");
  EXPECT_EQ(ticked(fixture.start().View2), (std::vector<int>{2}));
}

TEST(DriveMemory, ARowWhoseTextDiffersIsNotTicked) {
  FourDrives fixture;
  fixture.remember("alldrive", "2");
  fixture.remember("drive1", "Local Disk (X:)");
  fixture.remember("drive2", "Removable media (C:)");
  EXPECT_EQ(ticked(fixture.start().View2), std::vector<int>{});
}

TEST(DriveMemory, OnlyTheStoredCountIsRead) {
  FourDrives fixture;
  fixture.remember("alldrive", "1");
  fixture.remember("drive1", "Local Disk (C:)");
  fixture.remember("drive2", "Local Disk (D:)");
  EXPECT_EQ(ticked(fixture.start().View2), (std::vector<int>{1}));
}

TEST(DriveMemory, TheFirstIsReadEvenWhenNoneAreStored) {
  FourDrives fixture;
  fixture.remember("alldrive", "0");
  fixture.remember("drive1", "Local Disk (D:)");
  Form7& form = fixture.start();
  EXPECT_EQ(ticked(form.View2), (std::vector<int>{2}));
  EXPECT_EQ(form.anydrivechecked, 0);

  form.View2.tick_row(1, true);
  EXPECT_EQ(form.anydrivechecked, 1);
}

TEST(DriveMemory, ACountWithoutSenseDoesNotHang) {
  for (const char* count : {"1e300", "-5", "many"}) {
    FourDrives fixture;
    fixture.remember("alldrive", count);
    fixture.remember("drive1", "Local Disk (C:)");
    EXPECT_EQ(ticked(fixture.start().View2), (std::vector<int>{1})) << count;
  }
}

TEST(DriveMemory, IsReadUpToTheStoredCountHoweverManyThereAre) {
  FourDrives fixture;
  fixture.remember("alldrive", "40");
  fixture.remember("drive30", "Local Disk (D:)");
  fixture.remember("Drive40", "Remote Drive (F:)");
  fixture.remember("drive41", "Local Disk (C:)");
  EXPECT_EQ(ticked(fixture.start().View2), (std::vector<int>{2, 4}));
}

TEST(DriveMemory, NamesThatAreNoNumberedDriveCountForNothing) {
  FourDrives fixture;
  fixture.remember("alldrive", "5");
  for (const char* name :
       {"drive", "drive01", "drive 2", "drive2x", "driver3", "drive-1", "xdrive1"}) {
    fixture.remember(name, "Local Disk (C:)");
  }
  EXPECT_EQ(ticked(fixture.start().View2), std::vector<int>{});
}

// --- Storing.

TEST(DriveMemory, ClosingStoresTheTickedRowsInTheirOrder) {
  FourDrives fixture;
  Form7& form = fixture.start();
  form.View2.tick_row(4, true);
  form.View2.tick_row(2, true);

  form.close();

  EXPECT_EQ(fixture.remembered("drive1"), "Local Disk (D:)");
  EXPECT_EQ(fixture.remembered("drive2"), "Remote Drive (F:)");
  EXPECT_EQ(fixture.remembered("drive3"), std::nullopt);
  EXPECT_EQ(fixture.remembered("alldrive"), "2");
  EXPECT_TRUE(fixture.program->ended());
}

TEST(DriveMemory, TheProgramsOwnCloseButtonStoresToo) {
  FourDrives fixture;
  Form7& form = fixture.start();
  form.View2.tick_row(1, true);
  form.chameleonButton9.click();
  EXPECT_EQ(fixture.remembered("alldrive"), "1");
  EXPECT_TRUE(fixture.program->ended());
}

TEST(DriveMemory, WithoutTicksOnlyTheCountIsStored) {
  FourDrives fixture;
  fixture.remember("alldrive", "1");
  fixture.remember("drive1", "Local Disk (C:)");
  Form7& form = fixture.start();
  form.View2.tick_row(1, false);

  form.close();

  EXPECT_EQ(fixture.remembered("alldrive"), "0");
  EXPECT_EQ(fixture.remembered("drive1"), "Local Disk (C:)");
}

TEST(DriveMemory, ARunSwitchThatEndsTheProgramStoresNothing) {
  FourDrives fixture;
  fixture.remember("alldrive", "1");
  fixture.remember("drive1", "Local Disk (X:)");
  fixture.start("w2-c2");
  EXPECT_TRUE(fixture.program->ended());
  EXPECT_EQ(fixture.remembered("alldrive"), "1");
}

TEST(DriveMemory, EachTickTellsWhetherAnyIsLeft) {
  FourDrives fixture;
  Form7& form = fixture.start();
  form.View2.tick_row(3, true);
  EXPECT_EQ(form.anydrivechecked, 1);
  form.View2.tick_row(3, false);
  EXPECT_EQ(form.anydrivechecked, 0);
}

}  // namespace
}  // namespace quillvane
