// The result of a scan as one JSON document.
#pragma once

#include <ostream>

#include "forms/list_view.h"
#include "view/console/scan/scan_report.h"

namespace quillvane {

// With `files` each file too. Written file by file: the list may be long.
void print_scan_json(std::ostream& out, const ScanReport& report, const ListView* files);

// The same, with the document left open, so that a command can add its own members; the caller
// writes the "}".
void print_scan_json_open(std::ostream& out, const ScanReport& report, const ListView* files);

// The member "files" of an open document with members before it.
void print_files_json(std::ostream& out, const ListView& files);

}  // namespace quillvane
