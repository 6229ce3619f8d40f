#include "view/console/scan/progress_line.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quillvane {
namespace {

using std::chrono::milliseconds;

struct Stage {
  std::ostringstream out;
  std::chrono::steady_clock::time_point now;

  ProgressLine::Clock clock() {
    return [this] { return now; };
  }
};

TEST(ProgressLine, WritesEachTextOverTheOneBefore) {
  Stage stage;
  ProgressLine line(stage.out, 80, stage.clock());

  line.show("C:\\Temp\\a.tmp");
  stage.now += milliseconds(100);
  line.show("C:\\b");

  EXPECT_EQ(stage.out.str(),
            "\rC:\\Temp\\a.tmp"
            "\rC:\\b         ");
}

TEST(ProgressLine, PassesOverWhatComesTooSoon) {
  Stage stage;
  ProgressLine line(stage.out, 80, stage.clock());

  line.show("a");
  stage.now += milliseconds(99);
  line.show("b");
  stage.now += milliseconds(1);
  line.show("c");

  EXPECT_EQ(stage.out.str(), "\ra\rc");
}

TEST(ProgressLine, StaysShorterThanTheTerminal) {
  Stage stage;
  ProgressLine line(stage.out, 12, stage.clock());

  line.show("C:\\Windows\\Temp\\a.tmp");

  // 11 columns: 4 of the head, 3 dots, 4 of the tail.
  EXPECT_EQ(stage.out.str(), "\rC:\\W....tmp");
}

TEST(ProgressLine, IsErasedAtTheEnd) {
  Stage stage;
  { ProgressLine(stage.out, 80, stage.clock()).show("abc"); }

  EXPECT_EQ(stage.out.str(), "\rabc\r   \r");
}

TEST(ProgressLine, MakesRoomForSomethingElseAndGoesOn) {
  Stage stage;
  ProgressLine line(stage.out, 80, stage.clock());

  line.show("abc");
  line.clear();
  line.clear();
  stage.now += milliseconds(100);
  line.show("d");

  EXPECT_EQ(stage.out.str(), "\rabc\r   \r\rd");
}

TEST(ProgressLine, LeavesNothingWhenNothingWasShown) {
  Stage stage;
  { const ProgressLine line(stage.out, 80, stage.clock()); }

  EXPECT_EQ(stage.out.str(), "");
}

TEST(ProgressLine, ANameCannotSpeakToTheTerminal) {
  Stage stage;
  ProgressLine line(stage.out, 80, stage.clock());

  line.show("a\x1b[2Jb\n");

  EXPECT_EQ(stage.out.str(), "\ra<1B>[2Jb<0A>");
}

}  // namespace
}  // namespace quillvane
