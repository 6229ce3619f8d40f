// Space on a drive, drawn as a bar of what is taken and the text of what is free.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/wide_text.h"
#include "view/win32/gdi_objects.h"
#include "view/win32/list_binding.h"
#include "view/win32/look/arrange.h"

namespace quillvane {

namespace {

constexpr int kBarBeside = 8;  // of the bar and of the text
constexpr int kBarAbove = 5;
constexpr int kBarShare = 45;  // of the cell, in hundredths
constexpr double kNearlyFull = 0.9;
constexpr COLORREF kFullColor = RGB(0xC4, 0x2B, 0x1C);

}  // namespace

LRESULT ListBinding::draw_row(const NMLVCUSTOMDRAW& drawing) const {
  const NMCUSTOMDRAW& stage = drawing.nmcd;
  const bool has_bars = place().column_looks.find('b') != std::string_view::npos;
  if (!has_bars) return CDRF_DODEFAULT;
  if (stage.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (stage.dwDrawStage == CDDS_ITEMPREPAINT) return CDRF_NOTIFYSUBITEMDRAW;
  if (stage.dwDrawStage != (CDDS_ITEMPREPAINT | CDDS_SUBITEM)) return CDRF_DODEFAULT;
  const int row = static_cast<int>(stage.dwItemSpec) + 1;
  if (look_of(drawing.iSubItem) != 'b' || row > list_.count()) return CDRF_DODEFAULT;
  draw_space(stage.hdc, row, drawing.iSubItem);
  return CDRF_SKIPDEFAULT;
}

// The numbers are those that the texts begin with. A drive that tells none has no bar.
void ListBinding::draw_space(HDC dc, int row, int column) const {
  RECT cell{};
  cell.left = LVIR_BOUNDS;
  cell.top = column;
  send(LVM_GETSUBITEMRECT, static_cast<WPARAM>(row) - 1, reinterpret_cast<LPARAM>(&cell));
  const Theme& theme = host().theme();
  const bool is_selected = send(LVM_GETITEMSTATE, static_cast<WPARAM>(row) - 1, LVIS_SELECTED) != 0;
  const bool has_focus = GetFocus() == window();
  const COLORREF back =
      !is_selected ? theme.list : GetSysColor(has_focus ? COLOR_HIGHLIGHT : COLOR_BTNFACE);
  const COLORREF text =
      !is_selected ? theme.list_text : GetSysColor(has_focus ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT);
  fill(dc, cell, back);
  const double total = list_.sub_item_number(row, column - 1);
  const double free = list_.sub_item_number(row, column);
  const int beside = scaled(kBarBeside, host().dpi());
  RECT bar = cell;
  bar.left += beside;
  bar.right = cell.left + (cell.right - cell.left) * kBarShare / 100;
  InflateRect(&bar, 0, -scaled(kBarAbove, host().dpi()));
  if (total > 0) {
    const double taken = std::clamp(1 - free / total, 0.0, 1.0);
    fill(dc, bar, theme.list);
    frame(dc, bar, theme.high_contrast ? theme.list_text : theme.box_edge);
    InflateRect(&bar, -scaled(1, host().dpi()), -scaled(1, host().dpi()));
    const auto length = static_cast<int>((bar.right - bar.left) * taken);
    const COLORREF color = taken >= kNearlyFull ? kFullColor : theme.main_button;
    fill(dc, {bar.left, bar.top, bar.left + length, bar.bottom},
         theme.high_contrast ? theme.list_text : color);
  }
  cell.left = bar.right + beside;
  cell.right -= beside;
  const Selected font(dc, plain_font());
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, text);
  DrawTextW(dc, widen(list_.sub_item(row, column)).c_str(), -1, &cell,
            DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace quillvane
