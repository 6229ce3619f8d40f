#include "support/registry_text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/val.h"
#include "tests/support/memory_registry.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

constexpr Hive kHive = Hive::kLocalMachine;
const std::string kKey = "software\\Quillvane\\Tidewrack Deluxe\\timer";

RegistryText read_back(RegistryType type, std::string data) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "value", type, std::move(data));
  return ReadRegistryString(registry, kHive, kKey, "value");
}

TEST(ReadRegistryString, GivesATextWithoutItsTerminator) {
  const RegistryText value = read_back(RegistryType::kSz, "Local Disk (C:)\0"s);
  EXPECT_TRUE(value.read);
  EXPECT_EQ(value.text, "Local Disk (C:)");
}

TEST(ReadRegistryString, KeepsTheLastCharacterOfATextWithoutTerminator) {
  EXPECT_EQ(read_back(RegistryType::kSz, "abc").text, "abc");
}

TEST(ReadRegistryString, ReadsAnEmptyTextAsRead) {
  EXPECT_TRUE(read_back(RegistryType::kSz, "").read);
  EXPECT_TRUE(read_back(RegistryType::kSz, "\0"s).read);
  EXPECT_EQ(read_back(RegistryType::kSz, "\0"s).text, "");
}

TEST(ReadRegistryString, ReadsUpTo1023BytesAndNoMore) {
  const RegistryText longest = read_back(RegistryType::kSz, std::string(1022, 'x') + '\0');
  EXPECT_TRUE(longest.read);
  EXPECT_EQ(longest.text, std::string(1022, 'x'));

  for (const std::size_t bytes : {1024U, 1025U, 5000U}) {
    const RegistryText value = read_back(RegistryType::kSz, std::string(bytes - 1, 'x') + '\0');
    EXPECT_FALSE(value.read) << bytes;
    EXPECT_EQ(value.text, "") << bytes;
  }
}

TEST(ReadRegistryString, ReadsNothingWithoutKeyOrValue) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "value", RegistryType::kSz, "x");
  for (const RegistryText& value :
       {ReadRegistryString(registry, kHive, kKey, "other"),
        ReadRegistryString(registry, kHive, "software\\other", "value"),
        ReadRegistryString(registry, Hive::kCurrentUser, kKey, "value")}) {
    EXPECT_FALSE(value.read);
    EXPECT_EQ(value.text, "");
  }
}

TEST(ReadRegistryString, TheEmptyNameIsTheKeysDefaultValue) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "", RegistryType::kSz, "default");
  EXPECT_EQ(ReadRegistryString(registry, kHive, kKey, "").text, "default");
}

struct NumberCase {
  std::uint32_t number;
  std::string_view text;
};

// The bytes from the last to the first without leading zeros; a last byte of 0 is dropped before.
constexpr NumberCase kNumbers[] = {
    {0x01020304, "&h1234"},
    {1, "&h001"},
    {0, "&h000"},
    {0x10, "&h0010"},
    {0xFFFFFFFF, "&hFFFFFFFF"},
    {0x0A000000, "&hA000"},
    {0x00000100, "&h010"},
    {0x00AB0C00, "&hABC0"},
};

std::string little_endian(std::uint32_t number) {
  std::string data;
  for (unsigned shift = 0; shift < 32; shift += 8) data += static_cast<char>(number >> shift);
  return data;
}

TEST(ReadRegistryString, WritesTheBytesOfANumberWithoutPadding) {
  for (const auto& [number, text] : kNumbers) {
    const RegistryText value = read_back(RegistryType::kDword, little_endian(number));
    EXPECT_TRUE(value.read) << number;
    EXPECT_EQ(value.text, text) << number;
  }
}

TEST(ReadRegistryString, ANumberWithSmallBytesComesOutAsAnother) {
  EXPECT_EQ(Val(read_back(RegistryType::kDword, little_endian(1)).text), 1);
  EXPECT_EQ(Val(read_back(RegistryType::kDword, little_endian(256)).text), 16);
  EXPECT_EQ(Val(read_back(RegistryType::kDword, little_endian(0x01020304)).text), 0x1234);
}

TEST(ReadRegistryString, ReadsOtherTypesAsAnEmptyText) {
  for (const RegistryType type : {RegistryType::kBinary, RegistryType::kExpandSz,
                                  RegistryType::kMultiSz, RegistryType::kQword}) {
    const RegistryText value = read_back(type, "abcdefgh");
    EXPECT_TRUE(value.read) << static_cast<int>(type);
    EXPECT_EQ(value.text, "") << static_cast<int>(type);
  }
}

TEST(ReadRegistryString, AsksForThe64BitHalfAndItsTwinForTheProgramsOwn) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "value", RegistryType::kSz, "x");

  EXPECT_EQ(ReadRegistryString(registry, kHive, kKey, "value").text, "x");
  EXPECT_EQ(ReadRegistryString32(registry, kHive, kKey, "value").text, "x");

  EXPECT_EQ(registry.accesses,
            (std::vector{static_cast<KeyAccess>(0x2013F), static_cast<KeyAccess>(0x2003F)}));
}

TEST(ReadRegistryString32, ReadsBytesAsItsTwinDoes) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "number", RegistryType::kDword, little_endian(0x01020304));
  registry.put(kHive, kKey, "long", RegistryType::kSz, std::string(1024, 'x'));
  EXPECT_EQ(ReadRegistryString32(registry, kHive, kKey, "number").text, "&h1234");
  EXPECT_FALSE(ReadRegistryString32(registry, kHive, kKey, "long").read);
}

TEST(WriteRegistryString, WritesATextWithoutItsTerminator) {
  MemoryRegistry registry;

  EXPECT_TRUE(WriteRegistryString(registry, kHive, kKey, "alldrive", "2"));

  const RegistryValue two{RegistryType::kSz, "2"};
  EXPECT_EQ(registry.value(kHive, kKey, "alldrive"), two);
}

TEST(WriteRegistryString, WritesAnEmptyTextWithLengthZero) {
  MemoryRegistry registry;

  EXPECT_TRUE(WriteRegistryString(registry, kHive, kKey, "drive1", ""));

  const RegistryValue empty{RegistryType::kSz, ""};
  EXPECT_EQ(registry.value(kHive, kKey, "drive1"), empty);
}

TEST(WriteRegistryString, ReplacesWhatWasThere) {
  MemoryRegistry registry;
  registry.put(kHive, kKey, "alldrive", RegistryType::kDword, little_endian(5));

  EXPECT_TRUE(WriteRegistryString(registry, kHive, kKey, "alldrive", "3"));

  EXPECT_EQ(ReadRegistryString(registry, kHive, kKey, "alldrive").text, "3");
}

TEST(WriteRegistryString, TellsWhenNothingWasWritten) {
  MemoryRegistry registry;
  registry.writable = false;
  EXPECT_FALSE(WriteRegistryString(registry, kHive, kKey, "alldrive", "2"));
  EXPECT_FALSE(ReadRegistryString(registry, kHive, kKey, "alldrive").read);
}

}  // namespace
}  // namespace quillvane
