// The running numbers of a scan. Byte totals are whole numbers; a size that reads as negative takes
// away from them.
#pragma once

#include "forms/field.h"

namespace quillvane {

struct ScanTotals {
  Window& window;
  Field<double> catfiles{window, "catfiles"};      // files of the category now running
  Field<double> catsize{window, "catsize"};        // bytes of the category now running
  Field<double> winfiles{window, "winfiles"};      // files of the Windows group
  Field<double> winsize{window, "winsize"};        // bytes of the Windows group
  Field<double> brfiles{window, "brfiles"};        // files of the Browsers group
  Field<double> brsize{window, "brsize"};          // bytes of the Browsers group
  Field<double> custfiles{window, "custfiles"};    // files of the custom group
  Field<double> custsize{window, "custsize"};      // bytes of the custom group
  Field<double> totalfiles{window, "totalfiles"};  // files of the whole scan
  Field<double> totalsize{window, "totalsize"};    // bytes of the whole scan

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
