#include "forms/list_view.h"

#include <algorithm>
#include <cassert>
#include <numeric>

#include "platform/unicode_case.h"
#include "support/val.h"

namespace quillvane {

double RowSource::number(std::size_t index, int column) const { return Val(text(index, column)); }

// Rows that were written into this list itself.
class ListView::OwnRows final : public RowSource {
 public:
  struct OwnRow {
    std::vector<std::string> texts;  // column 0 and up
    std::optional<std::string> icon;
  };

  std::size_t add(OwnRow row) {
    if (!free_.empty()) {
      const std::size_t index = free_.back();
      free_.pop_back();
      rows_[index] = std::move(row);
      return index;
    }
    rows_.push_back(std::move(row));
    return rows_.size() - 1;
  }
  void release(std::size_t index) {
    rows_[index] = {};
    free_.push_back(index);
  }
  [[nodiscard]] OwnRow& row(std::size_t index) { return rows_[index]; }
  [[nodiscard]] const OwnRow& row(std::size_t index) const { return rows_[index]; }

  [[nodiscard]] std::string text(std::size_t index, int column) const override {
    const auto& texts = rows_[index].texts;
    const auto at = static_cast<std::size_t>(column);
    return at < texts.size() ? texts[at] : std::string();
  }
  [[nodiscard]] std::optional<std::string> icon(std::size_t index) const override {
    return rows_[index].icon;
  }
  [[nodiscard]] int column_count(std::size_t index) const override {
    return static_cast<int>(rows_[index].texts.size());
  }

 private:
  std::deque<OwnRow> rows_;
  std::vector<std::size_t> free_;
};

ListView::ListView(Window& window, std::string_view name, std::vector<std::string> columns,
                   const Design& design)
    : Control(window, name, design),
      columns_(std::move(columns)),
      column_widths_(columns_.size()),
      own_(std::make_shared<OwnRows>()) {
  sources_.push_back(own_);
}

void ListView::set_column(int column, std::string_view caption) {
  columns_.at(static_cast<std::size_t>(column) - 1) = caption;
  notify(Change::kCaption);
}

int ListView::column_width(int column) const {
  return column_widths_.at(static_cast<std::size_t>(column) - 1);
}

void ListView::set_column_width(int column, int twips) {
  column_widths_.at(static_cast<std::size_t>(column) - 1) = twips;
  notify(Change::kPosition);
}

void ListView::clear() {
  rows_.clear();
  own_ = std::make_shared<OwnRows>();
  drop_sources();
  notify(Change::kItems);
}

void ListView::drop_sources() {
  sources_.assign(1, own_);
  ++generation_;
}

int ListView::add(std::string_view text) {
  const std::size_t index = own_->add({{std::string(text)}, std::nullopt});
  rows_.push_back({0, 0, static_cast<std::uint32_t>(index)});
  notify(Change::kItems);
  return count();
}

std::uint32_t ListView::add_source(std::shared_ptr<const RowSource> source) {
  sources_.push_back(std::move(source));
  assert(sources_.size() < (std::size_t{1} << 24U));
  return static_cast<std::uint32_t>(sources_.size() - 1);
}

void ListView::add_from(std::uint32_t source, std::size_t index) {
  rows_.push_back({source & 0xFFFFFFU, 0, static_cast<std::uint32_t>(index)});
  notify(Change::kItems);
}

void ListView::add_copy(const ListView& other, int row) {
  const Row& original = other.at(row);
  if (original.source == 0) {
    // The other list may write to its own rows later; the copy stays as it is now.
    const std::size_t index = own_->add(other.own_->row(original.index));
    rows_.push_back({0, 0, static_cast<std::uint32_t>(index)});
    notify(Change::kItems);
    return;
  }
  const auto& source = other.sources_[original.source];
  // Rows of one source follow each other, so the search begins with the source added last.
  const auto found = std::find(sources_.rbegin(), sources_.rend(), source);
  const std::uint32_t id =
      found == sources_.rend()
          ? add_source(source)
          : static_cast<std::uint32_t>(std::distance(found, sources_.rend()) - 1);
  add_from(id, original.index);
}

void ListView::remove(int row) {
  const Row& gone = at(row);
  if (gone.source == 0) own_->release(gone.index);
  rows_.erase(rows_.begin() + (row - 1));
  if (rows_.empty()) drop_sources();
  notify(Change::kItems);
}

void ListView::remove_if(const std::function<bool(int row)>& doomed) {
  std::deque<Row> kept;
  for (int row = 1; row <= count(); ++row) {
    const Row& current = at(row);
    if (!doomed(row)) {
      kept.push_back(current);
    } else if (current.source == 0) {
      own_->release(current.index);
    }
  }
  rows_ = std::move(kept);
  if (rows_.empty()) drop_sources();
  notify(Change::kItems);
}

std::string ListView::sub_item(int row, int column) const {
  const Row& r = at(row);
  return sources_[r.source]->text(r.index, column);
}

double ListView::sub_item_number(int row, int column) const {
  const Row& r = at(row);
  return sources_[r.source]->number(r.index, column);
}

int ListView::sub_item_count(int row) const {
  const Row& r = at(row);
  return sources_[r.source]->column_count(r.index) - 1;
}

std::optional<std::string> ListView::icon(int row) const {
  const Row& r = at(row);
  return sources_[r.source]->icon(r.index);
}

std::size_t ListView::own_row(int row) {
  Row& r = at(row);
  if (r.source != 0) {
    OwnRows::OwnRow copy;
    for (int column = 0; column <= sub_item_count(row); ++column) {
      copy.texts.push_back(sub_item(row, column));
    }
    copy.icon = icon(row);
    r.index = static_cast<std::uint32_t>(own_->add(std::move(copy)));
    r.source = 0;
  }
  return r.index;
}

void ListView::set_sub_item(int row, int column, std::string_view text) {
  auto& texts = own_->row(own_row(row)).texts;
  const auto at_column = static_cast<std::size_t>(column);
  if (texts.size() <= at_column) texts.resize(at_column + 1);
  texts[at_column] = text;
  notify(Change::kItems);
}

void ListView::set_icon(int row, std::string_view icon) {
  own_->row(own_row(row)).icon = std::string(icon);
  notify(Change::kItems);
}

void ListView::set_checked(int row, bool checked) {
  Row& r = at(row);
  r.flags = (checked ? r.flags | kChecked : r.flags & ~kChecked) & 0xFFU;
  notify(Change::kItemState);
}

void ListView::check_all(bool checked) {
  for (Row& r : rows_) r.flags = (checked ? r.flags | kChecked : r.flags & ~kChecked) & 0xFFU;
  notify(Change::kItemState);
}

void ListView::set_selected(int row, bool selected) {
  Row& r = at(row);
  r.flags = (selected ? r.flags | kSelected : r.flags & ~kSelected) & 0xFFU;
  notify(Change::kItemState);
}

void ListView::set_sorted(bool sorted) {
  sorted_ = sorted;
  sort_rows();
}

void ListView::set_sort(int key, bool descending) {
  sort_key_ = key;
  descending_ = descending;
  sort_rows();
}

void ListView::sort_rows() {
  if (!sorted_) return;
  // The keys are read once a row, since a text may have to be made up.
  std::vector<std::pair<std::string, Row>> keyed;
  keyed.reserve(rows_.size());
  for (const Row& r : rows_) keyed.emplace_back(sources_[r.source]->text(r.index, sort_key_), r);
  std::stable_sort(keyed.begin(), keyed.end(), [this](const auto& left, const auto& right) {
    const int order = compare_names(left.first, right.first);
    return descending_ ? order > 0 : order < 0;
  });
  std::transform(keyed.begin(), keyed.end(), rows_.begin(),
                 [](const auto& entry) { return entry.second; });
  notify(Change::kItems);
}

void ListView::click_row(int row) {
  if (!enabled() || row < 1 || row > count()) return;
  for (int i = 1; i <= count(); ++i) {
    if (selected(i) != (i == row)) set_selected(i, i == row);
  }
  if (on_item_click) on_item_click(row);
}

void ListView::tick_row(int row, bool checked) {
  if (!enabled() || row < 1 || row > count()) return;
  set_checked(row, checked);
  if (on_item_check) on_item_check(row);
}

void ListView::double_click(int row) {
  if (!enabled() || row < 0 || row > count()) return;
  if (on_double_click) on_double_click();
}

void ListView::click_column(int column) {
  if (!enabled() || column < 1 || column > static_cast<int>(columns_.size())) return;
  if (on_column_click) on_column_click(column);
}

Menu* ListView::right_click() { return enabled() && on_right_click ? on_right_click() : nullptr; }

std::optional<PropertyValue> ListView::property(std::string_view name) const {
  if (same_name(name, "count")) return std::int64_t{count()};
  return Control::property(name);
}

}  // namespace quillvane
