// The registry.
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

class RegistryContract : public ContractTest {
 protected:
  std::string key(const std::string& below = {}) const {
    return below.empty() ? machine->key() : machine->key() + "\\" + below;
  }
  bool set(const std::string& name, RegistryType type, const std::string& data) {
    return platform.registry.set_value(Hive::kCurrentUser, key(), name, {type, data});
  }
  RegistryRead<RegistryValue> get(const std::string& name) {
    return platform.registry.value(Hive::kCurrentUser, key(), name);
  }
  Names value_names() {
    Names names;
    const auto values = platform.registry.values(Hive::kCurrentUser, key());
    if (!values) return {"(cannot be opened)"};
    for (const NamedRegistryValue& value : *values) names.push_back(value.name);
    return names;
  }
};

TEST_F(RegistryContract, EveryTypeComesBackAsItWasWritten) {
  const RegistryValue values[] = {
      {RegistryType::kNone, "\x01\x02"},
      {RegistryType::kSz, "a text\0"s},
      {RegistryType::kExpandSz, "%TEMP%\\a\0"s},
      {RegistryType::kBinary, "\x00\xFF\x80\x0A"s},
      {RegistryType::kDword, "\x04\x03\x02\x01"},
      {RegistryType::kDwordBigEndian, "\x01\x02\x03\x04"},
      {RegistryType::kMultiSz, "one\0two\0\0"s},
      {RegistryType::kQword, "\x08\x07\x06\x05\x04\x03\x02\x01"},
  };
  for (const RegistryValue& value : values) {
    const auto type = static_cast<unsigned>(value.type);
    EXPECT_TRUE(set("v", value.type, value.data)) << "type " << type;
    EXPECT_TRUE(get("v") == value) << "type " << type;
  }
}

TEST_F(RegistryContract, TextsKeepTheTerminatorsTheyWereWrittenWith) {
  for (const std::string& text : {"none"s, "one\0"s, "two\0\0"s, "in\0side\0"s, ""s, "\0"s}) {
    ASSERT_TRUE(set("v", RegistryType::kSz, text));
    ASSERT_TRUE(get("v").has_value());
    EXPECT_EQ(get("v")->data, text);
  }
}

TEST_F(RegistryContract, AListKeepsItsEmptyTexts) {
  const std::string list = "a\0\0b\0\0\0"s;
  ASSERT_TRUE(set("v", RegistryType::kMultiSz, list));
  EXPECT_EQ(get("v")->data, list);
}

TEST_F(RegistryContract, LettersAboveAsciiComeBack) {
  const std::string text = "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\0"s;
  ASSERT_TRUE(set("\xC3\x84", RegistryType::kSz, text));
  ASSERT_TRUE(get("\xC3\xA4").has_value());
  EXPECT_EQ(get("\xC3\xA4")->data, text);
  EXPECT_EQ(value_names(), Names{"\xC3\x84"});
}

TEST_F(RegistryContract, ValuesLongerThanAnyBufferComeBackWhole) {
  for (const std::size_t length : {1023U, 1024U, 1025U, 5000U, 100'000U}) {
    const std::string text = std::string(length, 'x') + '\0';
    ASSERT_TRUE(set("long", RegistryType::kSz, text));
    ASSERT_TRUE(get("long").has_value()) << length;
    EXPECT_TRUE(get("long")->data == text) << length;
    const auto values = platform.registry.values(Hive::kCurrentUser, key());
    ASSERT_TRUE(values && values->size() == 1) << length;
    EXPECT_TRUE(values->front().value.data == text) << length;
  }
}

TEST_F(RegistryContract, TheEmptyNameIsTheDefaultValue) {
  ASSERT_TRUE(set("", RegistryType::kSz, "default\0"s));
  ASSERT_TRUE(get("").has_value());
  EXPECT_EQ(get("")->data, "default\0"s);
  EXPECT_EQ(value_names(), Names{""});
}

TEST_F(RegistryContract, AValueCanBeReplacedByOneOfAnotherType) {
  ASSERT_TRUE(set("v", RegistryType::kSz, "a long text\0"s));
  ASSERT_TRUE(set("V", RegistryType::kDword, "\x01\0\0\0"s));
  EXPECT_EQ(get("v")->type, RegistryType::kDword);
  EXPECT_EQ(get("v")->data, "\x01\0\0\0"s);
  EXPECT_EQ(value_names(), Names{"v"});
}

TEST_F(RegistryContract, ValuesComeWithTheirData) {
  ASSERT_TRUE(set("a", RegistryType::kSz, "1\0"s));
  ASSERT_TRUE(set("b", RegistryType::kDword, "\x02\0\0\0"s));
  const auto values = platform.registry.values(Hive::kCurrentUser, key());
  ASSERT_TRUE(values.has_value());
  ASSERT_EQ(values->size(), 2U);
  for (const NamedRegistryValue& value : *values) {
    EXPECT_TRUE(get(value.name) == value.value) << value.name;
  }
}

TEST_F(RegistryContract, SubKeysComeByNameWithoutRegardToCase) {
  for (const char* name : {"b", "C", "a", "B2"}) {
    ASSERT_TRUE(platform.registry.create_key(Hive::kCurrentUser, key(name))) << name;
  }
  EXPECT_EQ(platform.registry.sub_keys(Hive::kCurrentUser, key()), (Names{"a", "b", "B2", "C"}));
}

TEST_F(RegistryContract, OnlyTheKeysDirectlyBelowAreSubKeys) {
  ASSERT_TRUE(platform.registry.create_key(Hive::kCurrentUser, key("a\\deep\\deeper")));
  EXPECT_EQ(platform.registry.sub_keys(Hive::kCurrentUser, key()), Names{"a"});
  EXPECT_EQ(platform.registry.sub_keys(Hive::kCurrentUser, key("a\\deep")), Names{"deeper"});
  EXPECT_EQ(platform.registry.sub_keys(Hive::kCurrentUser, key("a\\deep\\deeper")), Names{});
}

TEST_F(RegistryContract, CaseAndATrailingBackslashMakeNoDifference) {
  ASSERT_TRUE(platform.registry.create_key(Hive::kCurrentUser, key("Sub") + "\\"));
  ASSERT_TRUE(platform.registry.create_key(Hive::kCurrentUser, key("sUB")));
  EXPECT_EQ(platform.registry.sub_keys(Hive::kCurrentUser, key()), Names{"Sub"});
  ASSERT_TRUE(platform.registry.set_value(Hive::kCurrentUser, key("SUB\\"), "Name",
                                          {RegistryType::kSz, "x"}));
  EXPECT_TRUE(platform.registry.value(Hive::kCurrentUser, key("sub"), "nAME").has_value());
}

TEST_F(RegistryContract, AMissingKeyAnswersNothingAndIsNotMade) {
  EXPECT_FALSE(platform.registry.sub_keys(Hive::kCurrentUser, key("missing")).has_value());
  EXPECT_FALSE(platform.registry.values(Hive::kCurrentUser, key("missing")).has_value());
  EXPECT_FALSE(platform.registry.value(Hive::kCurrentUser, key("missing"), "v").has_value());
  EXPECT_FALSE(platform.registry.set_value(Hive::kCurrentUser, key("missing"), "v",
                                           {RegistryType::kSz, "x"}));
  EXPECT_EQ(platform.registry.sub_keys(Hive::kCurrentUser, key()), Names{});
}

TEST_F(RegistryContract, AMissingValueIsNothingAndAnEmptyOneIsThere) {
  EXPECT_FALSE(get("v").has_value());
  ASSERT_TRUE(set("v", RegistryType::kSz, ""));
  EXPECT_TRUE(get("v") == (RegistryValue{RegistryType::kSz, ""}));
}

TEST_F(RegistryContract, AnEmptyKeyHasNoValuesAndNoKeys) {
  EXPECT_EQ(platform.registry.sub_keys(Hive::kCurrentUser, key()), Names{});
  EXPECT_EQ(value_names(), Names{});
}

TEST_F(RegistryContract, TheHivesThemselvesCanBeOpened) {
  const auto keys = platform.registry.sub_keys(Hive::kCurrentUser, "");
  ASSERT_TRUE(keys.has_value());
  bool has_software = false;
  for (const std::string& name : *keys) has_software |= name == "Software";
  EXPECT_TRUE(has_software);
}

TEST_F(RegistryContract, TheOtherViewSeesTheSamePrivateKeys) {
  ASSERT_TRUE(set("v", RegistryType::kSz, "x\0"s));
  const auto value =
      platform.registry.value(Hive::kCurrentUser, key(), "v", KeyAccess::kSystemSettings);
  ASSERT_TRUE(value.has_value());
  EXPECT_EQ(value->data, "x\0"s);
}

TEST_F(RegistryContract, WhatIsNotThereIsNoFailure) {
  ASSERT_TRUE(platform.registry.create_key(Hive::kCurrentUser, key()));
  EXPECT_FALSE(get("missing").failed());
  EXPECT_FALSE(platform.registry.value(Hive::kCurrentUser, key("missing"), "v").failed());
  EXPECT_FALSE(platform.registry.values(Hive::kCurrentUser, key("missing")).failed());
  EXPECT_FALSE(platform.registry.sub_keys(Hive::kCurrentUser, key("missing")).failed());
}

TEST_F(RegistryContract, ARefusedWriteSaysWhy) {
  const RegistryWrite written = platform.registry.set_value(Hive::kCurrentUser, key("missing"), "v",
                                                            {RegistryType::kBinary, "x"});
  EXPECT_FALSE(written);
  EXPECT_NE(written.problem(), "");
}

TEST_F(RegistryContract, ARemovedValueIsGoneAndTheOthersStay) {
  ASSERT_TRUE(platform.registry.create_key(Hive::kCurrentUser, key()));
  ASSERT_TRUE(set("a", RegistryType::kBinary, "1"));
  ASSERT_TRUE(set("b", RegistryType::kBinary, "2"));
  EXPECT_TRUE(platform.registry.remove_value(Hive::kCurrentUser, key(), "A"));
  EXPECT_EQ(value_names(), Names{"b"});
  // What is not there need not be removed.
  EXPECT_TRUE(platform.registry.remove_value(Hive::kCurrentUser, key(), "a"));
  EXPECT_TRUE(platform.registry.remove_value(Hive::kCurrentUser, key("missing"), "a"));
}

}  // namespace
}  // namespace quillvane
