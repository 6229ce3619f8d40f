// The window's own buttons, and starts under poor conditions.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "platform/win32/wide_text.h"
#include "platform/win32/win32_tray.h"
#include "tests/windows/screen/console_result.h"
#include "tests/windows/screen/copied_program.h"
#include "tests/windows/screen/denied_key.h"
#include "tests/windows/screen/junk_page.h"

namespace quillvane {
namespace {

using WindowLife = JunkPage;
namespace fs = std::filesystem;

constexpr const wchar_t* kDrivesKey = L"software\\Quillvane\\Tidewrack Deluxe\\timer";
constexpr const wchar_t* kDrivesCount = L"alldrive";

std::string stored_count() {
  wchar_t text[20] = L"";
  DWORD bytes = sizeof(text);
  const LSTATUS status = RegGetValueW(HKEY_LOCAL_MACHINE, kDrivesKey, kDrivesCount, RRF_RT_REG_SZ,
                                      nullptr, text, &bytes);
  return status == ERROR_SUCCESS ? narrow(text) : "none";
}

bool is_seen(HWND window) { return IsWindowVisible(window) != 0; }

// Starts without the hand, for windows that lie one over the other.
void start_scan(const ProgramOnScreen& program) {
  PostMessageW(program.control("Start"), BM_CLICK, 0, 0);
}

void await_summary(const ProgramOnScreen& program) {
  ASSERT_TRUE(
      eventually("a summary", [&] { return !program.text_beginning("Junk files found").empty(); }));
}

TEST_F(WindowLife, MinimisedItWaitsInTheTrayAndADoubleClickBringsItBack) {
  program_.click("Minimise");
  ASSERT_TRUE(eventually("a hidden window", [this] { return !is_seen(program_.window()); }));
  HWND tray = nullptr;
  ASSERT_TRUE(eventually("the tray's window", [&] {
    tray = FindWindowW(kTrayWindowClass, nullptr);
    return tray != nullptr;
  }));

  PostMessageW(tray, kTrayMessage, 1, WM_LBUTTONDBLCLK);

  ASSERT_TRUE(eventually("the window", [this] { return is_seen(program_.window()); }));
  EXPECT_EQ(program_.nodes().size(), 24U);
}

TEST_F(WindowLife, TheLanguageButtonOpensAndClosesThePanel) {
  const HWND language = program_.control("Languages");
  EXPECT_FALSE(is_seen(language));

  program_.click("Language");
  ASSERT_TRUE(eventually("the panel", [&] { return is_seen(language); }));
  program_.click("Language");
  ASSERT_TRUE(eventually("no panel", [&] { return !is_seen(language); }));
}

TEST_F(WindowLife, StartedTwiceBothWork) {
  const ProgramOnScreen second;
  start_scan(program_);
  start_scan(second);

  await_summary(program_);
  await_summary(second);

  EXPECT_EQ(second.text_beginning("Junk files found"), summary());
}

TEST(ClosedOnScreen, ItSavesTheTickedDrivesAndEnds) {
  const ProgramOnScreen program;
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, kDrivesKey, kDrivesCount);
  ASSERT_EQ(stored_count(), "none");

  program.click("Close");

  EXPECT_EQ(program.exit_code(), 0U);
  EXPECT_EQ(stored_count(), "0");
}

TEST(ClosedOnScreen, ItEndsInTheMiddleOfAScan) {
  const PlantedJunk junk;
  const ProgramOnScreen program;
  program.click("Start");
  ASSERT_TRUE(eventually("a scan", [&] { return program.is_enabled("Cancel"); }));

  program.click("Close");

  EXPECT_EQ(program.exit_code(), 0U);
  EXPECT_EQ(junk.still_there(), 4);
}

TEST(ClosedOnScreen, WithoutRightsToItsKeysItScansClosesAndLeavesThemAsTheyAre) {
  const PlantedJunk junk;
  ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kDrivesKey, kDrivesCount, REG_SZ, L"0",
                            2 * sizeof(wchar_t)),
            ERROR_SUCCESS);
  const DeniedKey timer(kDrivesKey);
  const DeniedKey options(L"software\\Quillvane\\Tidewrack Deluxe");
  const DeniedKey suite(L"software\\Quillvane");
  const ProgramOnScreen program;

  start_scan(program);
  await_summary(program);
  EXPECT_EQ(program.nodes()[6].text, "Log Files ( 1 files, 512 B )");
  program.click("Close");

  EXPECT_EQ(program.exit_code(), 0U);
  EXPECT_EQ(stored_count(), "0");
}

// A folder of the program's own in which none of its files can be made.
class PoorFolder : public testing::Test {
 protected:
  // Where a file shall be put at the start.
  PoorFolder() { fs::create_directories(copy_.folder() / "tmptype.txt"); }

  void scan_to_the_end() const {
    const ProgramOnScreen program(copy_.executable().native());
    start_scan(program);
    await_summary(program);
    EXPECT_EQ(program.nodes()[6].text, "Log Files ( 1 files, 512 B )");
  }

  const PlantedJunk junk_;
  const CopiedProgram copy_;
};

FileHandle start_unseen(const fs::path& program, const std::wstring& switches) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  std::wstring command = L"\"" + program.native() + L"\" " + switches;
  PROCESS_INFORMATION process{};
  EXPECT_TRUE(CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                             nullptr, &startup, &process));
  CloseHandle(process.hThread);
  return FileHandle(process.hProcess);
}

DWORD exit_code_of(const FileHandle& process) {
  EXPECT_EQ(WaitForSingleObject(process.get(), 30'000), WAIT_OBJECT_0);
  DWORD code = STILL_ACTIVE;
  GetExitCodeProcess(process.get(), &code);
  return code;
}

// Runs it without looking for a window; its exit code.
DWORD run_unseen(const fs::path& program, const std::wstring& switches) {
  return exit_code_of(start_unseen(program, switches));
}

TEST_F(PoorFolder, ARunSwitchCountsUnseenAndLeavesItsResult) {
  EXPECT_EQ(run_unseen(copy_.executable(), L"w2-c2"), 0U);

  const auto totals = nlohmann::json::parse(console_output(L"scan --json"))["totals"];
  std::ifstream file(copy_.folder() / "junst.txt");
  std::string result;
  std::getline(file, result);
  EXPECT_EQ(result, std::to_string(totals["files"].get<long long>()) + "|" +
                        std::to_string(totals["bytes"].get<long long>()));
  EXPECT_EQ(junk_.still_there(), 4);
}

TEST_F(PoorFolder, TheUnseenShortcutRunEndsByItself) {
  EXPECT_EQ(run_unseen(copy_.executable(), L"g"), 0U);
}

TEST_F(PoorFolder, TheShortcutWindowStandsAloneAndEndsTheProgram) {
  const FileHandle process = start_unseen(copy_.executable(), L"s");
  HWND window = nullptr;
  ASSERT_TRUE(eventually("the shortcut window", [&] {
    window = FindWindowW(L"QuillvaneForm", L"Find and Fix Invalid Shortcuts");
    return window != nullptr && IsWindowVisible(window) != 0;
  }));
  EXPECT_EQ(FindWindowW(L"QuillvaneForm", L"Quillvane Disk Cleaner"), nullptr);
  PostMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_EQ(exit_code_of(process), 0U);
}

TEST_F(PoorFolder, WithoutTheAnimationItScansAllTheSame) { scan_to_the_end(); }

TEST_F(PoorFolder, WithATornAnimationItScansAllTheSame) {
  std::ifstream whole(fs::path(cleaner_program()).parent_path() / "search.gif", std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(whole)),
                          std::istreambuf_iterator<char>());
  ASSERT_GT(bytes.size(), 1500U);
  copy_.write("search.gif", bytes.substr(0, 1500));
  scan_to_the_end();
}

}  // namespace
}  // namespace quillvane
