#include "cleaning/browser_guard.h"

#include <string>
#include <string_view>

#include "categories/routines.h"
#include "cleaning/browser_processes.h"
#include "scan/catalogue.h"
#include "scan/junk_page.h"

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

bool may_scan_browser(JunkPage& page, std::string_view process, std::string_view spoken_name) {
  Processes& processes = page.platform().processes;
  if (pid(processes, process) == 0 || page.session.silentmode != 0) return true;
  const Answer answer = page.platform().dialogs.message_box(question(spoken_name),
                                                            kCloseBrowserTitle, kQuestionStyle);
  if (answer != Answer::kYes) return false;
  TerminateByName(processes, process);
  KillProcessByName(processes, process);
  return true;
}

}  // namespace

void scan_browsers(JunkPage& page) {
  page.skipped_browsers.clear();
  for (const GuardedBrowser& browser : kGuardedBrowsers) {
    if (page.session.ended()) return;  // nobody is there to be asked
    if (may_scan_browser(page, browser.process, browser.spoken_name)) {
      run_category(page, browser.node);
    } else {
      page.skipped_browsers.push_back(browser.node);
    }
    if (page.cancelflag == 1) return;
  }
  run_category(page, kUnguardedNode);
}

}  // namespace quillvane
