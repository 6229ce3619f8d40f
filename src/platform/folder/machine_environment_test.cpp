#include "platform/folder/machine_environment.h"

#include <gtest/gtest.h>

#include <string>

namespace quillvane {
namespace {

class MachineEnvironmentTest : public testing::Test {
 protected:
  MachineEnvironmentTest() {
    state_.environment = {
        {"WinDir", "C:\\Windows"}, {"TEMP", "C:\\T"},
        {"Größe", "12"},           {"EMPTY", ""},
        {"LOOP", "%TEMP%"},        {"ProgramFiles(x86)", "C:\\Program Files (x86)"}};
  }

  MachineState state_;
  MachineEnvironment environment_{state_};
};

TEST_F(MachineEnvironmentTest, NamesAreFoundWithoutRegardToCase) {
  EXPECT_EQ(environment_.get("windir"), "C:\\Windows");
  EXPECT_EQ(environment_.get("WINDIR"), "C:\\Windows");
  EXPECT_EQ(environment_.get("GRÖßE"), "12");
}

TEST_F(MachineEnvironmentTest, AMissingVariableIsEmpty) {
  EXPECT_EQ(environment_.get("NOSUCH"), "");
  EXPECT_EQ(environment_.get(""), "");
}

TEST_F(MachineEnvironmentTest, ChangesOfTheStateShow) {
  set_variable(state_.environment, "temp", "D:\\T");
  set_variable(state_.environment, "New", "1");
  EXPECT_EQ(environment_.get("TEMP"), "D:\\T");
  EXPECT_EQ(environment_.get("NEW"), "1");
}

TEST_F(MachineEnvironmentTest, EachSetVariableIsExpanded) {
  EXPECT_EQ(environment_.expand(""), "");
  EXPECT_EQ(environment_.expand("plain"), "plain");
  EXPECT_EQ(environment_.expand("%TEMP%\\a"), "C:\\T\\a");
  EXPECT_EQ(environment_.expand("x%temp%y%WINDIR%z"), "xC:\\TyC:\\Windowsz");
  EXPECT_EQ(environment_.expand("%ProgramFiles(x86)%"), "C:\\Program Files (x86)");
  EXPECT_EQ(environment_.expand("a%EMPTY%b"), "ab");
}

TEST_F(MachineEnvironmentTest, WhatIsNoSetVariableStaysAsItIs) {
  EXPECT_EQ(environment_.expand("%NOSUCH%\\a"), "%NOSUCH%\\a");
  EXPECT_EQ(environment_.expand("100%"), "100%");
  EXPECT_EQ(environment_.expand("%"), "%");
  EXPECT_EQ(environment_.expand("%%"), "%%");
  EXPECT_EQ(environment_.expand("50% of %TEMP%"), "50% of C:\\T");
}

TEST_F(MachineEnvironmentTest, TheSignBehindAnUnknownNameMayBeginAVariable) {
  EXPECT_EQ(environment_.expand("%NOSUCH%TEMP%"), "%NOSUCHC:\\T");
  EXPECT_EQ(environment_.expand("%%TEMP%%"), "%C:\\T%");
}

TEST_F(MachineEnvironmentTest, AnExpandedValueIsNotExpandedAgain) {
  EXPECT_EQ(environment_.expand("%LOOP%"), "%TEMP%");
}

TEST_F(MachineEnvironmentTest, AllComesSortedByNameWithoutRegardToCase) {
  MachineState state;
  state.environment = {{"b", "2"}, {"C", "3"}, {"A", "1"}, {"_", "4"}};
  const EnvironmentVariables expected = {{"A", "1"}, {"b", "2"}, {"C", "3"}, {"_", "4"}};
  EXPECT_EQ(MachineEnvironment(state).all(), expected);
}

}  // namespace
}  // namespace quillvane
