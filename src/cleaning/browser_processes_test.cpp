#include "cleaning/browser_processes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quillvane {
namespace {

using Ids = std::vector<std::uint32_t>;

// Processes that come to an end in a way of the test's choosing.
class PlayedProcesses final : public Processes {
 public:
  explicit PlayedProcesses(std::vector<ProcessInfo> running) : running_(std::move(running)) {}

  [[nodiscard]] std::vector<ProcessInfo> list() const override { return running_; }
  [[nodiscard]] bool terminate(std::uint32_t id) override {
    asked.push_back(id);
    if (std::count(protected_ids.begin(), protected_ids.end(), id) != 0) return false;
    const auto gone = std::erase_if(running_, [&](const ProcessInfo& p) { return p.id == id; });
    // Some end by themselves with another.
    for (const std::uint32_t child : ends_with_any) {
      std::erase_if(running_, [&](const ProcessInfo& p) { return p.id == child; });
    }
    return gone != 0;
  }

  Ids asked;          // to be ended, in order
  Ids protected_ids;  // may not be ended
  Ids ends_with_any;
  std::vector<ProcessInfo> running_;
};

Ids left(const PlayedProcesses& processes) {
  Ids ids;
  for (const ProcessInfo& process : processes.list()) ids.push_back(process.id);
  return ids;
}

TEST(BrowserProcess, IsTheFirstOfExactlyItsNameInAnyCase) {
  const PlayedProcesses processes(
      {{4, "System"}, {7, "notchrome.exe"}, {9, "Chrome.EXE"}, {8, "chrome.exe"}});
  EXPECT_EQ(pid(processes, "chrome.exe"), 9U);
  EXPECT_EQ(pid(processes, "chrome"), 0U);
  EXPECT_EQ(pid(processes, "firefox.exe"), 0U);
}

TEST(BrowserProcess, IsNoneWhenProcessesCannotBeListed) {
  EXPECT_EQ(pid(PlayedProcesses({}), "chrome.exe"), 0U);
}

TEST(BrowserProcess, AllWhoseNamesEndSoAreEnded) {
  PlayedProcesses processes(
      {{7, "notchrome.exe"}, {8, "chrome.exe"}, {9, "CHROME.EXE"}, {10, "chrome.exe.bak"}});
  EXPECT_TRUE(TerminateByName(processes, "Chrome.exe"));
  EXPECT_EQ(left(processes), Ids{10});
  EXPECT_FALSE(TerminateByName(processes, "Chrome.exe"));
}

TEST(BrowserProcess, OneThatEndsWhileItIsBeingEndedIsPassedOver) {
  PlayedProcesses processes({{7, "chrome.exe"}, {8, "chrome.exe"}, {9, "chrome.exe"}});
  processes.ends_with_any = {8};
  EXPECT_TRUE(TerminateByName(processes, "chrome.exe"));
  EXPECT_EQ(processes.asked, (Ids{7, 8, 9}));
  EXPECT_EQ(left(processes), Ids{});
}

TEST(BrowserProcess, OneThatMayNotBeEndedDoesNotKeepTheOthers) {
  PlayedProcesses processes({{7, "chrome.exe"}, {8, "chrome.exe"}});
  processes.protected_ids = {7};
  EXPECT_TRUE(TerminateByName(processes, "chrome.exe"));
  EXPECT_EQ(left(processes), Ids{7});
  KillProcessByName(processes, "chrome.exe");
  EXPECT_EQ(processes.asked, (Ids{7, 8, 7}));
}

TEST(BrowserProcess, TheSecondSweepTakesTheWholeNameAndNoProcessZero) {
  PlayedProcesses processes({{0, "chrome.exe"}, {7, "notchrome.exe"}, {8, "CHROME.exe"}});
  KillProcessByName(processes, "chrome.exe");
  EXPECT_EQ(processes.asked, Ids{8});
}

}  // namespace
}  // namespace quillvane
