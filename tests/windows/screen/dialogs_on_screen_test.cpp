// The small windows before the main one, as a user works them.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/win32/wide_text.h"
#include "tests/windows/screen/copied_program.h"
#include "tests/windows/screen/junk_page.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

class DialogsOnScreen : public testing::Test {
 protected:
  // Opens one of the windows by a button of the main one.
  [[nodiscard]] HWND open(const char* button, const char* title) const {
    program_.click(button);
    return await_form(title);
  }
  [[nodiscard]] HWND await_form(const char* title) const {
    HWND form = nullptr;
    EXPECT_TRUE(eventually(title, [&] { return (form = program_.form(title)) != nullptr; }));
    return form;
  }
  void await_end_of(HWND form) const {
    ASSERT_TRUE(eventually("the end of the window", [form] { return IsWindow(form) == 0; }));
  }
  // Chooses a folder in the dialog of Windows that is open.
  void choose_folder(const std::vector<std::string>& names) const {
    const HWND box = await_box(program_, "Browse for Folder");
    EXPECT_EQ(text_of(GetWindow(box, GW_OWNER)), "Ignore list");
    program_.choose_in(control_of_class(box, WC_TREEVIEWW), names);
    answer_box(box, "OK");
  }
  void scan() const {
    program_.click("Start");
    ASSERT_TRUE(eventually("a scan", [this] { return program_.is_enabled("Cancel"); }));
    ASSERT_TRUE(eventually("the scan's end", [this] {
      return program_.is_enabled("Start") && !program_.is_enabled("Cancel");
    }));
  }

  const PlantedJunk junk_;
  const CopiedProgram copy_;
  const ProgramOnScreen program_{copy_.executable().native()};
};

TEST_F(DialogsOnScreen, TheyStandBeforeTheMainWindowWhichWaits) {
  const HWND form = open("Ignore list", "Ignore list");

  EXPECT_EQ(GetWindow(form, GW_OWNER), program_.window());
  EXPECT_FALSE(IsWindowEnabled(program_.window()));
  press_keys("Escape");
  await_end_of(form);
  EXPECT_TRUE(IsWindowEnabled(program_.window()));
  ASSERT_TRUE(eventually("the main window at the front",
                         [this] { return GetForegroundWindow() == program_.window(); }));
}

TEST_F(DialogsOnScreen, AFolderPutOnTheIgnoreListIsLeftOutOfTheNextScan) {
  const HWND form = open("Ignore list", "Ignore list");
  const HWND list = control_in(form, "Ignored folders and files");
  EXPECT_FALSE(is_enabled_in(form, "Remove"));

  click_in(form, "Add");
  choose_folder({"My Computer", "C:", "windows", "logs", "CBS"});
  ASSERT_TRUE(eventually("a row", [&] { return program_.rows(list) == 1; }));
  EXPECT_EQ(program_.row_text(list, 0, 0), "C:\\windows\\logs\\CBS");
  click_at(middle(program_.row_area(list, 0)));
  ASSERT_TRUE(eventually("a row in hand", [&] { return is_enabled_in(form, "Remove"); }));
  keep_picture("window-ignore-list", area_of(form));
  press_keys("Return");  // "Save" is where Enter goes
  await_end_of(form);

  EXPECT_EQ(copy_.text("ignore.tdw"), "C:\\windows\\logs\\CBS\r\n");
  scan();
  EXPECT_EQ(program_.nodes()[6].text, "Log Files ( 0 files, 0 B )");
}

TEST_F(DialogsOnScreen, ARowThatIsRemovedIsNoMoreSelected) {
  copy_.write("ignore.tdw", "C:\\one\r\nC:\\two\r\n");
  const HWND form = open("Ignore list", "Ignore list");
  const HWND list = control_in(form, "Ignored folders and files");
  ASSERT_EQ(program_.rows(list), 2);
  click_at(middle(program_.row_area(list, 0)));
  ASSERT_TRUE(eventually("a row in hand", [&] { return is_enabled_in(form, "Remove"); }));
  EXPECT_TRUE(program_.row_selected(list, 0));

  click_in(form, "Remove");

  ASSERT_TRUE(eventually("one row", [&] { return program_.rows(list) == 1; }));
  EXPECT_EQ(program_.row_text(list, 0, 0), "C:\\two");
  EXPECT_FALSE(program_.row_selected(list, 0));
  EXPECT_FALSE(is_enabled_in(form, "Remove"));
  click_in(form, "Close");  // the button; the list stays as it was
  await_end_of(form);
  EXPECT_EQ(copy_.text("ignore.tdw"), "C:\\one\r\nC:\\two\r\n");
}

TEST_F(DialogsOnScreen, AListThatIsHeldByAnotherProgramLosesNothing) {
  copy_.write("ignore.tdw", "C:\\one\r\n");
  const HWND form = open("Ignore list", "Ignore list");
  click_in(form, "Add");
  choose_folder({"My Computer", "C:", "windows", "logs", "CBS"});
  const HWND list = control_in(form, "Ignored folders and files");
  ASSERT_TRUE(eventually("a row", [&] { return program_.rows(list) == 2; }));
  {
    const FileHandle held(CreateFileW((copy_.folder() / "ignore.tdw").c_str(), GENERIC_READ, 0,
                                      nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held.is_valid());
    click_in(form, "Save");
    // The main window reads its list again and cannot: it says so, and cleans nothing.
    answer_box(await_box(program_, "Quillvane Disk Cleaner"), "OK");
    await_end_of(form);
  }

  EXPECT_EQ(copy_.text("ignore.tdw"), "C:\\one\r\n");
}

TEST_F(DialogsOnScreen, ACategoryOfTheUsersOwnIsTypedInAndJoinsTheTree) {
  fs::create_directories("C:\\qv-own");
  const HWND list_form = open("Custom Search", "Custom file search");
  EXPECT_FALSE(is_enabled_in(list_form, "Edit"));
  press_keys("Return");  // "New" is where Enter goes
  HWND form = nullptr;
  ASSERT_TRUE(eventually("the entry's window", [&] {
    form = program_.form("Custom file search");
    return form != nullptr && form != list_form;
  }));
  EXPECT_EQ(GetWindow(form, GW_OWNER), list_form);
  EXPECT_FALSE(is_enabled_in(form, "Save"));

  type_text("Own");
  press_keys("Tab");
  type_text("C:\\qv-own");
  ASSERT_TRUE(eventually("a folder that is there", [&] { return is_enabled_in(form, "Save"); }));
  press_keys("Tab Tab");  // over "Browse"
  type_text("*.own");
  ASSERT_TRUE(eventually("typed text", [&] { return control_in(form, "*.own") != nullptr; }));
  keep_picture("window-custom-entry", area_of(form));
  press_keys("Return");
  const HWND box = await_box(program_, "Custom folder search");
  EXPECT_EQ(program_.box_text(box), "Are you sure you want to empty this folder ?");
  answer_box(box, "Yes");
  await_end_of(form);

  const HWND list = control_in(list_form, "Categories of your own");
  ASSERT_TRUE(eventually("a row", [&] { return program_.rows(list) == 1; }));
  EXPECT_EQ(program_.row_text(list, 0, 0), "Own");
  EXPECT_EQ(program_.row_text(list, 0, 1), "C:\\qv-own");
  keep_picture("window-custom-list", area_of(list_form));
  press_keys("Escape");
  await_end_of(list_form);
  EXPECT_EQ(copy_.text("custom.tdw"), "Own|C:\\qv-own|*.own||0\r\n");
  ASSERT_EQ(program_.nodes().size(), 25U);
  EXPECT_EQ(program_.nodes()[24].text, "Own");
  fs::remove_all("C:\\qv-own");
}

TEST_F(DialogsOnScreen, AboutClosesByEscapeAndByItsCross) {
  const HWND first = open("About", "About");
  EXPECT_NE(control_in(first, "Version 1.0.0"), nullptr);
  keep_picture("window-about", area_of(first));
  press_keys("Escape");
  await_end_of(first);

  const HWND second = open("About", "About");
  click_in(second, "Close");
  await_end_of(second);
  EXPECT_TRUE(IsWindowEnabled(program_.window()));
}

TEST_F(DialogsOnScreen, AReportIsWrittenWhereTheSaveDialogSays) {
  // Texts are shown by Wine's viewer of texts, which its Windows does not know of by itself.
  constexpr wchar_t kTexts[] = L"Software\\Classes\\.txt";
  constexpr wchar_t kKind[] = L"txtfile";
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, kTexts, nullptr, REG_SZ, kKind, sizeof(kKind));
  const fs::path report = copy_.folder() / "report.txt";
  scan();

  program_.click("Create Report");
  const HWND box = await_box(program_, "Save As");
  keep_picture("window-report", program_.area());
  press_keys("ctrl+a");
  type_text(narrow(report.native()));
  press_keys("Return");

  ASSERT_TRUE(eventually("the report", [&] {
    return copy_.text("report.txt").find("C:\\windows\\Logs\\CBS\\qv-setup.log\r\n") !=
           std::string::npos;
  }));
  EXPECT_EQ(IsWindow(box), 0);
  // Windows shows it to the user, in whatever shows texts.
  HWND viewer = nullptr;
  ASSERT_TRUE(eventually("the report on the screen",
                         [&] { return (viewer = FindWindowW(L"Notepad", nullptr)) != nullptr; }));
  PostMessageW(viewer, WM_CLOSE, 0, 0);
  ASSERT_TRUE(eventually("no viewer", [&] { return IsWindow(viewer) == 0; }));
}

}  // namespace
}  // namespace quillvane
