// The rows of the hit list that clsdirsearch has found, read straight from its files.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "forms/list_view.h"
#include "platform/system_info.h"
#include "scan/search.h"

namespace quillvane {

// Row i is file i of `files`. Unlike those of the walker they show the size as a plain number of
// bytes, and the time of the last change by the clock on the wall.
class FoundRows final : public RowSource {
 public:
  // `system` must outlive it.
  FoundRows(std::shared_ptr<const Files> files, int category, const SystemInfo& system)
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

// Length of a file in bytes, as a listing gives it.
[[nodiscard]] double length_of(const ListedFile& file);

}  // namespace quillvane
