// The shortcut window beside the main one, as a user works it.
#include <gtest/gtest.h>
#include <windows.h>

#include <shlobj.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/win32/wide_text.h"
#include "platform/win32/win32_links.h"
#include "tests/windows/screen/copied_program.h"
#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/program_on_screen.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kTitle = "Find and Fix Invalid Shortcuts";

fs::path start_menu() {
  wchar_t path[MAX_PATH] = L"";
  EXPECT_EQ(SHGetFolderPathW(nullptr, CSIDL_STARTMENU, nullptr, SHGFP_TYPE_CURRENT, path), S_OK);
  return path;
}

// Links in a folder of the start menu, for the length of a test. The shell makes links to what is
// there, so their targets go when they stand.
class PlantedLinks {
 public:
  explicit PlantedLinks(int count) {
    CoInitialize(nullptr);
    fs::remove_all(folder_);  // a test that was ended may have left its own
    fs::create_directories(folder_);
    const fs::path targets = "C:\\qv-gone";
    fs::create_directories(targets);
    Win32Links links;
    for (int i = 0; i < count; ++i) {
      const std::string number = std::to_string(10000 + i);
      std::ofstream(targets / (number + ".exe")) << "MZ";
      EXPECT_TRUE(links.write_link(narrow(path(number).wstring()),
                                   {.target = "C:\\qv-gone\\" + number + ".exe"}));
    }
    fs::remove_all(targets);
  }
  ~PlantedLinks() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
    CoUninitialize();
  }
  PlantedLinks(const PlantedLinks&) = delete;
  PlantedLinks& operator=(const PlantedLinks&) = delete;

  [[nodiscard]] fs::path path(const std::string& number) const {
    return folder_ / ("Gone " + number + ".lnk");
  }

 private:
  fs::path folder_ = start_menu() / "qv-links";
};

class ShortcutsOnScreen : public testing::Test {
 protected:
  [[nodiscard]] HWND open() const {
    program_.click("Shortcut tool");
    HWND form = nullptr;
    EXPECT_TRUE(eventually(kTitle, [&] { return (form = program_.form(kTitle)) != nullptr; }));
    return form;
  }
  static void scan(HWND form) {
    click_in(form, "Start");
    ASSERT_TRUE(eventually("the scan's end", [form] {
      const HWND list = control_in(form, "Broken links");
      return IsWindowVisible(list) != 0 && is_enabled_in(form, "Start");
    }));
  }

  const CopiedProgram copy_;
  const ProgramOnScreen program_{copy_.executable().native()};
};

TEST_F(ShortcutsOnScreen, StandsBesideTheMainWindowWhichGoesOn) {
  const HWND form = open();

  EXPECT_EQ(GetWindow(form, GW_OWNER), nullptr);
  EXPECT_TRUE(IsWindowEnabled(program_.window()));
  EXPECT_TRUE(IsWindowVisible(control_in(form, "Drives to search")));
  EXPECT_FALSE(IsWindowVisible(control_in(form, "Broken links")));
  keep_picture("window-shortcuts-where", area_of(form));
}

TEST_F(ShortcutsOnScreen, TickedLinksAreRemovedBehindTheQuestion) {
  const PlantedLinks links(3);
  const HWND form = open();
  scan(form);
  const HWND list = control_in(form, "Broken links");
  ASSERT_EQ(program_.rows(list), 3);
  EXPECT_EQ(program_.row_text(list, 0, 0), "Gone 10000");
  EXPECT_EQ(program_.row_text(list, 0, 1), "C:\\qv-gone\\10000.exe");
  click_at(middle(program_.row_area(list, 0)));
  ASSERT_TRUE(eventually("a row in hand", [&] { return is_enabled_in(form, "Fix shortcut"); }));
  keep_picture("window-shortcuts-found", area_of(form));

  click_in(form, "Select All");
  click_in(form, "Delete");
  answer_box(await_box(program_, "Please Confirm"), "Yes");

  ASSERT_TRUE(eventually("an empty list", [&] { return program_.rows(list) == 0; }));
  EXPECT_FALSE(fs::exists(links.path("10000")));
  EXPECT_TRUE(fs::exists(copy_.folder() / "backup" / "short"));
}

TEST_F(ShortcutsOnScreen, ACancelEndsTheScanAndKeepsWhatWasFound) {
  const PlantedLinks links(400);
  const HWND form = open();
  click_in(form, "Start");
  const HWND word = control_in(form, "Found New Link and Testing It");
  ASSERT_TRUE(eventually("a link", [&] { return IsWindowVisible(word) != 0; }));
  keep_picture("window-shortcuts-scanning", area_of(form));

  click_in(form, "Cancel");

  const HWND list = control_in(form, "Broken links");
  ASSERT_TRUE(eventually("the results", [&] { return IsWindowVisible(list) != 0; }));
  ASSERT_TRUE(eventually("the scan's end", [&] { return is_enabled_in(form, "Start"); }));
  EXPECT_GT(program_.rows(list), 0);
  EXPECT_LT(program_.rows(list), 400);
}

TEST_F(ShortcutsOnScreen, ThousandsOfLinksScrollAtOnce) {
  const PlantedLinks links(2000);
  const HWND form = open();
  scan(form);
  const HWND list = control_in(form, "Broken links");
  ASSERT_EQ(program_.rows(list), 2000);

  click_at(middle(program_.row_area(list, 0)));
  press_keys("End");

  ASSERT_TRUE(
      eventually("the last row in hand", [&] { return program_.row_selected(list, 1999); }));
  EXPECT_EQ(program_.row_text(list, 1999, 0), "Gone 11999");
  keep_picture("window-shortcuts-many", area_of(form));
}

}  // namespace
}  // namespace quillvane
