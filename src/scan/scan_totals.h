// The running numbers of a scan. Byte totals are whole numbers; a size that reads as negative takes
// away from them.
#pragma once

#include "forms/field.h"

namespace quillvane {

struct ScanTotals {
  Window& window;
  Field<double> catfiles{window, "catfiles"};  // the category now running
  Field<double> catsize{window, "catsize"};
  Field<double> winfiles{window, "winfiles"};  // the Windows group
  Field<double> winsize{window, "winsize"};
  Field<double> brfiles{window, "brfiles"};  // the Browsers group
  Field<double> brsize{window, "brsize"};
  Field<double> custfiles{window, "custfiles"};  // the custom group
  Field<double> custsize{window, "custsize"};
  Field<double> totalfiles{window, "totalfiles"};  // the whole scan
  Field<double> totalsize{window, "totalsize"};
};

// Count and bytes that one node of the tree put into the totals.
struct NodeResult {
  double files = 0;
  double bytes = 0;
};

}  // namespace quillvane
