// The environment.
#include <algorithm>
#include <string>

#include "platform/unicode_case.h"
#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class EnvironmentContract : public ContractTest {};

TEST_F(EnvironmentContract, NamesAreFoundWithoutRegardToCase) {
  machine->set_environment("QuillvaneTest", "Value");
  EXPECT_EQ(platform.environment.get("QUILLVANETEST"), "Value");
  EXPECT_EQ(platform.environment.get("quillvanetest"), "Value");
}

TEST_F(EnvironmentContract, AMissingVariableIsEmpty) {
  EXPECT_EQ(platform.environment.get("QuillvaneMissing"), "");
  EXPECT_EQ(platform.environment.get(""), "");
}

TEST_F(EnvironmentContract, LongValuesComeWhole) {
  const std::string value(3000, 'x');
  machine->set_environment("QuillvaneTest", value);
  EXPECT_EQ(platform.environment.get("QuillvaneTest"), value);
  EXPECT_EQ(platform.environment.expand("%QuillvaneTest%!"), value + "!");
}

TEST_F(EnvironmentContract, LettersAboveAsciiComeAsTheyAre) {
  machine->set_environment("QuillvaneTest", "\xC3\xA4\xE2\x82\xAC");
  EXPECT_EQ(platform.environment.get("QuillvaneTest"), "\xC3\xA4\xE2\x82\xAC");
}

TEST_F(EnvironmentContract, OnlyReferencesThatAreSetAreReplaced) {
  machine->set_environment("QuillvaneA", "C:\\A");
  machine->set_environment("QuillvaneB", "%QuillvaneA%");
  const struct {
    const char* text;
    const char* expanded;
  } cases[] = {
      {"", ""},
      {"no reference", "no reference"},
      {"%QuillvaneA%", "C:\\A"},
      {"%quillvanea%\\x", "C:\\A\\x"},
      {"<%QuillvaneA%%QuillvaneA%>", "<C:\\AC:\\A>"},
      {"%QuillvaneMissing%\\x", "%QuillvaneMissing%\\x"},
      {"100 %", "100 %"},
      {"%%", "%%"},
      {"%", "%"},
      {"%QuillvaneA", "%QuillvaneA"},
      // What comes in is not looked at again.
      {"%QuillvaneB%", "%QuillvaneA%"},
  };
  for (const auto& [text, expanded] : cases) {
    EXPECT_EQ(platform.environment.expand(text), expanded) << text;
  }
}

TEST_F(EnvironmentContract, AllVariablesComeSortedByName) {
  machine->set_environment("QuillvaneB", "2");
  machine->set_environment("quillvanea", "1");
  const auto all = platform.environment.all();
  EXPECT_TRUE(std::is_sorted(all.begin(), all.end(), [](const auto& left, const auto& right) {
    return compare_names(left.first, right.first) < 0;
  }));
  const std::pair<std::string, std::string> a{"quillvanea", "1"};
  const std::pair<std::string, std::string> b{"QuillvaneB", "2"};
  const auto found = std::find(all.begin(), all.end(), a);
  ASSERT_NE(found, all.end());
  ASSERT_NE(found + 1, all.end());
  EXPECT_EQ(*(found + 1), b);
}

TEST_F(EnvironmentContract, TheVariablesOfEveryWindowsAreThere) {
  for (const char* name : {"WinDir", "SystemRoot", "USERPROFILE", "APPDATA", "LOCALAPPDATA", "TEMP",
                           "ALLUSERSPROFILE", "ProgramFiles"}) {
    EXPECT_EQ(platform.environment.get(name).substr(1, 2), ":\\") << name;
  }
}

}  // namespace
}  // namespace quillvane
