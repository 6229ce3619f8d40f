#include "platform/win32/long_path.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

TEST(LongPath, TakesAbsolutePathsWithEitherSlash) {
  EXPECT_EQ(long_path("C:\\Temp\\a.tmp"), L"\\\\?\\C:\\Temp\\a.tmp");
  EXPECT_EQ(long_path("C:/Temp/con/a."), L"\\\\?\\C:\\Temp\\con\\a.");
  EXPECT_EQ(long_path("\\\\server\\share\\a"), L"\\\\?\\UNC\\server\\share\\a");
}

TEST(LongPath, LeavesOneOfItsFormAsItIs) {
  EXPECT_EQ(long_path("\\\\?\\C:\\Temp\\a."), L"\\\\?\\C:\\Temp\\a.");
  EXPECT_EQ(long_path(""), L"");
}

TEST(LongPath, TakesMoreThan260Units) {
  const std::string name(200, 'n');
  EXPECT_EQ(long_path("C:\\" + name + "/" + name),
            L"\\\\?\\C:\\" + std::wstring(200, L'n') + L"\\" + std::wstring(200, L'n'));
}

TEST(LongPath, PutsOneBackslashBetweenFolderAndName) {
  EXPECT_EQ(path_below(L"\\\\?\\C:\\Temp", L"a"), L"\\\\?\\C:\\Temp\\a");
  EXPECT_EQ(path_below(L"\\\\?\\C:\\", L"a"), L"\\\\?\\C:\\a");
}

}  // namespace
}  // namespace quillvane
