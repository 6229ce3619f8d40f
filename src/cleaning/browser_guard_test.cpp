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
  for (const ProcessInfo& process : fixture.program->session.platform.processes.list()) {
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

// "notchrome.exe" would be closed with Chrome, but does not bring the question.
TEST(BrowserGuard, AProcessWhoseNameOnlyEndsSoBringsNoQuestion) {
  ScanFixture fixture;
  fixture.machine.machine().add_process(7, "notchrome.exe");
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
  EXPECT_EQ(scanned_browsers(form), numbers_from(13, 23));
}

TEST(BrowserGuard, AYesClosesWhateverBearsTheNameOfOperasLauncher) {
  ScanFixture fixture;
  fixture.machine.machine().add_process(7, "Launcher.exe");
  fixture.machine.machine().add_process(8, "gamelauncher.exe");
  fixture.machine.dialogs().answer(Answer::kYes);
  fixture.start().cmd_start.click();
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector{question("Opera browser", "yes")});
  EXPECT_EQ(processes(fixture), Texts{});
}

TEST(BrowserGuard, EachBrowserThatRunsHasItsQuestionInTheOrderOfTheScan) {
  ScanFixture fixture;
  for (const GuardCase& browser : kGuarded) {
    fixture.machine.machine().add_process(static_cast<std::uint32_t>(browser.node),
                                          browser.process);
  }
  Form7& form = fixture.start();
  form.cmd_start.click();
  std::vector<ShownBox> questions;
  for (const GuardCase& browser : kGuarded) {
    questions.push_back(question(browser.spoken_name, "no"));
  }
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), questions);
  EXPECT_EQ(scanned_browsers(form), std::vector{23});
  EXPECT_EQ(form.skipped_browsers, numbers_from(13, 22));
}

// In Chrome's category the user cancels; what was found before stays and is summed up.
TEST(BrowserGuard, ACancelInChromeSkipsTheRestAndTheGroupIsStillSummedUp) {
  ScanFixture fixture;
  const std::string local = "C:\\Users\\User\\AppData\\Local\\";
  const std::string feed = local + "Microsoft\\Feeds Cache\\a.xml";
  const std::string cache = local + "Google\\Chrome\\User Data\\Default\\Cache\\";
  for (const std::string& file : {feed, cache + "f_1", cache + "f_2", local + "UCBrowser\\a.tmp"}) {
    fixture.machine.add_file(file, 10);
  }
  fixture.machine.add_registry_key(Hive::kCurrentUser,
                                   "Software\\Google\\Chrome\\PreferenceMACs\\Default");
  fixture.machine.machine().add_process(7, "launcher.exe");
  Form7& form = fixture.start();
  fixture.when([&] { return form.Text13.text() == cache + "f_1"; },
               [&] { form.cmd_cancel.click(); });

  form.cmd_start.click();

  EXPECT_EQ(rows(form.view1), (Texts{feed, cache + "f_1"}));
  EXPECT_EQ(scanned_browsers(form), (std::vector{13, 14, 15}));
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
  EXPECT_EQ(form.Tv1.node(15).text, "Google Chrome Cache ( 1 files, 10 B )");
  EXPECT_EQ(form.Tv1.node(12).text, "Browsers ( 2 files, 20 B )");
  EXPECT_EQ(form.totals.totalfiles, 2);
  EXPECT_EQ(form.totals.totalsize, 20);
  EXPECT_EQ(form.txtfilecont.text(), "2");
  EXPECT_EQ(form.txtfilesize.text(), "20");
  EXPECT_FALSE(form.cmd_cancel.enabled());
}

TEST(BrowserGuard, ACancelAfterANoSkipsTheRestToo) {
  ScanFixture fixture;
  fixture.machine.machine().add_process(7, "iexplore.exe");
  Form7& form = fixture.start();
  form.cancelflag = 1;
  form.startcleanexplorer();
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(),
            std::vector{question("Internet Explorer", "no")});
  EXPECT_EQ(scanned_browsers(form), std::vector<int>{});
  EXPECT_EQ(form.Tv1.node(12).text, "Browsers ( 0 files, 0 B )");
}

TEST(BrowserGuard, AScanOfOneNodeAsksNothing) {
  for (const GuardCase& browser : kGuarded) {
    ScanFixture fixture;
    fixture.machine.machine().add_process(7, browser.process);
    Form7& form = fixture.start();
    form.Tv1.click_node(browser.node);
    form.scf.click();
    EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
    EXPECT_EQ(scanned_browsers(form), std::vector{browser.node});
    EXPECT_EQ(processes(fixture), Texts{browser.process});
  }
}

TEST(BrowserGuard, AScanOfTheGroupAsksNothingAndReachesAllBrowsers) {
  ScanFixture fixture;
  for (const GuardCase& browser : kGuarded) {
    fixture.machine.machine().add_process(static_cast<std::uint32_t>(browser.node),
                                          browser.process);
  }
  Form7& form = fixture.start();
  form.Tv1.click_node(12);
  form.scf.click();
  EXPECT_EQ(fixture.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
  EXPECT_EQ(scanned_browsers(form), numbers_from(13, 23));
  EXPECT_EQ(processes(fixture).size(), 10U);
}

}  // namespace
}  // namespace quillvane
