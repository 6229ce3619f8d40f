#include "support/registry_values.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <variant>

#include "platform/unicode_case.h"
#include "tests/support/memory_registry.h"
#include "tests/support/no_files.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

constexpr Hive kHive = Hive::kLocalMachine;
const std::string kKey = "SYSTEM\\CurrentControlSet\\Control\\CrashControl";

// A disk with one INI file and one folder.
class OneIniFile final : public NoFiles {
 public:
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override {
    if (same_name(path, "C:\\app.ini")) return kAttributeArchive;
    if (same_name(path, "C:\\folder")) return kAttributeFolder;
    return std::nullopt;
  }
  [[nodiscard]] FileContent read_file(const std::string& path) const override {
    if (!same_name(path, "C:\\app.ini")) return ReadFailure::kMissing;
    return content;
  }

  std::string content;
};

std::optional<RegistryContent> content_of(RegistryType type, std::string data) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "value", type, std::move(data));
  return GetRegistryValue(registry, kHive, kKey, "value");
}

TEST(GetRegistryValue, GivesTextsWithoutTheirTerminator) {
  EXPECT_EQ(content_of(RegistryType::kSz, "abc\0"s), RegistryContent("abc"));
  EXPECT_EQ(content_of(RegistryType::kSz, "abc"), RegistryContent("abc"));
  EXPECT_EQ(content_of(RegistryType::kSz, ""), RegistryContent(""));
}

TEST(GetRegistryValue, LeavesReferencesUnexpanded) {
  EXPECT_EQ(content_of(RegistryType::kExpandSz, "%SystemRoot%\\MEMORY.DMP\0"s),
            RegistryContent("%SystemRoot%\\MEMORY.DMP"));
}

TEST(GetRegistryValue, GivesNumbersAndBytes) {
  EXPECT_EQ(content_of(RegistryType::kDword, "\x04\x03\x02\x01"), RegistryContent(0x01020304U));
  EXPECT_EQ(content_of(RegistryType::kBinary, "\x01\x00\xFF"s),
            RegistryContent(RegistryBytes{"\x01\x00\xFF"s}));
}

TEST(GetRegistryValue, GivesAListOfTextsAsOneText) {
  const auto content = content_of(RegistryType::kMultiSz, "first\0second\0\0"s);
  ASSERT_TRUE(content && std::holds_alternative<std::string>(*content));
  EXPECT_EQ(std::get<std::string>(*content).substr(0, 12), "first\0second"s);
}

TEST(GetRegistryValue, ReadsValuesThatFillMoreThanTheFirstBuffer) {
  const std::string text(3000, 'x');
  EXPECT_EQ(content_of(RegistryType::kSz, text + '\0'), RegistryContent(text));
}

TEST(GetRegistryValue, IsNothingForOtherTypesAndMissingValues) {
  EXPECT_EQ(content_of(RegistryType::kQword, "12345678"), std::nullopt);
  EXPECT_EQ(content_of(RegistryType::kNone, "12"), std::nullopt);
  MemoryRegistry registry;
  registry.put(kHive, kKey, "value", RegistryType::kSz, "x");
  EXPECT_EQ(GetRegistryValue(registry, kHive, kKey, "other"), std::nullopt);
  EXPECT_EQ(GetRegistryValue(registry, kHive, "SYSTEM\\other", "value"), std::nullopt);
}

TEST(SetRegistryValue, WritesTextsNumbersAndBytesByTheirTypes) {
  MemoryRegistry registry;
  ASSERT_TRUE(registry.create_key(kHive, kKey));

  EXPECT_TRUE(SetRegistryValue(registry, kHive, kKey, "text", "abc"));
  EXPECT_TRUE(SetRegistryValue(registry, kHive, kKey, "number", 0x01020304U));
  EXPECT_TRUE(SetRegistryValue(registry, kHive, kKey, "bytes", RegistryBytes{"\x01\x00"s}));

  EXPECT_EQ(registry.value(kHive, kKey, "text")->type, RegistryType::kSz);
  EXPECT_EQ(GetRegistryValue(registry, kHive, kKey, "text"), RegistryContent("abc"));
  const RegistryValue number{RegistryType::kDword, "\x04\x03\x02\x01"};
  EXPECT_EQ(registry.value(kHive, kKey, "number"), number);
  const RegistryValue bytes{RegistryType::kBinary, "\x01\x00"s};
  EXPECT_EQ(registry.value(kHive, kKey, "bytes"), bytes);
}

TEST(SetRegistryValue, MakesNoKey) {
  MemoryRegistry registry;
  EXPECT_FALSE(SetRegistryValue(registry, kHive, kKey, "text", "abc"));
  EXPECT_FALSE(registry.values(kHive, kKey).has_value());
}

struct HiveCase {
  std::string_view name;
  Hive hive;
};

constexpr HiveCase kHives[] = {
    {"HKCU", Hive::kCurrentUser}, {"HKLM", Hive::kLocalMachine}, {"HKU", Hive::kUsers},
    {"HKCR", Hive::kClassesRoot}, {"HKlm", Hive::kLocalMachine}, {"hkcu", Hive::kCurrentUser},
};

TEST(FHiveFromName, KnowsTheHivesInAnyCase) {
  const OneIniFile files;
  for (const auto& [name, hive] : kHives) {
    const HiveOrFile found = fHiveFromName(files, std::string(name));
    ASSERT_TRUE(std::holds_alternative<Hive>(found)) << name;
    EXPECT_EQ(std::get<Hive>(found), hive) << name;
  }
}

TEST(FHiveFromName, TakesOtherNamesForFilesIfThereAreSuch) {
  const OneIniFile files;
  EXPECT_TRUE(std::holds_alternative<IniFile>(fHiveFromName(files, "C:\\APP.INI")));
  EXPECT_TRUE(std::holds_alternative<NoHive>(fHiveFromName(files, "C:\\other.ini")));
  EXPECT_TRUE(std::holds_alternative<NoHive>(fHiveFromName(files, "C:\\folder")));
  EXPECT_TRUE(std::holds_alternative<NoHive>(fHiveFromName(files, "HKEY_LOCAL_MACHINE")));
}

TEST(FEnumValue, WritesTextsAndSmallNumbers) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "text", RegistryType::kSz, "abc\0"s);
  registry.put(kHive, kKey, "one", RegistryType::kBinary, "\x07");
  registry.put(kHive, kKey, "two", RegistryType::kBinary, "\x01\x01");
  registry.put(kHive, kKey, "number", RegistryType::kDword, "\x0A\x00\x00\x00"s);

  const ValueList list = fEnumValue(registry, OneIniFile(), "HKLM", kKey);

  EXPECT_EQ(list.status, 0);
  EXPECT_EQ(list.text, "text=abcone=7two=257number=10");
}

TEST(FEnumValue, WritesOnlyTheNamesOfOtherValues) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "expand", RegistryType::kExpandSz, "%TEMP%\0"s);
  registry.put(kHive, kKey, "text", RegistryType::kSz, "abc\0"s);
  registry.put(kHive, kKey, "bytes", RegistryType::kBinary, "\x01\x02\x03");
  registry.put(kHive, kKey, "list", RegistryType::kMultiSz, "a\0\0"s);

  const ValueList list = fEnumValue(registry, OneIniFile(), "hklm", kKey);

  EXPECT_EQ(list.text, "text=abc");
  EXPECT_EQ(list.names, "expand,text,bytes,list");
}

TEST(FEnumValue, EndsAtTheFirstValueOfMoreThan2048Bytes) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "full", RegistryType::kBinary, std::string(2048, 'x'));
  registry.put(kHive, kKey, "more", RegistryType::kBinary, std::string(2049, 'x'));
  registry.put(kHive, kKey, "text", RegistryType::kSz, "abc\0"s);

  const ValueList list = fEnumValue(registry, OneIniFile(), "HKLM", kKey);

  EXPECT_EQ(list.status, 0);
  EXPECT_EQ(list.names, "full");
  EXPECT_EQ(list.text, "");
}

TEST(FEnumValue, OpensTheKeyToQueryValuesOnly) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "text", RegistryType::kSz, "abc\0"s);
  EXPECT_EQ(fEnumValue(registry, OneIniFile(), "HKLM", kKey).status, 0);
  EXPECT_EQ(registry.accesses, std::vector{static_cast<KeyAccess>(1)});
}

TEST(GetRegistryValue, OpensTheKeyWithAllRightsButThoseToItsRights) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "text", RegistryType::kSz, "abc\0"s);
  EXPECT_TRUE(GetRegistryValue(registry, kHive, kKey, "text").has_value());
  EXPECT_EQ(registry.accesses, std::vector{static_cast<KeyAccess>(319)});
}

TEST(FEnumValue, TellsThatTheListCouldNotBeBegun) {
  const MemoryRegistry registry;
  EXPECT_EQ(fEnumValue(registry, OneIniFile(), "HKXX", kKey).status, 99);

  const ValueList no_key = fEnumValue(registry, OneIniFile(), "HKLM", kKey);
  EXPECT_NE(no_key.status, 0);
  EXPECT_EQ(no_key.text + no_key.names, "");
}

TEST(FEnumValue, ReadsTheSectionOfAnIniFile) {
  const MemoryRegistry registry;
  OneIniFile files;
  files.content = "[first]\r\na=1\r\n[Second]\r\nb=2\r\nc=3\r\n\r\n[third]\r\nd=4\r\n";

  const ValueList list = fEnumValue(registry, files, "C:\\app.ini", "second");

  EXPECT_EQ(list.status, 0);
  EXPECT_EQ(list.text, "b=2\0c=3\0"s);
}

const std::string kHiveList = "SYSTEM\\CurrentControlSet\\Control\\hivelist";

std::string sid_of(const std::vector<std::string>& hives) {
  MemoryRegistry registry;
  for (const std::string& name : hives) registry.put(kHive, kHiveList, name, RegistryType::kSz, "");
  return GetHiveListSid(registry, OneIniFile());
}

TEST(GetHiveListSid, IsTheFirstUserHiveInTheRegistrysOrder) {
  EXPECT_EQ(sid_of({"\\REGISTRY\\MACHINE\\SAM", "\\REGISTRY\\USER\\.DEFAULT",
                    "\\REGISTRY\\USER\\S-1-5-19", "\\REGISTRY\\USER\\S-1-5-21-7-8-9-1002",
                    "\\REGISTRY\\USER\\S-1-5-21-1-2-3-1001"}),
            "s-1-5-21-7-8-9-1002");
}

TEST(GetHiveListSid, PassesOverTheClassesOfAUser) {
  EXPECT_EQ(sid_of({"\\REGISTRY\\USER\\S-1-5-21-1-2-3-1001_Classes",
                    "\\REGISTRY\\USER\\S-1-5-21-1-2-3-1001"}),
            "s-1-5-21-1-2-3-1001");
}

TEST(GetHiveListSid, IsEmptyWithoutAUserHive) {
  EXPECT_EQ(sid_of({"\\REGISTRY\\USER\\S-1-5-18", "\\REGISTRY\\USER\\S-1-5-21-1_CLASSES"}), "");
  EXPECT_EQ(GetHiveListSid(MemoryRegistry(), OneIniFile()), "");
}

}  // namespace
}  // namespace quillvane
