#include "cleaning/browser_guard.h"

#include <string>
#include <string_view>

#include "categories/routines.h"
#include "cleaning/browser_processes.h"
#include "scan/catalogue.h"
#include "scan/junk_page.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kQuestionStyle = kBoxSystemModal | kBoxIconQuestion | kBoxYesNo;

std::string question(std::string_view browser) {
  return std::string(browser) +
         " is running. would you like to close it? otherwise tracks can't be cleaned.";
}

bool may_scan_browser(JunkPage& page, const CatalogueNode& browser) {
  if (browser.process.empty()) return true;
  Processes& processes = page.platform().processes;
  if (pid(processes, browser.process) == 0 || page.session.silentmode != 0) return true;
  const Answer answer = page.platform().dialogs.message_box(question(browser.spoken_name),
                                                            kCloseBrowserTitle, kQuestionStyle);
  if (answer != Answer::kYes) return false;
  TerminateByName(processes, browser.process);
  KillProcessByName(processes, browser.process);
  return true;
}

}  // namespace

void scan_browsers(JunkPage& page) {
  page.skipped_browsers.clear();
  for (int node = kFirstBrowserLeaf; node <= kLastBrowserLeaf; ++node) {
    if (page.session.ended()) return;  // nobody is there to be asked
    if (may_scan_browser(page, catalogue_node(node))) {
      run_category(page, node);
    } else {
      page.skipped_browsers.push_back(node);
    }
    if (page.cancelflag == 1) return;
  }
}

}  // namespace quillvane
