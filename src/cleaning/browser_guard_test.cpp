// The question that stands before each browser's category in a whole scan.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

struct GuardCase {
  int node;
  std::string process;
  std::string spoken_name;
};

const GuardCase kGuarded[] = {
    {13, "iexplore.exe", "Internet Explorer"},    {14, "firefox.exe", "FireFox"},
    {15, "chrome.exe", "Google chrome"},          {16, "launcher.exe", "Opera browser"},
    {17, "msedge.exe", "Microsoft Edge browser"}, {18, "brave.exe", "Brave browser"},
    {19, "vivaldi.exe", "Vivaldi browser"},       {20, "torch.exe", "Torch browser"},
    {21, "Maxthon.exe", "Maxthon browser"},       {22, "browser.exe", "Yandex browser"},
};

ShownBox question(const std::string& spoken_name, const std::string& answer) {
  constexpr std::uint32_t kSystemModalQuestionYesNo = 4132;
  return {
      "question",
      spoken_name + " is running. would you like to close it? otherwise tracks can't be cleaned.",
      "confirmation", kSystemModalQuestionYesNo, answer};
}

// The nodes of browsers that have a result behind their caption.
std::vector<int> scanned_browsers(const Form7& form) {
  std::vector<int> nodes;
  for (const int node : numbers_from(13, 23)) {
    if (form.Tv1.node(node).text.find(" ( ") != std::string::npos) nodes.push_back(node);
  }
  return nodes;
}

// The names of the processes that are left.
Texts processes(ScanFixture& fixture) {
  Texts names;
  for (const ProcessInfo& process : fixture.program->platform.processes.list()) {
    names.push_back(process.name);
  }
  return names;
}

TEST(BrowserGuard, AsksForEachBrowserThatRunsInItsOwnWords) {
  for (const GuardCase& browser : kGuarded) {
    ScanFixture fixture;
    fixture.machine.machine().add_process(7, browser.process);
    fixture.start().cmd_start.click();
    EXPECT_EQ(fixture.machine.dialogs().take_boxes(),
              std::vector{question(browser.spoken_name, "no")})
        << browser.process;
  }
}

TEST(BrowserGuard, AfterANoTheNodeHasNoResultAndTheRestRuns) {
  for (const GuardCase& browser : kGuarded) {
    ScanFixture fixture;
    fixture.machine.machine().add_process(7, browser.process);
    Form7& form = fixture.start();
    form.cmd_start.click();
    std::vector<int> others = numbers_from(13, 23);
    std::erase(others, browser.node);
    EXPECT_EQ(scanned_browsers(form), others) << browser.process;
    EXPECT_EQ(processes(fixture), Texts{browser.process});
  }
}

TEST(BrowserGuard, AYesClosesTheBrowserAndScansIt) {
  ScanFixture fixture;
  fixture.machine.machine().add_process(7, "chrome.exe");
  fixture.machine.machine().add_process(8, "CHROME.EXE");
  fixture.machine.machine().add_process(9, "explorer.exe");
  fixture.machine.dialogs().answer(Answer::kYes);
  Form7& form = fixture.start();

  form.cmd_start.click();

  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector{question("Google chrome", "yes")});
  EXPECT_EQ(scanned_browsers(form), numbers_from(13, 23));
  EXPECT_EQ(processes(fixture), Texts{"explorer.exe"});
}

TEST(BrowserGuard, AsksNothingWithoutBrowsers) {
  ScanFixture fixture;
  fixture.machine.machine().add_process(7, "explorer.exe");
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
  EXPECT_EQ(scanned_browsers(form), numbers_from(13, 23));
}

TEST(BrowserGuard, ARunSwitchScansRunningBrowsersWithoutAQuestion) {
  ScanFixture fixture;
  fixture.machine.machine().add_process(7, "chrome.exe");
  const Form7& form = fixture.start("w2-c2");
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
  EXPECT_EQ(scanned_browsers(form), numbers_from(13, 23));
  EXPECT_EQ(processes(fixture), Texts{"chrome.exe"});
}

TEST(BrowserGuard, UcBrowserHasNoGuard) {
  ScanFixture fixture;
  fixture.machine.machine().add_process(7, "ucbrowser.exe");
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
  EXPECT_EQ(scanned_browsers(form).back(), 23);
}

TEST(BrowserGuard, ACancelAfterACategorySkipsTheFollowingOnesAndTheirQuestions) {
  ScanFixture fixture;
  fixture.machine.add_file(
      "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Temporary Internet Files\\a.htm", 10);
  fixture.machine.machine().add_process(7, "firefox.exe");
  Form7& form = fixture.start();
  fixture.when([&] { return form.Tv1.node(13).fore_color == kGreen; },
               [&] { form.cmd_cancel.click(); });

  form.cmd_start.click();

  EXPECT_EQ(scanned_browsers(form), std::vector{13});
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
  EXPECT_EQ(form.Tv1.node(12).text, "Browsers ( 0 files, 0 B )");
}

}  // namespace
}  // namespace quillvane
