// What the main window does when it loads, is shown and is resized.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/file_date.h"
#include "tests/support/change_list.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kColorKey = "SOFTWARE\\Quillvane\\Tidewrack";
const std::string kOptionKey = "software\\Quillvane\\Tidewrack Deluxe\\option\\systemp";

// --- The window.

TEST(StartUp, AnEmptyCommandLineShowsTheWindowWithItsShadow) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  EXPECT_TRUE(form.visible());
  EXPECT_EQ(form.session.silentmode, 0);
  EXPECT_EQ(form.shadow.color, 8421504U);
  EXPECT_EQ(form.shadow.depth, 10);
}

TEST(StartUp, ACommandLineOfNoMeaningShowsTheWindowWithoutShadow) {
  ScanFixture fixture;
  const Form7& form = fixture.start("x");
  EXPECT_TRUE(form.visible());
  EXPECT_EQ(form.shadow.depth, 0);
}

TEST(StartUp, BeginsWithTheStatedFields) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  EXPECT_EQ(form.custnode, 25);
  EXPECT_EQ(form.cancelflag, 0);
  EXPECT_EQ(form.selnode, 0);
  EXPECT_EQ(form.listfocus, 0);
  EXPECT_EQ(form.wizardstep, 0);
  EXPECT_EQ(form.ignorelist.text(), "");
  EXPECT_EQ(form.totals.totalfiles, 0);
}

TEST(StartUp, HidesTheTextBoxesThatServeAsVariables) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  for (const char* name :
       {"Text8", "Text9", "Text13", "Text14", "Text15", "txtfilecont", "txtfilesize"}) {
    ASSERT_NE(form.find(name), nullptr) << name;
    EXPECT_FALSE(form.find(name)->visible()) << name;
  }
}

TEST(StartUp, ShowsTheResultPageWhereTheDrivesStand) {
  ScanFixture fixture;
  Program program(fixture.machine.platform());
  Form7 form(program.session, program.windows);
  form.Frame2.move(120, 900);
  form.lbllanguage_0.move(30, 45);

  form.load();

  EXPECT_TRUE(form.Frame80.visible());
  EXPECT_EQ(form.Frame80.left(), 120);
  EXPECT_EQ(form.Frame80.top(), 900);
  EXPECT_EQ(form.imglangselect.left(), 30);
  EXPECT_EQ(form.imglangselect.top(), 45);
  EXPECT_EQ(form.view1.column_width(1), 5000);
}

TEST(StartUp, ShowsTheCurrentYearTwice) {
  ScanFixture fixture;  // in November 2026
  const Form7& form = fixture.start();
  EXPECT_EQ(form.Label12_0.caption(), "2026");
  EXPECT_EQ(form.Label12_1.caption(), "2026");
}

TEST(StartUp, TakesTheAnimationFromTheProgramsFolder) {
  ScanFixture fixture;
  EXPECT_EQ(fixture.start().Gif89a2.file(), kProgramFolder + "\\search.gif");
}

TEST(StartUp, SwitchDDisablesTheStart) {
  ScanFixture plain;
  EXPECT_TRUE(plain.start().cmd_start.enabled());
  ScanFixture with_switch;
  const Form7& form = with_switch.start("d");
  EXPECT_FALSE(form.cmd_start.enabled());
  EXPECT_TRUE(form.visible());
}

TEST(StartUp, KnowsWhetherTheSystemHas64Bits) {
  ScanFixture narrow;
  narrow.start();
  EXPECT_FALSE(narrow.program->session.Is64Bit);
  ScanFixture wide(R"({"is64Bit": true})");
  wide.start();
  EXPECT_TRUE(wide.program->session.Is64Bit);
}

struct FontCase {
  int code_page;
  int character_set;
};

constexpr FontCase kFonts[] = {
    {1252, 0},   {932, 128},  {949, 129},  {936, 134}, {950, 136},  {1255, 177}, {1256, 178},
    {1253, 161}, {1254, 162}, {1258, 163}, {874, 222}, {1257, 238}, {1251, 204},
};

TEST(StartUp, TakesTheCharacterSetOfTheCodePage) {
  for (const auto& [code_page, character_set] : kFonts) {
    ScanFixture fixture("{\"codePage\": " + std::to_string(code_page) + "}");
    EXPECT_EQ(fixture.start().fontcharset, character_set) << code_page;
  }
}

// --- Colours.

// The colours of all parts that take the suite's.
std::vector<Color> suite_colors(const Form7& form) {
  std::vector<Color> colors{form.back_color(), form.Text13.back_color(), form.Shape1.back_color(),
                            form.Shape2.back_color()};
  for (const Button* button : {&form.chameleonButton9, &form.chameleonButton12,
                               &form.chameleonButton13, &form.chameleonButton18}) {
    colors.push_back(button->back_color());
    colors.push_back(button->back_over());
  }
  return colors;
}

TEST(StartUp, AppliesTheSuitesColourToAllItsParts) {
  ScanFixture fixture;
  fixture.machine.set_registry_text(Hive::kLocalMachine, kColorKey, "color", "255");
  EXPECT_EQ(suite_colors(fixture.start()), std::vector<Color>(12, 255));
}

TEST(StartUp, HasAColourOfItsOwnWithoutTheSuites) {
  ScanFixture fixture;
  EXPECT_EQ(suite_colors(fixture.start()), std::vector<Color>(12, 10118205));
}

struct ColorCase {
  std::string_view stored;
  Color color;
};

constexpr ColorCase kColors[] = {
    {"  32768  ", 32768},
    {"0", 0},
    {"   ", 10118205},
    {"", 10118205},
    // Any spelling of a number.
    {"&HFF8000", 0xFF8000},
    {"&o17", 15},
    {"1.28e2", 128},
    {"+255", 255},
    {"2 5 5", 255},
    {"254.6", 255},
    {"255 blue", 255},
    // A colour of the system, in both ways to write its 32 bits.
    {"-2147483633", 0x8000000F},
    {"2147483663", 0x8000000F},
    {"&H8000000F", 0x8000000F},
    // No number, or none of 32 bits.
    {"blue", 10118205},
    {"&h", 10118205},
    {"-", 10118205},
    {"4294967296", 10118205},
    {"-2147483649", 10118205},
};

TEST(StartUp, TrimsTheColourAndTakesABlankOneForNone) {
  for (const auto& [stored, color] : kColors) {
    ScanFixture fixture;
    fixture.machine.set_registry_text(Hive::kLocalMachine, kColorKey, "color", std::string(stored));
    EXPECT_EQ(fixture.start().back_color(), color) << "\"" << stored << "\"";
  }
}

TEST(StartUp, ExpandsAColourThatHoldsAReference) {
  ScanFixture fixture;
  fixture.machine.set_environment("SUITE_COLOUR", "4660");
  fixture.machine.set_registry_value(
      Hive::kLocalMachine, kColorKey, "color",
      {RegistryType::kExpandSz, std::string("%SUITE_COLOUR%") + '\0'});
  EXPECT_EQ(fixture.start().back_color(), 4660U);
}

// --- Options.

TEST(StartUp, KeepsTheSuitesOptionsForTheSystemTemporaryFolder) {
  ScanFixture fixture;
  fixture.machine.set_registry_text(Hive::kLocalMachine, kOptionKey, "access", "1");
  fixture.machine.set_registry_text(Hive::kLocalMachine, kOptionKey, "days", "21");
  const Form7& form = fixture.start();
  EXPECT_EQ(form.systempaccess.value(), "1");
  const auto date = calendar_date(form.systempdate);  // 21 days before 2026-11-21
  ASSERT_TRUE(date);
  EXPECT_EQ(std::vector({date->year, date->month, date->day}), (std::vector{2026, 10, 31}));
}

TEST(StartUp, OptionsThatAreMissingCountAsNothing) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  EXPECT_EQ(form.systempaccess.value(), "");
  const auto date = calendar_date(form.systempdate);
  ASSERT_TRUE(date);
  EXPECT_EQ(std::vector({date->year, date->month, date->day}), (std::vector{2026, 11, 21}));
}

TEST(StartUp, DaysThatLeaveTheCalendarAreNoDate) {
  for (const char* days : {"1e300", "-1e300", "999999999999"}) {
    ScanFixture fixture;
    fixture.machine.set_registry_text(Hive::kLocalMachine, kOptionKey, "days", days);
    EXPECT_EQ(fixture.start().systempdate, FileTime{}) << days;
  }
}

// --- The ignore list.

TEST(StartUp, ReadsTheIgnoreListInLowerCase) {
  ScanFixture fixture;
  fixture.add_program_file("ignore.tdw", "  C:\\Temp\\Keep.tmp \r\n\r\n   \r\nD:\\ÄÖ\\");
  EXPECT_EQ(fixture.start().ignorelist.text(), "c:\\temp\\keep.tmp|d:\\äö\\|");
}

TEST(StartUp, PassesOverAMissingIgnoreList) {
  ScanFixture fixture;
  EXPECT_EQ(fixture.start().ignorelist.text(), "");
}

TEST(StartUp, TheMailBoxReadsTheIgnoreListAgain) {
  ScanFixture fixture;
  fixture.add_program_file("ignore.tdw", "C:\\Old\\\r\n");
  Form7& form = fixture.start();

  fixture.add_program_file("ignore.tdw", "C:\\New\\\r\n");
  form.Text14.set_text("x");
  EXPECT_EQ(form.ignorelist.text(), "c:\\old\\|");
  form.Text14.set_text("i");

  EXPECT_EQ(form.ignorelist.text(), "c:\\new\\|");
  EXPECT_EQ(form.Text14.text(), "");
}

// --- The run switches.

TEST(StartUp, ARunSwitchRunsTheScanInsideTheLoad) {
  ScanFixture fixture;
  fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 30);
  const Form7& form = fixture.start("w2-c2");
  EXPECT_EQ(form.Text9.text(), "1");
  EXPECT_TRUE(fixture.program->ended());
  EXPECT_FALSE(form.visible());
  EXPECT_EQ(fixture.program_file("junst.txt"), "1|30\r\n");
  EXPECT_TRUE(fixture.machine.has_file("C:\\Windows\\Temp\\a.tmp"));
}

TEST(StartUp, AnUnknownSecondHalfScansAndEndsWithoutCleaning) {
  ScanFixture fixture;
  fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 30);
  fixture.start("w-x");
  EXPECT_TRUE(fixture.program->ended());
  EXPECT_EQ(fixture.program_file("junst.txt"), "1|30\r\n");
  EXPECT_TRUE(fixture.machine.has_file("C:\\Windows\\Temp\\a.tmp"));
}

TEST(StartUp, TheRunKnowsTheIgnoreList) {
  ScanFixture fixture;
  fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 30);
  fixture.machine.add_file("C:\\Windows\\Logs\\b.log", 5);
  fixture.add_program_file("ignore.tdw", "C:\\Windows\\Temp\\\r\n");
  fixture.start("w2-c2");
  EXPECT_EQ(fixture.program_file("junst.txt"), "1|5\r\n");
}

TEST(StartUp, OtherSwitchesRunNothing) {
  for (const char* line : {"", "s", "d", "x"}) {
    ScanFixture fixture;
    fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 30);
    const Form7& form = fixture.start(line);
    EXPECT_EQ(form.Text9.text(), "") << line;
    EXPECT_EQ(form.view1.count(), 0) << line;
    EXPECT_FALSE(fixture.program->ended()) << line;
  }
}

TEST(StartUp, OnlyTheQuickRunStartsItsTimer) {
  ScanFixture user;
  EXPECT_FALSE(user.start().Timer2.running());
  ScanFixture run;
  EXPECT_FALSE(run.start("w").Timer2.running());
  ScanFixture quick;
  EXPECT_TRUE(quick.start("w4").Timer2.running());
}

// --- Resize.

TEST(StartUp, AResizeRedrawsTheListsAndTheTree) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  for (const char* name :
       {"view1", "View2", "View10", "View4", "View1000", "View201", "View101", "view5", "Tv1"}) {
    ASSERT_NE(form.find(name), nullptr) << name;
    form.restore();
    ChangeList seen;
    form.find(name)->observe(seen);
    form.set_state(WindowState::kMaximised);
    EXPECT_EQ(seen.changes, std::vector{Change::kRefresh}) << name;
    form.find(name)->unobserve(seen);
  }
  EXPECT_TRUE(form.visible());
}

TEST(StartUp, AMinimisedWindowHides) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.minimise();
  EXPECT_FALSE(form.visible());
}

}  // namespace
}  // namespace quillvane
