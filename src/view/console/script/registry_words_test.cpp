#include "view/console/script/registry_words.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "view/console/script/script_error.h"

namespace quillvane {
namespace {

using namespace std::string_literals;
using Words = std::vector<std::string>;

struct ValueCase {
  std::string type;
  Words words;
  RegistryType number;
  std::string data;
};

TEST(RegistryWords, StandForTheDataThatWindowsStores) {
  const ValueCase cases[] = {
      {"sz", {"C:\\Temp"}, RegistryType::kSz, "C:\\Temp\0"s},
      {"sz", {""}, RegistryType::kSz, "\0"s},
      {"expand", {"%WinDir%"}, RegistryType::kExpandSz, "%WinDir%\0"s},
      {"dword", {"258"}, RegistryType::kDword, "\x02\x01\0\0"s},
      {"dword", {"4294967295"}, RegistryType::kDword, "\xFF\xFF\xFF\xFF"},
      {"binary", {"00fFa1"}, RegistryType::kBinary, "\0\xFF\xA1"s},
      {"binary", {"00", "ff"}, RegistryType::kBinary, "\0\xFF"s},
      {"binary", {}, RegistryType::kBinary, ""},
      {"multi", {"a", "bc"}, RegistryType::kMultiSz, "a\0bc\0\0"s},
      {"multi", {"a", ""}, RegistryType::kMultiSz, "a\0\0\0"s},
      {"multi", {}, RegistryType::kMultiSz, "\0"s},
  };
  for (const ValueCase& c : cases) {
    EXPECT_EQ(registry_value_of(c.type, c.words), (RegistryValue{c.number, c.data})) << c.type;
  }
}

struct BadCase {
  std::string type;
  Words words;
  std::string why;
};

TEST(RegistryWords, ThatDoNotFitTheTypeAreErrors) {
  const BadCase cases[] = {
      {"text", {"a"}, "text: must be sz, expand, dword, binary or multi"},
      {"sz", {}, "sz: takes one value"},
      {"sz", {"a", "b"}, "sz: takes one value"},
      {"dword", {"0x10"}, "0x10: must be a number from 0 to 4294967295"},
      {"dword", {"4294967296"}, "4294967296: must be a number from 0 to 4294967295"},
      {"dword", {"-1"}, "-1: must be a number from 0 to 4294967295"},
      {"binary", {"abc"}, "abc: must be pairs of hex digits"},
      {"binary", {"0g"}, "0g: must be pairs of hex digits"},
  };
  for (const BadCase& c : cases) {
    try {
      const RegistryValue value = registry_value_of(c.type, c.words);
      ADD_FAILURE() << c.type << ": gave " << value.data.size() << " bytes";
    } catch (const ScriptError& error) {
      EXPECT_EQ(error.what(), c.why);
    }
  }
}

struct ShownCase {
  RegistryType type;
  std::string data;
  std::string json;
};

TEST(RegistryWords, AreShownWithTheSameTypes) {
  const ShownCase cases[] = {
      {RegistryType::kSz, "text\0"s, R"({"type":"sz","value":"text"})"},
      {RegistryType::kSz, "text", R"({"type":"sz","value":"text"})"},  // stored without terminator
      {RegistryType::kSz, "", R"({"type":"sz","value":""})"},
      {RegistryType::kExpandSz, "%a%\0"s, R"({"type":"expand","value":"%a%"})"},
      {RegistryType::kDword, "\x02\x01\0\0"s, R"({"type":"dword","value":258})"},
      {RegistryType::kDword, "\xFF\xFF\xFF\xFF", R"({"type":"dword","value":4294967295})"},
      {RegistryType::kDword, "\x07", R"({"type":"dword","value":7})"},
      {RegistryType::kBinary, "\0\xFF"s, R"({"type":"binary","value":"00ff"})"},
      {RegistryType::kMultiSz, "a\0bc\0\0"s, R"({"type":"multi","value":["a","bc"]})"},
      {RegistryType::kMultiSz, "a\0\0b\0\0\0"s, R"({"type":"multi","value":["a","","b",""]})"},
      {RegistryType::kMultiSz, "\0"s, R"({"type":"multi","value":[]})"},
      {RegistryType::kMultiSz, "a\0b"s, R"({"type":"multi","value":["a","b"]})"},  // not ended
      {RegistryType::kQword, "\x01\0\0\0\0\0\0\0"s,
       R"({"type":"binary","value":"0100000000000000"})"},
  };
  for (const ShownCase& c : cases) {
    EXPECT_EQ(json_text(registry_json({c.type, c.data})), c.json);
  }
}

TEST(RegistryWords, HivesAreNamedInAnyCase) {
  EXPECT_EQ(hive_named("HKLM"), Hive::kLocalMachine);
  EXPECT_EQ(hive_named("hkcu"), Hive::kCurrentUser);
  EXPECT_EQ(hive_named("HKCR"), Hive::kClassesRoot);
  EXPECT_EQ(hive_named("HKU"), Hive::kUsers);
  EXPECT_THROW((void)hive_named("HKCC"), ScriptError);
}

}  // namespace
}  // namespace quillvane
