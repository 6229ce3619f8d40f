// The tree in the middle of a scan.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/form7.h"
#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/program_on_screen.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

constexpr wchar_t kFolder[] = L"C:\\windows\\Temp\\qv-many";
constexpr int kFiles = 500;  // enough for several looks on the way
constexpr int kMostLooks = 600;
constexpr DWORD kHaltMs = 100;  // after which the window draws again what has changed
constexpr DWORD kStepMs = 1;

class ManyFiles {
 public:
  ManyFiles() {
    fs::create_directories(kFolder);
    for (int i = 0; i < kFiles; ++i) {
      std::ofstream(fs::path(kFolder) / (std::to_string(i) + ".tmp"));
    }
  }
  ~ManyFiles() { fs::remove_all(kFolder); }
  ManyFiles(const ManyFiles&) = delete;
  ManyFiles& operator=(const ManyFiles&) = delete;
};

// Stops the program where it is, so that one can look at it without haste.
class Halt {
 public:
  explicit Halt(HANDLE thread) : thread_(thread) { SuspendThread(thread_); }
  ~Halt() { ResumeThread(thread_); }
  Halt(const Halt&) = delete;
  Halt& operator=(const Halt&) = delete;

 private:
  HANDLE thread_;
};

// Asks Windows, since the program itself does not answer while it is halted.
bool shows_text_beginning(const std::vector<HWND>& controls, const std::wstring& begin) {
  return std::any_of(controls.begin(), controls.end(), [&begin](HWND control) {
    wchar_t text[MAX_PATH] = L"";
    InternalGetWindowText(control, text, MAX_PATH);
    return std::wstring(text).starts_with(begin);
  });
}

TEST(RunningCategory, IsGreenWhileItsFilesAreLookedAt) {
  const ManyFiles files;
  const ProgramOnScreen program;
  const RECT node = program.node_area(program.nodes()[1]);
  const FileHandle thread(OpenThread(THREAD_SUSPEND_RESUME, FALSE,
                                     GetWindowThreadProcessId(program.window(), nullptr)));
  ASSERT_TRUE(thread.is_valid());
  const std::vector<HWND> controls = program.controls();
  ASSERT_FALSE(shows_color(node, kGreen));

  program.click("Start");

  bool was_green = false;
  for (int look = 0; look < kMostLooks && !was_green; ++look) {
    Sleep(kStepMs);
    const Halt halt(thread.get());
    Sleep(kHaltMs);
    was_green = shows_text_beginning(controls, kFolder) && shows_color(node, kGreen);
  }
  EXPECT_TRUE(was_green);
  ASSERT_TRUE(eventually("the scan's end", [&] {
    return !program.text_beginning("Junk files found").empty() && !program.is_enabled("Cancel");
  }));
  EXPECT_FALSE(shows_color(node, kGreen));
  EXPECT_TRUE(shows_color(node, kDarkRed));
}

}  // namespace
}  // namespace quillvane
