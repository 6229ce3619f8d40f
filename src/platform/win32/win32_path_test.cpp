#include "platform/win32/win32_path.h"

#include <gtest/gtest.h>

#include <string>

namespace quillvane {
namespace {

TEST(Win32Path, APathOf259UnitsCanBeOpenedAndOneOf260Cannot) {
  const std::string path = "C:\\" + std::string(256, 'a');
  ASSERT_TRUE(openable_path(path).has_value());
  EXPECT_EQ(openable_path(path)->size(), 259U);
  EXPECT_FALSE(openable_path(path + "a").has_value());
}

TEST(Win32Path, LettersAboveAsciiCountAsUnitsNotAsBytes) {
  std::string path = "C:\\";
  for (int i = 0; i < 256; ++i) path += "\xC3\xA4";
  EXPECT_TRUE(openable_path(path).has_value());
}

TEST(Win32Path, APathWithoutADriveIsNowhere) {
  for (const char* path : {"", "\\", "\\Temp", "Temp", "C:Temp", "1:\\Temp", ":\\"}) {
    EXPECT_FALSE(openable_path(path).has_value()) << path;
    EXPECT_FALSE(folder_prefix(path).has_value()) << path;
  }
}

TEST(Win32Path, APathWithAZeroInsideIsNowhere) {
  EXPECT_FALSE(openable_path(std::string("C:\\a\0b", 6)).has_value());
}

TEST(Win32Path, SharesAndDrivesAreAbsolute) {
  EXPECT_EQ(openable_path("\\\\server\\share\\a"), L"\\\\server\\share\\a");
  EXPECT_EQ(openable_path("c:\\a"), L"c:\\a");
}

TEST(Win32Path, ADriveAloneIsItsRoot) {
  EXPECT_EQ(openable_path("C:"), L"C:\\");
  EXPECT_EQ(folder_prefix("C:"), L"C:\\");
}

TEST(Win32Path, AFolderGetsOneBackslash) {
  EXPECT_EQ(folder_prefix("C:\\Temp"), L"C:\\Temp\\");
  EXPECT_EQ(folder_prefix("C:\\Temp\\"), L"C:\\Temp\\");
}

}  // namespace
}  // namespace quillvane
