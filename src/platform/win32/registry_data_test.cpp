#include "platform/win32/registry_data.h"

#include <gtest/gtest.h>

#include <string>

namespace quillvane {
namespace {

using namespace std::string_literals;

TEST(RegistryData, TextsAreUtf16InWindowsAndKeepTheirTerminators) {
  const RegistryValue value{RegistryType::kSz, "a\xC3\xA4\0"s};
  EXPECT_EQ(bytes_for_windows(value), "a\0\xE4\0\0\0"s);
  EXPECT_EQ(value_from_windows(RegistryType::kSz, "a\0\xE4\0\0\0"s), value);
}

TEST(RegistryData, EveryTextOfAListIsConverted) {
  const RegistryValue value{RegistryType::kMultiSz, "a\0b\0\0"s};
  EXPECT_EQ(bytes_for_windows(value), "a\0\0\0b\0\0\0\0\0"s);
}

TEST(RegistryData, HalfAUnitAtTheEndOfATextIsDropped) {
  EXPECT_EQ(value_from_windows(RegistryType::kExpandSz, "a\0b"s),
            (RegistryValue{RegistryType::kExpandSz, "a"}));
}

TEST(RegistryData, OtherDataAreTheSameOnBothSides) {
  const RegistryValue value{RegistryType::kBinary, "\xE4\0\xFF"s};
  EXPECT_EQ(bytes_for_windows(value), "\xE4\0\xFF"s);
  EXPECT_EQ(value_from_windows(RegistryType::kBinary, "\xE4\0\xFF"s), value);
}

}  // namespace
}  // namespace quillvane
