// The scan driver: the categories in their order, the totals, the summary.
#include <string>

#include "categories/routines.h"
#include "cleaning/browser_guard.h"
#include "cleaning/cleaning_run.h"
#include "core/junk_scan.h"
#include "platform/unicode_case.h"
#include "scan/catalogue.h"
#include "support/size_text.h"
#include "support/text.h"
#include "support/text_file.h"
#include "support/val.h"

namespace quillvane {

namespace {

// Time for the animation to start.
constexpr std::chrono::milliseconds kScanPause{1000};

}  // namespace

JunkScan::JunkScan(Window& owner, Session& shared)
    : Page(owner, shared),
      JunkPage(owner, shared),
      PageFrames(owner, shared),
      JunkCommands(owner, shared, *this),
      CleaningState(shared.platform) {
  scan_all = [this] { autosearch(); };
  clean_all = [this] { run_cleaning(*this, *this); };
  rescan_node = [this] { scan_clicked_node(); };
  clean_node = [this] { clean_clicked_node(); };
}

void JunkScan::autosearch() {
  view1.clear();
  view5.clear();
  txtfilecont.set_text("0");
  txtfilesize.set_text("0");
  cancelflag = 0;
  totals.listedfiles = 0;
  totals.listedsize = 0;
  Text13.show();
  Shape1.set_back_color(Shape2.back_color());
  Toolbar1.refresh();
  Gif89a2.show();
  session.PumpWait(kScanPause);
  if (session.stopped()) return;

  pndtxt(*this);
  startclean();
  startcleanexplorer();
  search_custom_entries();
  if (session.stopped()) return;

  Tv1.select(kWindowsNode);
  loadfirstscan();
  Gif89a2.hide();
  show_summary(totals.totalfiles);
  if (session.cleanmode == 2) write_result_file();
  show_found_mark();
  Text13.hide();
}

void JunkScan::startclean() {
  totals.winfiles = 0;
  totals.winsize = 0;
  build_tree();
  totals.totalfiles = 0;
  totals.totalsize = 0;
  for (int node = kFirstWindowsLeaf; node <= kLastWindowsLeaf; ++node) {
    if (node != kFirstWindowsLeaf && cancelflag == 1) break;
    run_category(*this, node);
  }
  totals.totalfiles += totals.winfiles;
  totals.totalsize += totals.winsize;
  add_group_result(kWindowsNode, totals.winfiles, totals.winsize);
  Tv1.select(kWindowsNode);
  show_result_page();
  add_to_count_and_size(totals.winfiles, totals.winsize);
}

void JunkScan::show_result_page() {
  show_result_frame();
  view1.show();
}

void JunkScan::startcleanexplorer() {
  totals.brfiles = 0;
  totals.brsize = 0;
  totals.catfiles = 0;
  totals.catsize = 0;
  scan_browsers(*this);
  totals.totalfiles += totals.brfiles;
  totals.totalsize += totals.brsize;
  add_group_result(kBrowsersNode, totals.brfiles, totals.brsize);
  enter_state(ButtonState::kCustomGroup);  // the custom group can no longer be cancelled
  add_to_count_and_size(totals.brfiles, totals.brsize);
}

void JunkScan::show_found_mark() {
  enable_report(totals.totalfiles > 0);
  if (totals.totalfiles > 0) Shape1.set_back_color(kFoundMark);
}

void JunkScan::write_result_file() {
  const std::string line =
      number_text(totals.totalfiles) + "|" + number_text(totals.totalsize) + "\r\n";
  // A result that cannot be written is passed over: the run goes on to its end.
  static_cast<void>(write_text_file(platform(), session.data_file("junst.txt"), line));
}

}  // namespace quillvane
