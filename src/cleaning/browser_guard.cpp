// The Browsers group of a whole scan: each browser that runs is asked about before its files are
// looked at, since it holds them open.
#include <string>
#include <string_view>

#include "categories/routines.h"
#include "cleaning/browser_processes.h"
#include "cleaning/questions.h"
#include "core/form7.h"
#include "scan/catalogue.h"

namespace quillvane {

namespace {

// One guarded browser. "launcher.exe" stands for Opera and "browser.exe" for Yandex, by their own
// names: any process of that name brings the question.
struct GuardedBrowser {
  int node;
  std::string_view process;
  std::string_view spoken_name;
};

constexpr GuardedBrowser kGuardedBrowsers[] = {
    {13, "iexplore.exe", "Internet Explorer"},    {14, "firefox.exe", "FireFox"},
    {15, "chrome.exe", "Google chrome"},          {16, "launcher.exe", "Opera browser"},
    {17, "msedge.exe", "Microsoft Edge browser"}, {18, "brave.exe", "Brave browser"},
    {19, "vivaldi.exe", "Vivaldi browser"},       {20, "torch.exe", "Torch browser"},
    {21, "Maxthon.exe", "Maxthon browser"},       {22, "browser.exe", "Yandex browser"},
};
constexpr int kUnguardedNode = 23;  // UC Browser

constexpr std::uint32_t kQuestionStyle = kBoxSystemModal | kBoxIconQuestion | kBoxYesNo;

std::string question(std::string_view browser) {
  return std::string(browser) +
         " is running. would you like to close it? otherwise tracks can't be cleaned.";
}

}  // namespace

bool Form7::may_scan_browser(std::string_view process, std::string_view spoken_name) {
  Processes& processes = platform().processes;
  if (pid(processes, process) == 0 || silentmode != 0) return true;
  const Answer answer =
      platform().dialogs.message_box(question(spoken_name), kCloseBrowserTitle, kQuestionStyle);
  if (answer != Answer::kYes) return false;
  TerminateByName(processes, process);
  KillProcessByName(processes, process);
  return true;
}

void Form7::scan_browsers() {
  for (const GuardedBrowser& browser : kGuardedBrowsers) {
    if (program.ended()) return;  // nobody is there to be asked
    if (may_scan_browser(browser.process, browser.spoken_name)) {
      run_category(*this, browser.node);
    } else {
      skipped_browsers.push_back(browser.node);
    }
    if (cancelflag == 1) return;
  }
  run_category(*this, kUnguardedNode);
}

void Form7::startcleanexplorer() {
  totals.brfiles = 0;
  totals.brsize = 0;
  totals.catfiles = 0;
  totals.catsize = 0;
  skipped_browsers.clear();
  scan_browsers();
  totals.totalfiles += totals.brfiles;
  totals.totalsize += totals.brsize;
  add_group_result(kBrowsersNode, totals.brfiles, totals.brsize);
  enter_state(ButtonState::kCustomGroup);  // the custom group can no longer be cancelled
  add_to_count_and_size(totals.brfiles, totals.brsize);
}

}  // namespace quillvane
