#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "machine/reg_file.h"
#include "platform/utf8.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

using namespace std::string_literals;
using Sections = std::vector<RegKeyChange>;

constexpr const char* kHeader = "Windows Registry Editor Version 5.00\r\n\r\n";

Sections parsed(std::string_view bytes) {
  auto result = parse_reg_file(bytes);
  if (const auto* problem = std::get_if<std::string>(&result)) {
    ADD_FAILURE() << *problem;
    return {};
  }
  return std::get<Sections>(std::move(result));
}

std::string refusal(std::string_view bytes) {
  const auto result = parse_reg_file(bytes);
  const auto* problem = std::get_if<std::string>(&result);
  return problem == nullptr ? "accepted" : *problem;
}

RegistryValue text(const std::string& content) { return {RegistryType::kSz, content + '\0'}; }

// The value of the one line `line` below a key.
std::optional<RegistryValue> value_of(const std::string& line, const std::string& header) {
  const Sections sections = parsed(header + "[HKEY_CURRENT_USER\\A]\r\n" + line + "\r\n");
  if (sections.size() != 1 || sections[0].values.size() != 1) {
    ADD_FAILURE() << line << " is not one value";
    return std::nullopt;
  }
  return sections[0].values[0].value;
}

// A file as regedit exports it, in its own encoding.
constexpr const char* kExported =
    "Windows Registry Editor Version 5.00\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software\\Prüfung]\r\n"
    "@=\"default\"\r\n"
    "\"Pa\\\"th\\\\\"=\"C:\\\\Temp\\\\\"\r\n"
    "\"Number\"=dword:0000002a\r\n"
    "\"Bytes\"=hex:01,02,ff\r\n"
    "\"Expand\"=hex(2):25,00,54,00,45,00,4d,00,50,00,25,00,5c,00,61,00,00,00\r\n"
    "\"List\"=hex(7):61,00,00,00,00,00,62,00,00,00,\\\r\n"
    "  00,00\r\n"
    "\"Wide\"=hex(b):01,00,00,00,00,00,00,80\r\n"
    "\"Nothing\"=hex(0):\r\n"
    "\r\n"
    "[HKEY_LOCAL_MACHINE\\SYSTEM]\r\n"
    "\r\n";

const Sections& exported() {
  static const Sections sections = {
      {3,
       Hive::kCurrentUser,
       "Software\\Prüfung",
       false,
       {{"", text("default")},
        {"Pa\"th\\", text("C:\\Temp\\")},
        {"Number", RegistryValue{RegistryType::kDword, "\x2A\0\0\0"s}},
        {"Bytes", RegistryValue{RegistryType::kBinary, "\x01\x02\xFF"}},
        {"Expand", RegistryValue{RegistryType::kExpandSz, "%TEMP%\\a\0"s}},
        {"List", RegistryValue{RegistryType::kMultiSz, "a\0\0b\0\0"s}},
        {"Wide", RegistryValue{RegistryType::kQword, "\1\0\0\0\0\0\0\x80"s}},
        {"Nothing", RegistryValue{RegistryType::kNone, ""}}}},
      {14, Hive::kLocalMachine, "SYSTEM", false, {}},
  };
  return sections;
}

TEST(RegReader, ReadsWhatRegeditExports) {
  EXPECT_EQ(parsed("\xFF\xFE" + utf16le_from_utf8(kExported)), exported());
}

TEST(RegReader, ReadsUtf8WithAndWithoutItsMark) {
  EXPECT_EQ(parsed(kExported), exported());
  EXPECT_EQ(parsed("\xEF\xBB\xBF"s + kExported), exported());
}

TEST(RegReader, AnyLineEndWillDo) {
  const std::string lines =
      "Windows Registry Editor Version 5.00\n[HKEY_USERS\\A]\n\"a\"=hex:01,\\\n02\n";
  const Sections expected = {
      {2, Hive::kUsers, "A", false, {{"a", RegistryValue{RegistryType::kBinary, "\x01\x02"}}}}};
  EXPECT_EQ(parsed(lines), expected);
  std::string returns = lines;
  for (char& c : returns) c = c == '\n' ? '\r' : c;
  EXPECT_EQ(parsed(returns), expected);
}

TEST(RegReader, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(parsed(kHeader + "[HKEY_USERS\\A]\r\n\"a\"=\"b\""s),
            (Sections{{3, Hive::kUsers, "A", false, {{"a", text("b")}}}}));
  EXPECT_EQ(parsed(kHeader + "[HKEY_USERS\\A]"s), (Sections{{3, Hive::kUsers, "A", false, {}}}));
  EXPECT_EQ(parsed("Windows Registry Editor Version 5.00"), Sections{});
}

TEST(RegReader, KeysAndValuesCanBeRemoved) {
  const Sections expected = {
      {3, Hive::kLocalMachine, "SOFTWARE\\Old", true, {}},
      {4, Hive::kLocalMachine, "SOFTWARE", false, {{"gone", std::nullopt}, {"", std::nullopt}}},
  };
  EXPECT_EQ(parsed(kHeader + "[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Old]\r\n"
                             "[HKEY_LOCAL_MACHINE\\SOFTWARE]\r\n\"gone\"=-\r\n@=-\r\n"s),
            expected);
}

TEST(RegReader, CommentsAndBlanksArePassedOver) {
  const Sections expected = {{4,
                              Hive::kUsers,
                              "A;B",
                              false,
                              {{"a", text("b;c")},
                               {"d", RegistryValue{RegistryType::kDword, "\1\0\0\0"s}},
                               {"e", RegistryValue{RegistryType::kBinary, "\x01\x02\x03"}}}}};
  EXPECT_EQ(parsed(kHeader + "; a comment\r\n  [HKEY_USERS\\A;B]  ; a key\r\n"
                             "\t\"a\" = \"b;c\" ; text\r\n"
                             "\"d\"=dword:1;number\r\n"
                             "\"e\"=hex: 01, \\ ; bytes\r\n"
                             "; between\r\n\r\n  02 ,\\\r\n 03 ; end\r\n"s),
            expected);
}

TEST(RegReader, AKeyNameMayHoldBrackets) {
  EXPECT_EQ(parsed(kHeader + "[HKEY_USERS\\a]b[c]\r\n"s),
            (Sections{{3, Hive::kUsers, "a]b[c", false, {}}}));
}

struct Data {
  const char* data;
  RegistryValue value;
};

TEST(RegReader, DataOfEachFormGiveTheirTypeAndBytes) {
  const std::vector<Data> table = {
      {"\"\"", text("")},
      {"\"a\\\\b\\\"c\"", text("a\\b\"c")},
      {"\"C:\\new\"", text("C:\\new")},  // a backslash alone stands for itself
      {"\"two\r\nlines\"", text("two\r\nlines")},
      {"dword:0", {RegistryType::kDword, "\0\0\0\0"s}},
      {"dword:FfEeDdCc", {RegistryType::kDword, "\xCC\xDD\xEE\xFF"}},
      {"DWORD:1", {RegistryType::kDword, "\1\0\0\0"s}},
      {"hex:", {RegistryType::kBinary, ""}},
      {"hex:1,a,0F", {RegistryType::kBinary, "\x01\x0A\x0F"}},
      {"hex(1):61,00,00,00", text("a")},
      {"hex(1):61,00", {RegistryType::kSz, "a"}},
      {"hex(1):e4,00,3d,d8,00,de", {RegistryType::kSz, "\xC3\xA4\xF0\x9F\x98\x80"}},
      {"hex(3):01", {RegistryType::kBinary, "\x01"}},
      {"hex(4):01,00", {RegistryType::kDword, "\1\0"s}},
      {"hex(5):00,00,00,01", {RegistryType::kDwordBigEndian, "\0\0\0\1"s}},
      {"hex(7):00,00", {RegistryType::kMultiSz, "\0"s}},
      {"hex(A):ff", {RegistryType::kResourceRequirementsList, "\xFF"}},
      {"hex(ffffffff):01", {static_cast<RegistryType>(0xFFFFFFFF), "\x01"}},
  };
  for (const Data& each : table) {
    EXPECT_EQ(value_of("\"v\"="s + each.data, kHeader), each.value) << each.data;
  }
}

TEST(RegReader, TheOlderVersionKeepsTheBytesOfTexts) {
  const std::string header = "REGEDIT4\r\n\r\n";
  EXPECT_EQ(value_of("\"v\"=\"a\"", header), text("a"));
  EXPECT_EQ(value_of("\"v\"=hex(2):25,61,25,00", header),
            (RegistryValue{RegistryType::kExpandSz, "%a%\0"s}));
  EXPECT_EQ(value_of("\"v\"=hex(7):61,00,62,00,00", header),
            (RegistryValue{RegistryType::kMultiSz, "a\0b\0\0"s}));
}

struct Refused {
  const char* lines;
  const char* why;
};

constexpr Refused kRefused[] = {
    {"what\r\n", "line 3: is neither a key nor a value"},
    {"\"a\"=\"b\"\r\n", "line 3: the value belongs to no key"},
    {"[HKEY_USERS\\A\r\n", "line 3: the key has no \"]\""},
    {"[HKEY_USERS\\A] x\r\n", "line 3: there is more behind the key"},
    {"[HKLM\\A]\r\n", "line 3: the key begins with no known root"},
    {"[]\r\n", "line 3: the key begins with no known root"},
    {"[-HKEY_LOCAL_MACHINE]\r\n", "line 3: a root cannot be removed"},
    {"[-HKEY_LOCAL_MACHINE\\A]\r\n\"a\"=\"b\"\r\n", "line 4: the value belongs to no key"},
    {"[HKEY_USERS\\A]\r\n\"a\r\n\r\n", "line 4: the text has no closing quote"},
    {"[HKEY_USERS\\A]\r\n\"a\"=\"b\\\"\r\n", "line 4: the text has no closing quote"},
    {"[HKEY_USERS\\A]\r\n\"a\"\r\n", "line 4: \"=\" is missing behind the name"},
    {"[HKEY_USERS\\A]\r\n\"a\"=\r\n", "line 4: the data have no known form"},
    {"[HKEY_USERS\\A]\r\n\"a\"=12\r\n", "line 4: the data have no known form"},
    {"[HKEY_USERS\\A]\r\n\"a\"=\"b\" c\r\n", "line 4: there is more behind the value"},
    {"[HKEY_USERS\\A]\r\n\"a\"=- -\r\n", "line 4: there is more behind the value"},
    {"[HKEY_USERS\\A]\r\n\"a\"=dword:\r\n", "line 4: a dword has 1 to 8 hexadecimal digits"},
    {"[HKEY_USERS\\A]\r\n\"a\"=dword:123456789\r\n",
     "line 4: a dword has 1 to 8 hexadecimal digits"},
    {"[HKEY_USERS\\A]\r\n\"a\"=dword:12g\r\n", "line 4: there is more behind the value"},
    {"[HKEY_USERS\\A]\r\n\"a\"=hex(:01\r\n",
     "line 4: the type is no hexadecimal number in brackets"},
    {"[HKEY_USERS\\A]\r\n\"a\"=hex(2:01\r\n",
     "line 4: the type is no hexadecimal number in brackets"},
    {"[HKEY_USERS\\A]\r\n\"a\"=hex:01,,02\r\n", "line 4: a byte is missing in the data"},
    {"[HKEY_USERS\\A]\r\n\"a\"=hex:01,\r\n", "line 4: a byte is missing in the data"},
    {"[HKEY_USERS\\A]\r\n\"a\"=hex:012\r\n", "line 4: there is more behind the value"},
    {"[HKEY_USERS\\A]\r\n\"a\"=hex:01,\\ 02\r\n", "line 4: the data go on behind a backslash"},
    {"[HKEY_USERS\\A]\r\n\"a\"=hex:01,\\\r\n\r\n", "line 4: the data end in the middle"},
    {"[HKEY_USERS\\A]\r\n\"a\"=hex:01,\\\r\n02,\\\r\nxx\r\n",
     "line 6: a byte is missing in the data"},
};

TEST(RegReader, WhatIsWrongIsToldWithItsLine) {
  for (const Refused& each : kRefused) {
    EXPECT_EQ(refusal(std::string(kHeader) + each.lines), each.why) << each.lines;
  }
}

TEST(RegReader, AFileOfAnotherKindIsRefused) {
  const std::string why = "line 1: must be \"Windows Registry Editor Version 5.00\"";
  EXPECT_EQ(refusal(""), why);
  EXPECT_EQ(refusal("[HKEY_USERS\\A]\r\n"), why);
  EXPECT_EQ(refusal("Windows Registry Editor Version 6.00\r\n"), why);
  EXPECT_EQ(refusal("\xFE\xFF\0W\0i"s), why);
  EXPECT_EQ(refusal("\xFF\xFEW"), "the file ends in the middle of a character");
}

class RegImport : public testing::Test {
 protected:
  RegImport() {
    auto opened = FolderRegistry::open(folder_.path_of("registry.db"), effects_);
    registry_ = std::get<std::unique_ptr<FolderRegistry>>(std::move(opened));
  }

  RegistryRead<RegistryValue> value(const std::string& key, const std::string& name) {
    return registry_->value(Hive::kCurrentUser, key, name);
  }

  TempFolder folder_;
  EffectLog effects_;
  std::unique_ptr<FolderRegistry> registry_;
};

TEST_F(RegImport, MakesAllChangesInTheirOrder) {
  ASSERT_TRUE(registry_->store_value(Hive::kCurrentUser, "Old\\Sub", "v", text("1")));
  ASSERT_TRUE(registry_->store_value(Hive::kCurrentUser, "A", "gone", text("1")));
  EXPECT_EQ(import_reg_file(*registry_, kHeader + "[-HKEY_CURRENT_USER\\Old]\r\n"
                                                  "[HKEY_CURRENT_USER\\A]\r\n\"gone\"=-\r\n"
                                                  "\"new\"=\"2\"\r\n"
                                                  "[HKEY_CURRENT_USER\\Old\\Empty]\r\n"s),
            std::nullopt);
  EXPECT_EQ(registry_->sub_keys(Hive::kCurrentUser, "Old"), std::vector<std::string>{"Empty"});
  EXPECT_EQ(value("A", "gone"), std::nullopt);
  EXPECT_EQ(value("A", "new"), text("2"));
}

TEST_F(RegImport, AMistakeAnywhereChangesNothing) {
  EXPECT_EQ(import_reg_file(*registry_, kHeader + "[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n"
                                                  "\"b\"=what\r\n"s),
            "line 5: the data have no known form");
  EXPECT_FALSE(folder_.has("registry.db"));
}

TEST_F(RegImport, AKeyThatCannotBeMadeTakesEverythingBack) {
  ASSERT_TRUE(registry_->store_value(Hive::kCurrentUser, "A", "a", text("old")));
  EXPECT_EQ(import_reg_file(*registry_, kHeader + "[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"new\"\r\n"
                                                  "[HKEY_CURRENT_USER\\B\\\\C]\r\n"s),
            "line 5: the key cannot be written");
  EXPECT_EQ(value("A", "a"), text("old"));
}

TEST_F(RegImport, AStoreThatCannotBeWrittenIsTold) {
  folder_.make_folder("registry.db");
  EXPECT_EQ(import_reg_file(*registry_, kHeader + "[HKEY_CURRENT_USER\\A]\r\n"s),
            "the registry cannot be written");
}

TEST_F(RegImport, SettingTheQueueFromAFileIsNoEffect) {
  EXPECT_EQ(
      import_reg_file(*registry_,
                      kHeader + "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\"
                                "Session Manager]\r\n"
                                "\"PendingFileRenameOperations\"=hex(7):61,00,00,00,00,00\r\n"s),
      std::nullopt);
  EXPECT_TRUE(effects_.take().empty());
}

}  // namespace
}  // namespace quillvane
