// The window while it reads a large folder: it shows where it is, and Cancel and Close end it.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/program_on_screen.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

constexpr wchar_t kFolder[] = L"C:\\windows\\Temp\\qv-deep";
// It takes Windows several seconds to read so many, and a hand less to click.
constexpr int kGroups = 250;
constexpr int kFoldersOfAGroup = 100;

class ManyFolders {
 public:
  ManyFolders() {
    for (int group = 0; group < kGroups; ++group) {
      const fs::path path = fs::path(kFolder) / std::to_string(group);
      fs::create_directories(path);
      for (int i = 0; i < kFoldersOfAGroup; ++i) {
        const fs::path folder = path / std::to_string(i);
        fs::create_directory(folder);
        if (i % 10 == 0) std::ofstream(folder / "a.tmp");
      }
    }
  }
  ~ManyFolders() { fs::remove_all(kFolder); }
  ManyFolders(const ManyFolders&) = delete;
  ManyFolders& operator=(const ManyFolders&) = delete;
};

class ReadingOnScreen : public testing::Test {
 public:
  static void SetUpTestSuite() { folders_ = std::make_unique<ManyFolders>(); }
  static void TearDownTestSuite() { folders_ = nullptr; }

 protected:
  // Whether the line of the file being looked at names a folder of the tree: one that is read, for
  // a file would have a name behind it.
  [[nodiscard]] static bool names_a_folder(const ProgramOnScreen& program) {
    const auto controls = program.controls();
    return std::any_of(controls.begin(), controls.end(), [](HWND control) {
      const std::string text = text_of(control);
      return text.starts_with("C:\\windows\\Temp\\qv-deep\\") && !text.ends_with(".tmp");
    });
  }
  static void start_reading(const ProgramOnScreen& program) {
    program.click("Start");
    ASSERT_TRUE(eventually("a folder in work", [&] { return names_a_folder(program); }));
  }

 private:
  static inline std::unique_ptr<ManyFolders> folders_;
};

TEST_F(ReadingOnScreen, CancelEndsTheReading) {
  const ProgramOnScreen program;
  start_reading(program);

  program.click("Cancel");

  ASSERT_TRUE(eventually("the scan's end", [&] {
    return !program.text_beginning("Junk files found").empty() && !program.is_enabled("Cancel");
  }));
  // Cancelled before the first file was judged: nothing of this folder is listed.
  EXPECT_EQ(program.nodes()[1].text, "System Temporary ( 0 files, 0 B )");
  EXPECT_TRUE(program.is_enabled("Start"));
}

TEST_F(ReadingOnScreen, TheCloseButtonEndsTheProgram) {
  const ProgramOnScreen program;
  start_reading(program);

  program.click("Close");

  EXPECT_EQ(program.exit_code(), 0U);
}

TEST_F(ReadingOnScreen, TheWindowCanBeMinimisedMeanwhile) {
  const ProgramOnScreen program;
  start_reading(program);

  program.click("Minimise");

  EXPECT_TRUE(
      eventually("the window's hiding", [&] { return !IsWindowVisible(program.window()); }));
}

}  // namespace
}  // namespace quillvane
