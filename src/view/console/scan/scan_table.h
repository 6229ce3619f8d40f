// The result of a scan as a table for people.
#pragma once

#include <ostream>

#include "forms/list_view.h"
#include "view/console/scan/scan_report.h"

namespace quillvane {

// Category, files and size, the totals and the summary. With `files` each file stands below its
// category. `bold` sets groups and totals apart by terminal escapes.
void print_scan_table(std::ostream& out, const ScanReport& report, const ListView* files,
                      bool bold);

}  // namespace quillvane
