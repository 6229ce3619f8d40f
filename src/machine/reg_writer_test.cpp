#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "machine/reg_file.h"
#include "platform/multi_string.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

constexpr const char* kHeader = "Windows Registry Editor Version 5.00\r\n\r\n";

RegistryValue text(const std::string& content) { return {RegistryType::kSz, content + '\0'}; }

class RegWriter : public testing::Test {
 protected:
  RegWriter() : registry_(open("registry.db")), other_(open("other.db")) {}

  std::unique_ptr<FolderRegistry> open(const char* name) {
    auto opened = FolderRegistry::open(folder_.path_of(name), effects_);
    return std::get<std::unique_ptr<FolderRegistry>>(std::move(opened));
  }

  void store(const std::string& key, const std::string& name, const RegistryValue& value) {
    EXPECT_TRUE(registry_->store_value(Hive::kCurrentUser, key, name, value)) << key;
  }

  // The line of one value, without header and key.
  std::string line_of(const std::string& name, const RegistryValue& value) {
    EXPECT_TRUE(!registry_->sub_keys(Hive::kCurrentUser, "K") ||
                registry_->remove_key(Hive::kCurrentUser, "K"));
    store("K", name, value);
    const std::string begin = kHeader + "[HKEY_CURRENT_USER\\K]\r\n"s;
    const std::string all = export_reg_file(*registry_).value_or("");
    EXPECT_EQ(all.substr(0, begin.size()), begin);
    return all.size() < begin.size() + 4 ? all
                                         : all.substr(begin.size(), all.size() - begin.size() - 4);
  }

  TempFolder folder_;
  EffectLog effects_;
  std::unique_ptr<FolderRegistry> registry_;
  std::unique_ptr<FolderRegistry> other_;
};

TEST_F(RegWriter, AnEmptyRegistryIsAHeader) {
  EXPECT_EQ(export_reg_file(*registry_), kHeader);
  EXPECT_FALSE(folder_.has("registry.db"));
}

TEST_F(RegWriter, KeysComeByHiveAndNameWithTheirValues) {
  ASSERT_TRUE(registry_->store_value(Hive::kLocalMachine, "SOFTWARE\\Z", "b", text("1")));
  ASSERT_TRUE(registry_->store_value(Hive::kLocalMachine, "SOFTWARE\\Z", "a", text("2")));
  ASSERT_TRUE(registry_->create_key(Hive::kLocalMachine, "SOFTWARE\\Ä"));
  ASSERT_TRUE(registry_->create_key(Hive::kUsers, "S-1"));
  ASSERT_TRUE(registry_->store_value(Hive::kUsers, "", "root", text("3")));
  ASSERT_TRUE(registry_->store_value(Hive::kCurrentUser, "x", "", text("4")));
  ASSERT_TRUE(registry_->create_key(Hive::kClassesRoot, ".txt"));
  EXPECT_EQ(export_reg_file(*registry_), kHeader +
                                             "[HKEY_CLASSES_ROOT\\.txt]\r\n"
                                             "\r\n"
                                             "[HKEY_CURRENT_USER\\x]\r\n"
                                             "@=\"4\"\r\n"
                                             "\r\n"
                                             "[HKEY_LOCAL_MACHINE\\SOFTWARE]\r\n"
                                             "\r\n"
                                             "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Z]\r\n"
                                             "\"b\"=\"1\"\r\n"
                                             "\"a\"=\"2\"\r\n"
                                             "\r\n"
                                             "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Ä]\r\n"
                                             "\r\n"
                                             "[HKEY_USERS]\r\n"
                                             "\"root\"=\"3\"\r\n"
                                             "\r\n"
                                             "[HKEY_USERS\\S-1]\r\n"
                                             "\r\n"s);
}

TEST_F(RegWriter, EachTypeHasItsForm) {
  EXPECT_EQ(line_of("a", text("b")), "\"a\"=\"b\"");
  EXPECT_EQ(line_of("", text("")), "@=\"\"");
  EXPECT_EQ(line_of("q\"\\", text("C:\\\"x\"")), "\"q\\\"\\\\\"=\"C:\\\\\\\"x\\\"\"");
  EXPECT_EQ(line_of("a", text("ä€")), "\"a\"=\"ä€\"");
  EXPECT_EQ(line_of("a", {RegistryType::kDword, "\x2A\0\0\x80"s}), "\"a\"=dword:8000002a");
  EXPECT_EQ(line_of("a", {RegistryType::kDword, "\x2A\0"s}), "\"a\"=hex(4):2a,00");
  EXPECT_EQ(line_of("a", {RegistryType::kBinary, ""}), "\"a\"=hex:");
  EXPECT_EQ(line_of("a", {RegistryType::kBinary, "\x01\xFF"}), "\"a\"=hex:01,ff");
  EXPECT_EQ(line_of("a", {RegistryType::kExpandSz, "%a\0"s}), "\"a\"=hex(2):25,00,61,00,00,00");
  EXPECT_EQ(line_of("a", {RegistryType::kMultiSz, multi_string_data({"a", ""})}),
            "\"a\"=hex(7):61,00,00,00,00,00,00,00");
  EXPECT_EQ(line_of("a", {RegistryType::kQword, "\1\0\0\0\0\0\0\0"s}),
            "\"a\"=hex(b):01,00,00,00,00,00,00,00");
  EXPECT_EQ(line_of("a", {static_cast<RegistryType>(0x12345678), "x"}), "\"a\"=hex(12345678):78");
}

TEST_F(RegWriter, ATextThatQuotesCannotHoldIsWrittenInHex) {
  EXPECT_EQ(line_of("a", {RegistryType::kSz, "b"}), "\"a\"=hex(1):62,00");
  EXPECT_EQ(line_of("a", {RegistryType::kSz, ""}), "\"a\"=hex(1):");
  EXPECT_EQ(line_of("a", {RegistryType::kSz, "b\0\0"s}), "\"a\"=hex(1):62,00,00,00,00,00");
  EXPECT_EQ(line_of("a", text("\r\n")), "\"a\"=hex(1):0d,00,0a,00,00,00");
  EXPECT_EQ(line_of("a", text("\xFF")), "\"a\"=hex(1):ff,dc,00,00");
}

TEST_F(RegWriter, LongDataGoOnInTheNextLine) {
  // 10 columns in front and 3 a byte: the line is full with the 23rd, further ones with the 25th.
  const std::string line = line_of("abc", {RegistryType::kBinary, std::string(49, '\x11')});
  std::string expected = "\"abc\"=hex:";
  for (int i = 0; i < 23; ++i) expected += "11,";
  expected += "\\\r\n  ";
  for (int i = 0; i < 25; ++i) expected += "11,";
  expected += "\\\r\n  11";
  EXPECT_EQ(line, expected);
}

TEST_F(RegWriter, DataThatJustFillALineDoNotGoOn) {
  const std::string line = line_of("abc", {RegistryType::kBinary, std::string(23, '\x11')});
  EXPECT_EQ(line.find('\\'), std::string::npos) << line;
}

TEST_F(RegWriter, WhatIsExportedAndImportedIsTheSameRegistry) {
  const std::vector<NamedRegistryValue> values = {
      {"plain", text("C:\\Program Files\\\"x\"")},
      {"", text("default")},
      {"two\r\nlines", text("a\nb")},
      {"ends in \\", text("\\")},
      {"=;[]@-", text("; no comment")},
      {"no UTF-8 \xFF\xC3", text("bytes \x80\xFF")},
      {"nul\0inside"s, {RegistryType::kSz, "a\0b"s}},
      {"bare", {RegistryType::kSz, "no terminator"}},
      {"empty", {RegistryType::kSz, ""}},
      {"expand", {RegistryType::kExpandSz, "%TEMP%\xF0\x9F\x98\x80\0"s}},
      {"list", {RegistryType::kMultiSz, multi_string_data({"a", "", "ü", "", ""})}},
      {"dword", {RegistryType::kDword, "\1\2\3\4"}},
      {"short dword", {RegistryType::kDword, "\1"}},
      {"none", {RegistryType::kNone, "\0\xFF"s}},
      {"qword", {RegistryType::kQword, std::string(8, '\x7F')}},
      {"long", {RegistryType::kBinary, std::string(1000, '\xAB')}},
      {"other", {static_cast<RegistryType>(0xFFFFFFFF), "\xFE"}},
  };
  for (const auto& value : values)
    store("Key ]with[ \"odd\" \xFF name\\Sub", value.name, value.value);
  const auto exported = export_reg_file(*registry_);
  ASSERT_TRUE(exported.has_value());
  ASSERT_EQ(import_reg_file(*other_, *exported), std::nullopt);

  EXPECT_EQ(export_reg_file(*other_), exported);
  const auto read = other_->values(Hive::kCurrentUser, "Key ]with[ \"odd\" \xFF name\\Sub");
  ASSERT_TRUE(read.has_value());
  ASSERT_EQ(read->size(), values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ((*read)[i].name, values[i].name);
    EXPECT_EQ((*read)[i].value, values[i].value) << values[i].name;
  }
}

TEST_F(RegWriter, ALargeValueGoesThereAndBack) {
  std::string data;
  for (int i = 0; i < 3'000'000; ++i) data.push_back(static_cast<char>(i * 7));
  store("K", "v", {RegistryType::kBinary, data});
  ASSERT_EQ(import_reg_file(*other_, export_reg_file(*registry_).value_or("")), std::nullopt);
  const auto read = other_->value(Hive::kCurrentUser, "K", "v");
  ASSERT_TRUE(read.has_value());
  EXPECT_TRUE(read->data == data) << read->data.size() << " bytes";
}

}  // namespace
}  // namespace quillvane
