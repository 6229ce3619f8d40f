// The rows of the hit list, read straight from the files that a search found.
#pragma once

#include <memory>
#include <string>

#include "forms/list_view.h"
#include "platform/system_info.h"
#include "scan/search.h"

namespace quillvane {

// Columns of a row of the hit list behind its text, the full path.
inline constexpr int kSizeColumn = 1;
inline constexpr int kDateColumn = 2;
inline constexpr int kCategoryColumn = 3;  // Index of the category's node in Tv1; has no header

// Icon of the rows of a category: a picture of ImageList4, counted from 0. The groups have no
// picture of their own, so the browsers' are one further down.
[[nodiscard]] int category_icon(int category);

// Row i is file i of `files`.
class HitRows final : public RowSource {
 public:
  HitRows(std::shared_ptr<const Files> files, int category, const SystemInfo& system)
      : files_(std::move(files)), category_(category), system_(system) {}

  [[nodiscard]] std::string text(std::size_t index, int column) const override;
  [[nodiscard]] std::optional<std::string> icon(std::size_t index) const override;
  [[nodiscard]] int column_count(std::size_t index) const override;
  [[nodiscard]] double number(std::size_t index, int column) const override;

 private:
  std::shared_ptr<const Files> files_;
  int category_;
  const SystemInfo& system_;
};

}  // namespace quillvane
