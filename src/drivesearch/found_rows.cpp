#include "drivesearch/found_rows.h"

#include <cstdint>

#include "scan/hit_rows.h"
#include "support/file_date.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr const char* kIcon = "17";  // of ImageList4

}  // namespace

double length_of(const ListedFile& file) {
  return static_cast<double>(std::uint64_t{file.size_high} << 32U | file.size_low);
}

std::string FoundRows::text(std::size_t index, int column) const {
  switch (column) {
    case 0:
      return files_->full_name(index);
    case kSizeColumn:
      return number_text(length_of(files_->listed(index)));
    case kDateColumn: {
      const auto date = calendar_date(system_.local_time(files_->listed(index).modified));
      return date ? system_.format_date(*date) : std::string();
    }
    case kCategoryColumn:
      return std::to_string(category_);
    default:
      return {};
  }
}

std::optional<std::string> FoundRows::icon(std::size_t /*index*/) const { return kIcon; }

int FoundRows::column_count(std::size_t /*index*/) const { return kCategoryColumn + 1; }

double FoundRows::number(std::size_t index, int column) const {
  if (column == kSizeColumn) return length_of(files_->listed(index));
  if (column == kCategoryColumn) return category_;
  return RowSource::number(index, column);
}

}  // namespace quillvane
