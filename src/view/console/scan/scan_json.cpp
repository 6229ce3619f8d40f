#include "view/console/scan/scan_json.h"

#include "scan/hit_rows.h"
#include "view/console/json_text.h"

namespace quillvane {

namespace {

Json category_json(const CategoryReport& category) {
  return {{"index", category.index},
          {"key", category.key},
          {"caption", category.caption},
          {"files", json_number(category.result.files)},
          {"bytes", json_number(category.result.bytes)}};
}

Json file_json(const ListView& files, int row) {
  return {{"path", files.text(row)},
          {"size", files.sub_item(row, kSizeColumn)},
          {"date", files.sub_item(row, kDateColumn)},
          {"category", json_number(files.sub_item_number(row, kCategoryColumn))}};
}

}  // namespace

void print_scan_json(std::ostream& out, const ScanReport& report, const ListView* files) {
  print_scan_json_open(out, report, files);
  out << "}\n";
}

void print_files_json(std::ostream& out, const ListView& files) {
  out << ",\n \"files\": [";
  const char* separator = "\n  ";
  for (int row = 1; row <= files.count() && out; ++row) {
    out << separator << json_text(file_json(files, row));
    separator = ",\n  ";
  }
  out << ']';
}

void print_scan_json_open(std::ostream& out, const ScanReport& report, const ListView* files) {
  const Json totals = {{"files", json_number(report.totals.files)},
                       {"bytes", json_number(report.totals.bytes)}};
  out << "{\"totals\": " << json_text(totals) << ",\n \"summary\": " << json_text(report.summary)
      << ",\n \"categories\": [";
  const char* separator = "\n  ";
  for (const CategoryReport& category : report.categories) {
    out << separator << json_text(category_json(category));
    separator = ",\n  ";
  }
  out << ']';
  if (files != nullptr) print_files_json(out, *files);
  if (!report.skipped.empty()) out << ",\n \"skipped\": " << json_text(report.skipped);
}

}  // namespace quillvane
