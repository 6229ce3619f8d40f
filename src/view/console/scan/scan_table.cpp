#include "view/console/scan/scan_table.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "scan/hit_rows.h"
#include "support/text.h"
#include "view/console/readable.h"

namespace quillvane {

namespace {

constexpr const char* kBold = "\x1b[1m";
constexpr const char* kPlain = "\x1b[0m";

struct TableLine {
  std::string category;
  std::string files;
  std::string size;
  bool bold = false;
  int index = 0;  // node whose files stand below; 0 for none
};

struct Widths {
  std::size_t category = 0;
  std::size_t files = 0;
  std::size_t size = 0;
};

std::vector<TableLine> table_lines(const ScanReport& report, bool on_terminal) {
  std::vector<TableLine> lines{{"Category", "Files", "Size", true, 0}};
  for (const CategoryReport& category : report.categories) {
    lines.push_back({(category.group ? "" : "  ") + shown(category.name, on_terminal),
                     number_text(category.result.files), readable_size(category.result.bytes),
                     category.group, category.index});
  }
  lines.push_back(
      {"Total", number_text(report.totals.files), readable_size(report.totals.bytes), true, 0});
  return lines;
}

Widths widths_of(const std::vector<TableLine>& lines) {
  Widths widths;
  for (const TableLine& line : lines) {
    widths.category = std::max(widths.category, columns_of(line.category));
    widths.files = std::max(widths.files, columns_of(line.files));
    widths.size = std::max(widths.size, columns_of(line.size));
  }
  return widths;
}

using RowsByCategory = std::map<int, std::vector<int>>;

RowsByCategory rows_by_category(const ListView& files) {
  RowsByCategory rows;
  for (int row = 1; row <= files.count(); ++row) {
    rows[static_cast<int>(files.sub_item_number(row, kCategoryColumn))].push_back(row);
  }
  return rows;
}

void print_line(std::ostream& out, const TableLine& line, const Widths& widths, bool bold) {
  if (bold) out << kBold;
  out << padded(line.category, widths.category) << "  " << right_aligned(line.files, widths.files)
      << "  " << right_aligned(line.size, widths.size);
  if (bold) out << kPlain;
  out << '\n';
}

void print_files(const ConsoleIo& io, const ListView& files, const std::vector<int>& rows) {
  constexpr std::size_t kSizeWidth = 10;
  for (const int row : rows) {
    if (!io.out) return;
    io.out << "    " << right_aligned(files.sub_item(row, kSizeColumn), kSizeWidth) << "  "
           << shown(files.text(row), io.out_is_terminal) << '\n';
  }
}

}  // namespace

void print_scan_table(const ConsoleIo& io, const ScanReport& report, const ListView* files) {
  const std::vector<TableLine> lines = table_lines(report, io.out_is_terminal);
  const Widths widths = widths_of(lines);
  const RowsByCategory rows = files == nullptr ? RowsByCategory() : rows_by_category(*files);
  for (const TableLine& line : lines) {
    print_line(io.out, line, widths, io.out_takes_bold && line.bold);
    const auto found = rows.find(line.index);
    if (found != rows.end()) print_files(io, *files, found->second);
  }
  io.out << '\n' << shown(report.summary, io.out_is_terminal) << '\n';
}

}  // namespace quillvane
