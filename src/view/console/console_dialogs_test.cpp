#include "view/console/console_dialogs.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quillvane {
namespace {

constexpr std::uint32_t kQuestion = kBoxSystemModal | kBoxIconQuestion | kBoxYesNo;

struct Stage {
  explicit Stage(const std::string& typed, bool terminal = true) : in(typed) {
    io.in_is_terminal = terminal;
  }
  Answer ask(const std::string& title = "confirmation") {
    return dialogs.message_box("Close it?", title, kQuestion);
  }

  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  ConsoleIo io{in, out, err};
  ConsoleDialogs dialogs{io};
};

TEST(ConsoleDialogs, AQuestionIsAskedOnTheTerminal) {
  Stage stage("y\n");
  EXPECT_EQ(stage.ask(), Answer::kYes);
  EXPECT_EQ(stage.err.str(), "Close it? [y/N] ");
  EXPECT_EQ(stage.out.str(), "");
}

TEST(ConsoleDialogs, OnlyAClearYesIsOne) {
  for (const char* typed : {"y\n", "Y\n", "yes\n", "YES"}) {
    EXPECT_EQ(Stage(typed).ask(), Answer::kYes) << typed;
  }
  for (const char* typed : {"\n", "n\n", "no\n", "yess\n", "ja\n", ""}) {
    EXPECT_EQ(Stage(typed).ask(), Answer::kNo) << typed;
  }
}

TEST(ConsoleDialogs, EachQuestionTakesALineOfItsOwn) {
  Stage stage("n\ny\n");
  EXPECT_EQ(stage.ask(), Answer::kNo);
  EXPECT_EQ(stage.ask(), Answer::kYes);
  EXPECT_EQ(stage.ask(), Answer::kNo);  // nothing is left
}

TEST(ConsoleDialogs, WithoutATerminalTheAnswerIsNoAndNothingIsRead) {
  Stage stage("y\n", /*terminal=*/false);
  EXPECT_EQ(stage.ask(), Answer::kNo);
  EXPECT_EQ(stage.err.str(), "");
  EXPECT_EQ(stage.in.str().substr(static_cast<std::size_t>(stage.in.tellg())), "y\n");
}

TEST(ConsoleDialogs, AnAnswerGivenInAdvanceIsTakenForItsTitleAlone) {
  Stage stage("n\n");
  stage.dialogs.answer_in_advance("confirmation", Answer::kYes);
  EXPECT_EQ(stage.ask("confirmation"), Answer::kYes);
  EXPECT_EQ(stage.err.str(), "");
  EXPECT_EQ(stage.ask("Please Confirm"), Answer::kNo);
  EXPECT_EQ(stage.err.str(), "Close it? [y/N] ");
}

TEST(ConsoleDialogs, RemembersWhatWasSaidLast) {
  Stage stage("y\nn\n");
  EXPECT_FALSE(stage.dialogs.said_yes("confirmation"));
  EXPECT_EQ(stage.ask(), Answer::kYes);
  EXPECT_TRUE(stage.dialogs.said_yes("confirmation"));
  EXPECT_FALSE(stage.dialogs.said_yes("Please Confirm"));
  EXPECT_EQ(stage.ask(), Answer::kNo);
  EXPECT_FALSE(stage.dialogs.said_yes("confirmation"));
}

TEST(ConsoleDialogs, WhatStandsInTheLineForTheMomentMakesRoom) {
  Stage stage("n\n");
  stage.err << "C:\\Temp";
  stage.io.clear_line = [&] { stage.err << "\n"; };
  EXPECT_EQ(stage.ask(), Answer::kNo);
  EXPECT_EQ(stage.err.str(), "C:\\Temp\nClose it? [y/N] ");
}

}  // namespace
}  // namespace quillvane
