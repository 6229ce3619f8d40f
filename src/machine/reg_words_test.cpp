#include "machine/reg_words.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quillvane {
namespace {

using namespace std::string_view_literals;
using Place = std::optional<std::pair<Hive, std::string>>;

TEST(RegWords, ARootIsFoundInAnyCase) {
  EXPECT_EQ(hive_and_key("HKEY_CLASSES_ROOT\\.txt"), Place({Hive::kClassesRoot, ".txt"}));
  EXPECT_EQ(hive_and_key("hkey_current_user\\A\\B"), Place({Hive::kCurrentUser, "A\\B"}));
  EXPECT_EQ(hive_and_key("HKEY_LOCAL_MACHINE"), Place({Hive::kLocalMachine, ""}));
  EXPECT_EQ(hive_and_key("HKEY_USERS\\"), Place({Hive::kUsers, ""}));
}

TEST(RegWords, TheCurrentConfigurationLiesInTheLocalMachine) {
  const std::string config = "SYSTEM\\CurrentControlSet\\Hardware Profiles\\Current";
  EXPECT_EQ(hive_and_key("HKEY_CURRENT_CONFIG"), Place({Hive::kLocalMachine, config}));
  EXPECT_EQ(hive_and_key("HKEY_CURRENT_CONFIG\\Software"),
            Place({Hive::kLocalMachine, config + "\\Software"}));
}

TEST(RegWords, OtherRootsAreUnknown) {
  for (const char* path : {"", "HKLM", "HKEY_LOCAL_MACHINES\\A", "\\HKEY_USERS", "A\\HKEY_USERS"}) {
    EXPECT_EQ(hive_and_key(path), std::nullopt) << path;
  }
}

TEST(RegWords, EachHiveHasItsName) {
  EXPECT_EQ(hive_name(Hive::kClassesRoot), "HKEY_CLASSES_ROOT");
  EXPECT_EQ(hive_name(Hive::kCurrentUser), "HKEY_CURRENT_USER");
  EXPECT_EQ(hive_name(Hive::kLocalMachine), "HKEY_LOCAL_MACHINE");
  EXPECT_EQ(hive_name(Hive::kUsers), "HKEY_USERS");
}

struct Units {
  std::string_view text;
  std::string_view units;
};

constexpr Units kUnits[] = {
    {""sv, ""sv},
    {"a\0"sv, "a\0\0\0"sv},
    {"\xC3\xA4"sv, "\xE4\0"sv},                    // U+00E4
    {"\xE2\x82\xAC"sv, "\xAC\x20"sv},              // U+20AC
    {"\xF0\x9F\x98\x80"sv, "\x3D\xD8\x00\xDE"sv},  // U+1F600: a pair
    {"\xFF"sv, "\xFF\xDC"sv},                      // bytes that are no UTF-8
    {"a\x80z"sv, "a\0\x80\xDCz\0"sv},
    {"\xED\xA0\x80"sv, "\xED\xDC\xA0\xDC\x80\xDC"sv},  // a surrogate is no UTF-8
};

TEST(RegWords, TextsAreTurnedIntoUnitsAndBack) {
  for (const Units& each : kUnits) {
    EXPECT_EQ(reg_units_from_text(each.text), each.units);
    EXPECT_EQ(text_from_reg_units(each.units), each.text);
  }
}

TEST(RegWords, OtherLoneSurrogatesAreReplacedAndHalfAUnitIsDropped) {
  EXPECT_EQ(text_from_reg_units("\x00\xD8"sv), "\xEF\xBF\xBD");
  EXPECT_EQ(text_from_reg_units("\x7F\xDC"sv), "\xEF\xBF\xBD");
  EXPECT_EQ(text_from_reg_units("\x00\xD8g\0"sv), "\xEF\xBF\xBDg");
  EXPECT_EQ(text_from_reg_units("a\0b"sv), "a");
}

}  // namespace
}  // namespace quillvane
