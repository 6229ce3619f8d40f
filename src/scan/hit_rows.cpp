#include "scan/hit_rows.h"

#include "scan/catalogue.h"
#include "support/file_date.h"
#include "support/size_text.h"

namespace quillvane {

int category_icon(int category) { return category > kBrowsersNode ? category - 2 : category - 1; }

std::string HitRows::text(std::size_t index, int column) const {
  switch (column) {
    case 0:
      return files_->full_name(index);
    case kSizeColumn:
      return NumberInKB(files_->Item(index).FileSize, system_.decimal_separator());
    case kDateColumn: {
      const auto date = FileTimeToDate(files_->Item(index).Created, system_.date_order());
      return date ? system_.format_date(*date) : std::string();
    }
    case kCategoryColumn:
      return std::to_string(category_);
    default:
      return {};
  }
}

std::optional<std::string> HitRows::icon(std::size_t /*index*/) const {
  return std::to_string(category_icon(category_));
}

int HitRows::column_count(std::size_t /*index*/) const { return kCategoryColumn + 1; }

double HitRows::number(std::size_t index, int column) const {
  if (column == kCategoryColumn) return category_;
  return RowSource::number(index, column);
}

}  // namespace quillvane
