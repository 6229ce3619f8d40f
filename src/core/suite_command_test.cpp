// What a run switch leaves for the suite, also where it cannot write.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kResultKey = "software\\Quillvane\\Tidewrack Deluxe\\real";

struct SuiteRun : JunkEverywhere {
  // A folder of that name stands where the file would be written.
  void block(const std::string& file) { machine.add_folder(kProgramFolder + "\\" + file); }
  [[nodiscard]] std::optional<std::string> result(const std::string& name) {
    return machine.registry_text(Hive::kLocalMachine, kResultKey, name);
  }
  [[nodiscard]] int files_left() {
    int left = 0;
    for (const std::string& path : junk) left += machine.has_file(path) ? 1 : 0;
    return left;
  }
};

TEST(SuiteRun, TheQuickRunListsEachRowWithItsSize) {
  SuiteRun run;
  run.start("w4");
  std::string lines;
  for (const std::string& path : run.junk) lines += path + "||10 B\r\n";
  EXPECT_EQ(run.program_file("junktmp.txt"), lines);
  EXPECT_EQ(run.program_file("junst.txt"), "11|110\r\n");
  EXPECT_EQ(run.files_left(), 10);
}

TEST(SuiteRun, TheListOfTheQuickRunIsInTheSystemsCodePage) {
  ScanFixture run;
  run.machine.add_file("C:\\Windows\\Temp\\Gr\u00F6\u00DFe.tmp", 5);
  run.start("w4");
  EXPECT_EQ(run.program_file("junktmp.txt"),
            "C:\\Windows\\Temp\\Gr\xF6\xDF"
            "e.tmp||5 B\r\n");
}

TEST(SuiteRun, OnlyTheQuickRunListsItsRows) {
  for (const char* line : {"w", "w-c", "w2-c2", "w3-c3", "w4-c4"}) {
    SuiteRun run;
    run.start(line);
    EXPECT_EQ(run.result("dc"), "1") << line;
    EXPECT_EQ(run.program_file("junktmp.txt"), std::nullopt) << line;
  }
}

TEST(SuiteRun, GoesOnToItsEndWithoutAResultFile) {
  struct Case {
    const char* line;
    int files_left;
  };
  for (const auto& [line, files_left] : {Case{"w", 0}, Case{"w-c", 0}, Case{"w2-c2", 10},
                                         Case{"w3-c3", 0}, Case{"w4", 10}, Case{"w4-c4", 0}}) {
    SuiteRun run;
    run.block("junst.txt");
    run.block("junktmp.txt");
    run.start(line);
    EXPECT_TRUE(run.program->ended()) << line;
    EXPECT_EQ(run.result("junk-count"), "11") << line;
    EXPECT_EQ(run.result("junk-size"), "110 B") << line;
    EXPECT_EQ(run.result("dc"), "1") << line;
    // The recycle bin is emptied by the system, which takes its file from the machine.
    EXPECT_EQ(run.files_left(), files_left) << line;
  }
}

TEST(SuiteRun, AResultFileThatCannotBeWrittenLeavesTheListBesideIt) {
  SuiteRun run;
  run.block("junst.txt");
  run.start("w4");
  EXPECT_TRUE(run.program_file("junktmp.txt").has_value());
}

TEST(SuiteCommand, AnUnknownSecondHalfBelongsToARunSwitchAlone) {
  JunkEverywhere fixture;
  Form7& form = fixture.start("other-x");
  EXPECT_TRUE(form.session.known_second_half);
  form.Text9.set_text("1");  // runs as a first half alone does
  EXPECT_FALSE(fixture.machine.has_file(fixture.junk[0]));
}

}  // namespace
}  // namespace quillvane
