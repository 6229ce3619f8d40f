#include "categories/category_frame.h"

#include "scan/catalogue.h"
#include "scan/junk_page.h"

namespace quillvane {

void begin_category(JunkPage& page, int node) {
  page.Tv1.set_node_color(node, kGreen);
  page.Tv1.refresh();
  page.totals.catfiles = 0;
  page.totals.catsize = 0;
}

void end_category(JunkPage& page, int node) {
  page.append_result(node, page.totals.catfiles, page.totals.catsize);
  page.Tv1.set_node_color(node, page.totals.catfiles >= 1 ? kDarkRed : 0);
  add_to_group(page, node);
}

void add_to_group(JunkPage& page, int node) {
  ScanTotals& totals = page.totals;
  if (node < kBrowsersNode) {
    totals.winfiles += totals.catfiles;
    totals.winsize += totals.catsize;
  } else {
    totals.brfiles += totals.catfiles;
    totals.brsize += totals.catsize;
  }
  page.node_results[node] = {totals.catfiles, totals.catsize};
}

}  // namespace quillvane
