// The running numbers of a scan. Byte totals are whole numbers; a size that reads as negative takes
// away from them.
#pragma once

namespace quillvane {

struct ScanTotals {
  double catfiles = 0;  // the category now running
  double catsize = 0;
  double winfiles = 0;  // the Windows group
  double winsize = 0;
  double brfiles = 0;  // the Browsers group
  double brsize = 0;
  double custfiles = 0;  // the custom group
  double custsize = 0;
  double totalfiles = 0;  // the whole scan
  double totalsize = 0;

  // Every row that the walker has added since the whole scan began: what a look at a scan in the
  // middle is told, where the others stand between two sums.
  double listedfiles = 0;
  double listedsize = 0;
};

// Count and bytes that one node of the tree put into the totals.
struct NodeResult {
  double files = 0;
  double bytes = 0;
};

}  // namespace quillvane
