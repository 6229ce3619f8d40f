// A list in columns with check boxes. It may hold millions of rows.
//
// A row is a reference of 8 bytes into a store of rows, so that a list can show files straight
// from the walk that found them, and a second list can show the same rows, without a copy of
// their texts. Rows are appended in constant time, removed from the front in constant time, and
// read by index. Row and column numbers count from 1, as in the handlers of the windows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace quillvane {

class Menu;

// Where rows come from. Implementations answer the texts of row `index` (from 0) on request.
class RowSource {
 public:
  virtual ~RowSource() = default;
  // Column 0 is the row's text, 1 and up its sub-items; empty beyond the last.
  [[nodiscard]] virtual std::string text(std::size_t index, int column) const = 0;
  // Icon of the row, as the program set it: a number or a key; nothing without one.
  [[nodiscard]] virtual std::optional<std::string> icon(std::size_t index) const = 0;
  // How many columns have a text, column 0 included.
  [[nodiscard]] virtual int column_count(std::size_t index) const = 0;
  // The number that the text of a column begins with; quicker than reading the text where the
  // source keeps the number itself.
  [[nodiscard]] virtual double number(std::size_t index, int column) const;
};

class ListView : public Control {
 public:
  ListView(Window& window, std::string_view name, std::vector<std::string> columns,
           const Design& design = {});

  // --- Columns.
  [[nodiscard]] const std::vector<std::string>& columns() const { return columns_; }
  void set_column(int column, std::string_view caption);
  // In twips; 0: the view decides.
  [[nodiscard]] int column_width(int column) const;
  void set_column_width(int column, int twips);

  // --- Rows.
  [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
  void clear();
  // Appends a row of its own with this text; sub-items and icon are set afterwards. Returns its
  // number.
  int add(std::string_view text);
  // Makes rows of `source` addable; the list keeps the source alive while it holds rows of it.
  // Returns the number to be given to add_from; it holds as long as generation() stays.
  std::uint32_t add_source(std::shared_ptr<const RowSource> source);
  void add_from(std::uint32_t source, std::size_t index);
  // Raised when the list has become empty and has let go of its sources.
  [[nodiscard]] std::uint64_t generation() const { return generation_; }
  // Appends a row of another list, without its tick.
  void add_copy(const ListView& other, int row);
  void remove(int row);
  // Removes the rows for which `doomed(row)` holds, in one pass.
  void remove_if(const std::function<bool(int row)>& doomed);

  [[nodiscard]] std::string text(int row) const { return sub_item(row, 0); }
  // Column 0 is the text, 1 and up the sub-items.
  [[nodiscard]] std::string sub_item(int row, int column) const;
  [[nodiscard]] double sub_item_number(int row, int column) const;
  [[nodiscard]] int sub_item_count(int row) const;
  [[nodiscard]] std::optional<std::string> icon(int row) const;
  void set_text(int row, std::string_view text) { set_sub_item(row, 0, text); }
  void set_sub_item(int row, int column, std::string_view text);
  void set_icon(int row, std::string_view icon);

  // --- Ticks and selection.
  [[nodiscard]] bool checked(int row) const { return (at(row).flags & kChecked) != 0; }
  void set_checked(int row, bool checked);
  void check_all(bool checked);
  [[nodiscard]] bool selected(int row) const { return (at(row).flags & kSelected) != 0; }
  void set_selected(int row, bool selected);

  // --- Sorting, by the text of one column without regard to case.
  void set_sorted(bool sorted);
  [[nodiscard]] bool sorted() const { return sorted_; }
  [[nodiscard]] int sort_key() const { return sort_key_; }  // column, from 0
  [[nodiscard]] bool descending() const { return descending_; }
  void set_sort(int key, bool descending);

  // --- Acts of the user. Nothing happens while the list is disabled or the row is missing.
  void click_row(int row);
  void tick_row(int row, bool checked);
  void double_click(int row);  // row 0: beside the rows
  void click_column(int column);
  // The right button goes up; returns the popup menu that opens, null for none.
  Menu* right_click();

  // Besides the common ones: Count.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void(int row)> on_item_click;
  std::function<void(int row)> on_item_check;
  std::function<void()> on_double_click;
  std::function<void(int column)> on_column_click;
  std::function<Menu*()> on_right_click;

 private:
  static constexpr std::uint32_t kChecked = 1;
  static constexpr std::uint32_t kSelected = 2;

  struct Row {
    std::uint32_t source : 24;
    std::uint32_t flags : 8;
    std::uint32_t index;
  };
  static_assert(sizeof(Row) == 8);

  class OwnRows;

  [[nodiscard]] const Row& at(int row) const { return rows_[static_cast<std::size_t>(row) - 1]; }
  [[nodiscard]] Row& at(int row) { return rows_[static_cast<std::size_t>(row) - 1]; }
  // Gives the row a store of its own, so that it can be written to.
  std::size_t own_row(int row);
  void sort_rows();
  void drop_sources();

  std::vector<std::string> columns_;
  std::vector<int> column_widths_;
  std::deque<Row> rows_;
  std::vector<std::shared_ptr<const RowSource>> sources_;  // 0 is the list's own
  std::shared_ptr<OwnRows> own_;
  std::uint64_t generation_ = 0;
  bool sorted_ = false;
  int sort_key_ = 0;
  bool descending_ = false;
};

}  // namespace quillvane
