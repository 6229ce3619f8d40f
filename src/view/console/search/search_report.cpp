#include "view/console/search/search_report.h"

#include <algorithm>
#include <array>

#include "platform/unicode_case.h"
#include "scan/hit_rows.h"
#include "support/text.h"
#include "view/console/json_text.h"
#include "view/console/readable.h"
#include "view/console/scan/scan_json.h"

namespace quillvane {

namespace {

constexpr std::size_t kDriveLength = 2;  // of "C:"

void add(NodeResult& result, double bytes) {
  result.files += 1;
  result.bytes += bytes;
}

// The drive in the name of a row of View2.
std::string drive_of(const std::string& name) {
  return name.substr(name.size() - kDriveLength - 1, kDriveLength);
}

Json result_json(const NodeResult& result) {
  return {{"files", json_number(result.files)}, {"bytes", json_number(result.bytes)}};
}

Json drive_json(const SearchedDrive& drive) {
  Json json = {{"drive", drive_of(drive.name)}, {"name", drive.name}, {"status", drive.status}};
  json.update(result_json(drive.found));
  return json;
}

}  // namespace

SearchReport read_search_report(const Form7& form) {
  SearchReport report{{form.foundcount, form.foundbytes}, form.Label11.caption(), {}, {}};
  for (int row = 1; row <= form.View2.count(); ++row) {
    if (!form.View2.checked(row)) continue;
    report.drives.push_back({form.View2.text(row), form.View2.sub_item(row, 3), {}});
  }
  for (int row = 1; row <= form.view1.count(); ++row) {
    const std::string drive = form.view1.text(row).substr(0, kDriveLength);
    const auto searched = std::find_if(
        report.drives.begin(), report.drives.end(),
        [&](const SearchedDrive& known) { return same_name(drive_of(known.name), drive); });
    const double bytes = form.view1.sub_item_number(row, kSizeColumn);
    add(searched == report.drives.end() ? report.elsewhere : searched->found, bytes);
  }
  return report;
}

void print_search_table(const ConsoleIo& io, const SearchReport& report, const ListView* files) {
  for (int row = 1; files != nullptr && row <= files->count() && io.out; ++row) {
    io.out << right_aligned(readable_size(files->sub_item_number(row, kSizeColumn)), 10) << "  "
           << shown(files->text(row), io.out_is_terminal) << '\n';
  }
  if (files != nullptr && files->count() > 0) io.out << '\n';
  std::vector<std::array<std::string, 3>> lines = {{"Drive", "Files", "Size"}};
  const auto add_line = [&](const std::string& name, const NodeResult& result) {
    lines.push_back({name, number_text(result.files), readable_size(result.bytes)});
  };
  for (const SearchedDrive& drive : report.drives) add_line(drive.name, drive.found);
  if (report.elsewhere.files > 0) add_line("Elsewhere", report.elsewhere);
  add_line("Total", report.totals);
  std::array<std::size_t, 3> widths{};
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      widths[i] = std::max(widths[i], columns_of(line[i]));
    }
  }
  for (const auto& line : lines) {
    io.out << padded(line[0], widths[0]) << "  " << right_aligned(line[1], widths[1]) << "  "
           << right_aligned(line[2], widths[2]) << '\n';
  }
}

void print_search_json(std::ostream& out, const SearchReport& report, const ListView* files,
                       bool cancelled) {
  out << "{\"totals\": " << json_text(result_json(report.totals))
      << ",\n \"summary\": " << json_text(report.summary) << ",\n \"drives\": [";
  const char* separator = "\n  ";
  for (const SearchedDrive& drive : report.drives) {
    out << separator << json_text(drive_json(drive));
    separator = ",\n  ";
  }
  out << ']';
  if (files != nullptr) print_files_json(out, *files);
  if (cancelled) out << ",\n \"outcome\": \"cancelled\"";
  out << "}\n";
}

}  // namespace quillvane
