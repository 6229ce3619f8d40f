#include "platform/folder/windows_path.h"

#include <gtest/gtest.h>

namespace quillvane {

namespace {

using Names = std::vector<std::string>;

struct Case {
  std::string_view text;
  Names names;
};

}  // namespace

TEST(WindowsPath, IsADriveAndTheNamesBelowIt) {
  const Case cases[] = {
      {"C:\\Temp\\a.tmp", {"Temp", "a.tmp"}},
      {"C:\\Temp\\", {"Temp"}},
      {"C:/Temp/x/a.tmp", {"Temp", "x", "a.tmp"}},
      {"C:\\Temp\\/\\a b", {"Temp", "a b"}},
      {"C:\\", {}},
      {"C:", {}},
      {"C:\\.\\Temp\\.", {"Temp"}},
      {"C:\\Temp\\..\\Users", {"Users"}},
      {"C:\\..\\..\\Users", {"Users"}},
      {"C:\\Temp\\a. ", {"Temp", "a. "}},
      {"C:\\...", {"..."}},
  };
  for (const Case& c : cases) {
    const auto path = parse_windows_path(c.text);
    ASSERT_TRUE(path) << c.text;
    EXPECT_EQ(path->drive, 'C') << c.text;
    EXPECT_EQ(path->names, c.names) << c.text;
  }
}

TEST(WindowsPath, KnowsADriveInEitherCase) { EXPECT_EQ(parse_windows_path("d:\\x")->drive, 'D'); }

TEST(WindowsPath, IsNothingWithoutADrive) {
  using namespace std::string_view_literals;
  for (const std::string_view text : {""sv, "C"sv, "Temp\\a"sv, "\\Temp"sv, "\\\\server\\share"sv,
                                      "C:Temp"sv, "1:\\x"sv, "::\\x"sv, "C:\\a\0b"sv}) {
    EXPECT_FALSE(parse_windows_path(text)) << text;
  }
}

TEST(WindowsPath, BeginsWithAFolderInAnyCase) {
  const auto path = *parse_windows_path("C:\\Windows\\Temp\\a");
  EXPECT_TRUE(path.begins_with(*parse_windows_path("c:\\WINDOWS\\temp\\")));
  EXPECT_TRUE(path.begins_with(path));
  EXPECT_FALSE(path.begins_with(*parse_windows_path("D:\\Windows")));
  EXPECT_FALSE(path.begins_with(*parse_windows_path("C:\\Win")));
  EXPECT_FALSE(path.begins_with(*parse_windows_path("C:\\Windows\\Temp\\a\\b")));
}

TEST(WindowsPath, GetsOneBackslashForAListing) {
  EXPECT_EQ(with_backslash("C:\\Temp"), "C:\\Temp\\");
  EXPECT_EQ(with_backslash("C:\\Temp\\"), "C:\\Temp\\");
}

TEST(WindowsPath, MustBeBelow260Characters) {
  EXPECT_TRUE(fits_path_limit(259));
  EXPECT_FALSE(fits_path_limit(260));
}

TEST(WindowsPath, ForbidsSomeCharactersInNewNames) {
  EXPECT_TRUE(can_be_created("junst.txt"));
  EXPECT_TRUE(can_be_created("a [1] (é).$$$"));
  for (const char* name : {"a:b", "a*", "a?", "a|b", "<a>", "a\"b", "a\tb", "a/b"}) {
    EXPECT_FALSE(can_be_created(name)) << name;
  }
}

}  // namespace quillvane
