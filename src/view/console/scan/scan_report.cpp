#include "view/console/scan/scan_report.h"

#include "view/console/scan/browser_answer.h"

namespace quillvane {

ScanReport read_report(const JunkPage& page) {
  ScanReport report{{page.totals.totalfiles, page.totals.totalsize},
                    page.Label11.caption(),
                    {},
                    skipped_captions(page)};
  for (int index = 1; index <= page.Tv1.count(); ++index) {
    const TreeNode& node = page.Tv1.node(index);
    report.categories.push_back({index, node.key, node.parent.empty(), node.text,
                                 caption_of(node.text), page.node_totals(index)});
  }
  return report;
}

}  // namespace quillvane
