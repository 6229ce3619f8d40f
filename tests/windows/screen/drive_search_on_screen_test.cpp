// The drive search as a user works it.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/windows/screen/console_result.h"
#include "tests/windows/screen/drive_search_stage.h"

namespace quillvane {
namespace {

using DriveSearchOnScreen = DriveSearchStage;
using Json = nlohmann::json;

int row_beginning(const ProgramOnScreen& program, HWND list, std::string_view begin) {
  for (int row = 0; row < program.rows(list); ++row) {
    if (program.row_text(list, row, 0).starts_with(begin)) return row;
  }
  ADD_FAILURE() << "no row begins with " << begin;
  return 0;
}

TEST_F(DriveSearchOnScreen, TheTabsChangeBetweenTheTwoJobs) {
  EXPECT_TRUE(shows("Categories"));
  EXPECT_FALSE(shows("Drives"));

  open_drive_search();
  EXPECT_FALSE(shows("Categories"));
  EXPECT_FALSE(shows("Start Cleaning"));
  EXPECT_TRUE(shows("Close"));

  press_keys("ctrl+Tab");
  ASSERT_TRUE(eventually("the junk page", [this] { return shows("Categories"); }));
  EXPECT_FALSE(shows("Drives"));
  press_keys("ctrl+Tab");
  ASSERT_TRUE(eventually("the drives again", [this] { return shows("Drives"); }));
}

TEST_F(DriveSearchOnScreen, TheDrivesTellTheirSpaceAndAreTicked) {
  open_drive_search();
  const HWND drives = program().control("Drives");
  const int row = row_beginning(program(), drives, "Local Disk (C:)");
  EXPECT_TRUE(program().row_text(drives, row, 1).ends_with(" MB"));
  EXPECT_TRUE(program().row_text(drives, row, 2).ends_with(" MB"));

  tick(drives, row, true);
  keep_picture("window-drives", program().area());
  tick(drives, row, false);
}

TEST_F(DriveSearchOnScreen, ATickOfAFileTypeIsWrittenAtOnce) {
  open_drive_search();
  go("2  File types", "File types");
  const HWND types = program().control("File types");
  ASSERT_EQ(program().rows(types), 3);
  EXPECT_EQ(program().row_text(types, 0, 0), "Backup files of the test");
  EXPECT_EQ(program().row_text(types, 0, 1), "*.qvbak");
  EXPECT_TRUE(program().row_ticked(types, 0));
  keep_picture("window-file-types", program().area());

  tick(types, 1, true);

  ASSERT_TRUE(eventually("the table on the disk", [this] {
    return copy().text("tmptype.txt") == type_record("Backup files of the test", "*.qvbak", true) +
                                             type_record("Log files of the test", "*.qvlog", true) +
                                             type_record("file with zero size", "*.*", false);
  }));
}

TEST_F(DriveSearchOnScreen, AFileTypeIsTypedIn) {
  open_drive_search();
  go("2  File types", "File types");
  program().click("Add");
  HWND form = nullptr;
  ASSERT_TRUE(eventually("the window of a type",
                         [&] { return (form = program().form("Add New File Type")) != nullptr; }));
  type_text("Drafts");
  press_keys("Tab");
  type_text("*.qvold");
  ASSERT_TRUE(eventually("typed text", [&] { return control_in(form, "*.qvold") != nullptr; }));
  keep_picture("window-file-type", area_of(form));
  press_keys("Return");

  const HWND types = program().control("File types");
  ASSERT_TRUE(eventually("a row", [&] { return program().rows(types) == 4; }));
  EXPECT_EQ(program().row_text(types, 3, 0), "Drafts");
  EXPECT_FALSE(program().row_ticked(types, 3));
}

TEST_F(DriveSearchOnScreen, TheTwoListsOfFoldersTakeTurnsByTheirTabs) {
  open_drive_search();
  go("3  Folders", "Excluded files and folders");
  EXPECT_FALSE(shows("Included folders"));
  EXPECT_TRUE(program().is_enabled("Add file"));

  program().click_tab(program().control("Lists"), 1);

  ASSERT_TRUE(eventually("the other list", [this] { return shows("Included folders"); }));
  EXPECT_FALSE(shows("Excluded files and folders"));
  EXPECT_FALSE(program().is_enabled("Add file"));
  EXPECT_TRUE(shows("Include all files in these folders, Regardless files type"));
}

TEST_F(DriveSearchOnScreen, AFolderAndItsDescriptionAreAskedFor) {
  open_drive_search();
  go("3  Folders", "Excluded files and folders");
  program().click("Add new exclude folder");
  const HWND box = await_box(program(), "Browse for Folder");
  program().choose_in(control_of_class(box, L"SysTreeView32"), {"My Computer", "C:", "qv-drive"});
  answer_box(box, "OK");
  const HWND question = await_box(program(), "exclud Folder Option");
  keep_picture("window-input", area_of(question));
  type_text("mine");
  answer_box(question, "OK");

  const HWND list = program().control("Excluded files and folders");
  ASSERT_TRUE(eventually("a row", [&] {
    return program().rows(list) == 1 && program().row_text(list, 0, 1) == "mine";
  }));
  EXPECT_EQ(program().row_text(list, 0, 0), "C:\\qv-drive");
  keep_picture("window-folders", program().area());
  EXPECT_TRUE(copy().text("exfolder.orv").starts_with("C:\\qv-drive "));
}

// From the drives to the result, by the keyboard alone from the first tick on.
class SearchedOnScreen : public DriveSearchStage {
 protected:
  void search() const {
    open_drive_search();
    const HWND drives = program().control("Drives");
    const int row = row_beginning(program(), drives, "Local Disk (C:)");
    tick(drives, row, true);
    for (const char* page : {"File types", "Excluded files and folders"}) {
      press_keys("F5");
      ASSERT_TRUE(eventually(page, [&] { return shows(page); }));
    }
    press_keys("F5");
    ASSERT_TRUE(eventually("the end of the run", [this] {
      return shows("Drives that are searched") && shows("Exit") && program().is_enabled("Jobs");
    }));
  }
  void leave_run() const {
    press_keys("Escape");
    ASSERT_TRUE(eventually("the result", [this] { return shows("Files found on the drives"); }));
  }
  [[nodiscard]] HWND files() const { return program().control("Files found on the drives"); }
};

TEST_F(SearchedOnScreen, FindsWhatTheConsoleFinds) {
  search();
  const HWND drives = program().control("Drives that are searched");
  EXPECT_EQ(program().row_text(drives, row_beginning(program(), drives, "Local Disk (C:)"), 3),
            "Finish");
  EXPECT_FALSE(shows("Next"));
  keep_picture("window-searched", program().area());
  leave_run();

  const Json found = Json::parse(console_output(L"search C: --types *.qvbak --json --list"));
  EXPECT_EQ(found["totals"]["files"], 2);
  std::vector<std::string> paths;
  std::vector<std::string> sizes;
  for (const Json& file : found["files"]) {
    paths.push_back(file["path"]);
    sizes.push_back(file["size"]);
  }
  EXPECT_EQ(program().row_texts(files(), 0), paths);
  EXPECT_EQ(program().row_texts(files(), 1), sizes);
  keep_picture("window-search-result", program().area());
}

TEST_F(SearchedOnScreen, DeleteAsksFirstAndNoIsInHand) {
  search();
  leave_run();
  program().click("Delete");
  const HWND box = await_box(program(), "Quillvane Disk Cleaner");
  EXPECT_TRUE(program().box_text(box).starts_with("2 files are removed"));
  keep_picture("window-search-question", program().area());
  press_keys("Return");
  ASSERT_TRUE(eventually("the end of the question", [box] { return IsWindow(box) == 0; }));
  EXPECT_EQ(program().rows(files()), 2);
  EXPECT_TRUE(std::filesystem::exists("C:\\qv-drive\\one.qvbak"));

  program().click("Delete");
  answer_box(await_box(program(), "Quillvane Disk Cleaner"), "Yes");

  ASSERT_TRUE(eventually("an empty list", [this] { return program().rows(files()) == 0; }));
  EXPECT_FALSE(std::filesystem::exists("C:\\qv-drive\\one.qvbak"));
  EXPECT_FALSE(std::filesystem::exists("C:\\qv-drive\\sub\\two.qvbak"));
  EXPECT_TRUE(std::filesystem::exists("C:\\qv-drive\\sub\\three.qvlog"));
}

TEST_F(SearchedOnScreen, TheJunkPageShowsTheSameListOfAllFiles) {
  search();
  leave_run();
  press_keys("ctrl+Tab");

  ASSERT_TRUE(eventually("all files", [this] { return shows("All files found"); }));
  EXPECT_EQ(program().rows(program().control("All files found")), 2);
}

TEST_F(DriveSearchOnScreen, WithoutATickedDriveTheSearchSaysSo) {
  open_drive_search();
  const HWND drives = program().control("Drives");
  for (int row = 0; row < program().rows(drives); ++row) tick(drives, row, false);
  program().click("4  Search");
  const HWND box = await_box(program(), "Quillvane Disk Cleaner");
  EXPECT_EQ(program().box_text(box), "Please Select at least one drive to check it");
  answer_box(box, "OK");
  ASSERT_TRUE(eventually("the drives", [this] { return shows("Drives"); }));
}

}  // namespace
}  // namespace quillvane
