// The result of a scan as a table for people.
#pragma once

#include "forms/list_view.h"
#include "view/console/console_io.h"
#include "view/console/scan/scan_report.h"

namespace quillvane {

// Category, files and size, the totals and the summary. With `files` each file stands below its
// category. Groups and totals are bold where the terminal takes it.
void print_scan_table(const ConsoleIo& io, const ScanReport& report, const ListView* files);

}  // namespace quillvane
