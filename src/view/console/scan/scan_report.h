// What a scan found, read from the windows when it is over.
#pragma once

#include <string>
#include <vector>

#include "scan/junk_page.h"

namespace quillvane {

struct CategoryReport {
  int index = 0;
  std::string key;
  bool group = false;
  std::string caption;  // with the result behind it, as the tree shows it
  std::string name;     // the caption alone
  NodeResult result;    // what it put into the totals
};

struct ScanReport {
  NodeResult totals;
  std::string summary;
  std::vector<CategoryReport> categories;  // the nodes of the tree in order
  std::vector<std::string> skipped = {};   // captions of browsers left out since they run
};

[[nodiscard]] ScanReport read_report(const JunkPage& page);

}  // namespace quillvane
