// The shell. Nothing here shows a window or empties the recycle bin of whoever runs the tests.
#include <gtest/gtest.h>
#include <windows.h>

#include <shlobj.h>

#include <string>

#include "platform/unicode_case.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_environment.h"
#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_shell.h"
#include "tests/windows/companion.h"
#include "tests/windows/scratch_folder.h"

namespace quillvane {
namespace {

constexpr int kOpenedAbove = 32;
constexpr int kFileNotFound = 2;

TEST(Shell, AProgramIsOpenedWithAndWithoutAVerb) {
  Win32Shell shell;
  // Without a task it ends at once.
  const std::string program = narrow(companion_program());
  EXPECT_GT(shell.open({"open", program, {}, SW_HIDE}), kOpenedAbove);
  EXPECT_GT(shell.open({{}, program, {}, SW_HIDE}), kOpenedAbove);
}

TEST(Shell, WhatIsMissingIsNotOpened) {
  const ScratchFolder folder;
  Win32Shell shell;
  EXPECT_EQ(shell.open({"open", folder.path_of("tideerase.exe"), {}, kShowNormal}), kFileNotFound);
}

TEST(Shell, WhatIsMissingHasNoProperties) {
  const ScratchFolder folder;
  Win32Shell shell;
  EXPECT_FALSE(shell.show_properties(folder.path_of("missing.txt")));
}

TEST(Shell, SpecialFoldersAreThoseOfTheUserAndExist) {
  const Win32Shell shell;
  const std::string app_data = shell.special_folder(CSIDL_APPDATA);
  EXPECT_TRUE(same_name(app_data, Win32Environment().get("APPDATA"))) << app_data;
  const std::string links = shell.special_folder(CSIDL_SENDTO);
  EXPECT_TRUE(Win32FileSystem().attributes(links).has_value()) << links;
}

TEST(Shell, ANumberWithoutAFolderHasNone) {
  const Win32Shell shell;
  EXPECT_EQ(shell.special_folder(0x7E), "");
}

}  // namespace
}  // namespace quillvane
