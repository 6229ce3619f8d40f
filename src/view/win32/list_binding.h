// A list on the screen. It is virtual: the control asks for the rows that it shows, so that a list
// of a million rows costs no more than one of twenty. Ticks and the selection are the model's.
#pragma once

#include <windows.h>

#include <commctrl.h>

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
  [[nodiscard]] bool has_boxes() const { return place().kind == ControlKind::kList; }
  [[nodiscard]] bool has_pictures() const { return place().kind != ControlKind::kPlainList; }
  [[nodiscard]] char look_of(int column) const;  // from 0; a letter of the table's
  [[nodiscard]] int picture_of(int row) const;   // in the list of pictures, from 0; below 0: none
  void make_images();
  void make_columns();
  void show_captions();
  [[nodiscard]] int caption_width(int column) const;  // pixels
  void set_widths();
  void fit_columns();
  void show_order();
  [[nodiscard]] LRESULT draw_row(const NMLVCUSTOMDRAW& drawing) const;
  void draw_space(HDC dc, int row, int column) const;
  [[nodiscard]] LRESULT draw_header(const NMCUSTOMDRAW& drawing) const;
  void show_selection();
  [[nodiscard]] int selected_row() const;  // in the control; 0: none
  void answer(LVITEMW& item);
  [[nodiscard]] int row_at(POINT place, UINT& part) const;  // 0: beside the rows
  [[nodiscard]] int focused_row() const;
  void click(int row);
  void tick(int row);
  void open_menu(POINT place);
  void focus_moved(const NMLISTVIEW& change);

  static LRESULT CALLBACK header_procedure(HWND header, UINT message, WPARAM w, LPARAM l,
                                           UINT_PTR id, DWORD_PTR view);

  ListView& list_;
  ImageListOwner images_;
  ImageListOwner boxes_;
  int image_count_ = 0;
  int shown_rows_ = 0;
  int clicks_to_come_ = 0;   // rows the user has clicked, which the model has yet to be told
  bool is_drawing_ = false;  // what the control reports is then no act of the user
};

}  // namespace quillvane
