// The scan driver: the categories in their order, the totals, the summary.
#include <string>

#include "categories/routines.h"
#include "core/form7.h"
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

void add_number(TextBox& box, double number) {
  box.set_text(number_text(Val(box.text()) + number));
}

}  // namespace

std::string Form7::size_text(double bytes) const {
  return NumberInKB(bytes, platform().system.decimal_separator());
}

void Form7::autosearch() {
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
  program.PumpWait(kScanPause);
  if (program.stopped()) return;

  pndtxt();
  startclean();
  startcleanexplorer();
  searchcustom();
  if (program.stopped()) return;

  Tv1.select(kWindowsNode);
  loadfirstscan();
  Gif89a2.hide();
  show_summary(totals.totalfiles);
  if (cleanmode == 2) write_result_file();
  show_found_mark();
  Text13.hide();
}

void Form7::startclean() {
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

void Form7::add_to_count_and_size(double files, double bytes) {
  add_number(txtfilecont, files);
  add_number(txtfilesize, bytes);
}

void Form7::show_result_page() {
  Frame80.move_to(Frame2);
  Frame80.show();
  for (Frame* page : {&Frame2, &Frame4, &Frame6, &Frame8}) page->hide();
  view1.show();
}

void Form7::searchcustom() {
  totals.custfiles = 0;
  totals.custsize = 0;
}

void Form7::add_group_result(int node, double files, double bytes) {
  append_result(node, files, bytes);
  node_results[node] = {files, bytes};
}

void Form7::pndtxt() {
  std::string filter;
  const auto queued = read_pending_value(platform());
  if (queued.failed()) program.tell_problem("queue of the next restart", queued.problem());
  if (queued) {
    for (const std::string& text : *queued) filter.append("|").append(text);
  }
  Text15.set_text(lower_case(filter));
}

void Form7::show_summary(double files) {
  Label11.set_caption("Junk files found : ( " + number_text(files) + " ) files , Size : ( " +
                      size_text(totals.totalsize) +
                      " ) - Click \"Start Cleaning\" to Remove selected Files");
}

void Form7::show_found_mark() {
  enable_report(totals.totalfiles > 0);
  if (totals.totalfiles > 0) Shape1.set_back_color(kFoundMark);
}

void Form7::write_result_file() {
  const std::string line =
      number_text(totals.totalfiles) + "|" + number_text(totals.totalsize) + "\r\n";
  // A result that cannot be written is passed over: the run goes on to its end.
  static_cast<void>(write_text_file(platform(), program.data_file("junst.txt"), line));
}

}  // namespace quillvane
