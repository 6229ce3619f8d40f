#include "categories/category_frame.h"

#include "core/form7.h"
#include "scan/catalogue.h"

namespace quillvane {

void begin_category(Form7& form, int node) {
  form.Tv1.set_node_color(node, kGreen);
  form.Tv1.refresh();
  form.totals.catfiles = 0;
  form.totals.catsize = 0;
}

void end_category(Form7& form, int node) {
  form.append_result(node, form.totals.catfiles, form.totals.catsize);
  form.Tv1.set_node_color(node, form.totals.catfiles >= 1 ? kDarkRed : 0);
  add_to_group(form, node);
}

void add_to_group(Form7& form, int node) {
  ScanTotals& totals = form.totals;
  if (node < kBrowsersNode) {
    totals.winfiles += totals.catfiles;
    totals.winsize += totals.catsize;
  } else {
    totals.brfiles += totals.catfiles;
    totals.brsize += totals.catsize;
  }
  form.node_results[node] = {totals.catfiles, totals.catsize};
}

}  // namespace quillvane
