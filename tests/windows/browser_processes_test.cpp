// Finding and ending processes by name. The names are made up, so that no browser of whoever runs
// the tests is ended.
#include "cleaning/browser_processes.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/win32/wide_text.h"
#include "platform/win32/win32_processes.h"
#include "tests/windows/companion.h"
#include "tests/windows/scratch_folder.h"

namespace quillvane {
namespace {

class BrowserProcesses : public testing::Test {
 protected:
  // A copy of the other process's program under a name of its own.
  [[nodiscard]] std::wstring program(const std::string& name) const {
    const std::wstring path = widen(folder_.path_of(name));
    EXPECT_TRUE(CopyFileW(companion_program().c_str(), path.c_str(), TRUE)) << name;
    return path;
  }

  const std::string name_ = "qvchrome" + std::to_string(GetCurrentProcessId()) + ".exe";
  const std::string longer_name_ = "not" + name_;
  ScratchFolder folder_;
  Win32Processes processes_;
};

TEST_F(BrowserProcesses, AProcessIsFoundByItsWholeNameWhateverItsCase) {
  Companion longer(program(longer_name_), L"wait");
  EXPECT_EQ(pid(processes_, name_), 0U);
  Companion browser(program(name_), L"wait");
  EXPECT_EQ(pid(processes_, name_), browser.id());
  EXPECT_EQ(pid(processes_, "QV" + name_.substr(2)), browser.id());
  browser.end();
  EXPECT_EQ(pid(processes_, name_), 0U);
}

TEST_F(BrowserProcesses, AllWhoseNamesEndSoAreEnded) {
  const std::wstring browser = program(name_);
  Companion first(browser, L"wait");
  Companion second(browser, L"wait");
  Companion longer(program(longer_name_), L"wait");
  EXPECT_TRUE(TerminateByName(processes_, "QV" + name_.substr(2)));
  EXPECT_TRUE(first.has_ended());
  EXPECT_TRUE(second.has_ended());
  EXPECT_TRUE(longer.has_ended());
  EXPECT_FALSE(TerminateByName(processes_, name_));
}

TEST_F(BrowserProcesses, TheSecondSweepEndsThoseOfExactlyTheName) {
  const std::wstring browser = program(name_);
  Companion first(browser, L"wait");
  Companion second(browser, L"wait");
  Companion longer(program(longer_name_), L"wait");
  KillProcessByName(processes_, name_);
  EXPECT_TRUE(first.has_ended());
  EXPECT_TRUE(second.has_ended());
  EXPECT_EQ(pid(processes_, longer_name_), longer.id());
}

TEST_F(BrowserProcesses, WhatIsNoProcessCannotBeEnded) {
  EXPECT_FALSE(processes_.terminate(0xFFFFFFF0));
}

}  // namespace
}  // namespace quillvane
