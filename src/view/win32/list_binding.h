// A list on the screen. It is virtual: the control asks for the rows that it shows, so that a list
// of a million rows costs no more than one of twenty.
#pragma once

#include <string>

#include "forms/list_view.h"
#include "view/win32/control_view.h"

namespace quillvane {

class ListBinding final : public ControlView {
 public:
  ListBinding(ViewHost& host, ListView& list, const ControlPlace& place);

  void restyle() override;
  std::optional<LRESULT> notified(NMHDR& header) override;

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  void make_columns();
  void fit_first_column();
  void show_order();
  void answer(LVITEMW& item);
  [[nodiscard]] int row_at(POINT place, UINT& part) const;  // 0: beside the rows
  [[nodiscard]] int focused_row() const;
  void click(int row);
  void tick(int row);
  void open_menu(POINT place);
  void focus_moved(const NMLISTVIEW& change);

  ListView& list_;
  ImageListOwner images_;
  int image_count_ = 0;
  int shown_rows_ = 0;
  bool is_drawing_ = false;  // what the control reports is then no act of the user
};

}  // namespace quillvane
