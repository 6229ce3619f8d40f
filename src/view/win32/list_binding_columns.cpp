// The list's columns, their header, and the pictures of its rows.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "platform/win32/wide_text.h"
#include "view/win32/list_binding.h"
#include "view/win32/look/arrange.h"
#include "view/win32/tick_boxes.h"

namespace quillvane {

namespace {

constexpr int kPictureSize = 16;
constexpr int kPictureBeside = 3;
constexpr int kPictureAbove = 2;
constexpr int kOtherColumn = 88;  // sizes; dates take more
constexpr int kLastColumn = 160;
constexpr int kLeastColumn = 120;  // of the one that takes what the others leave
constexpr int kHeaderHeight = 24;
constexpr int kHeaderBeside = 6;   // of a caption
constexpr int kPlainColumn = 160;  // of a list without boxes, but for the last one
constexpr int kTwipsOfUnit = 15;

}  // namespace

// A header of Windows is as low as its letters allow.
LRESULT CALLBACK ListBinding::header_procedure(HWND header, UINT message, WPARAM w, LPARAM l,
                                               UINT_PTR /*id*/, DWORD_PTR view) {
  const LRESULT answer = DefSubclassProc(header, message, w, l);
  if (message != HDM_LAYOUT || answer == FALSE) return answer;
  const auto& layout = *reinterpret_cast<const HDLAYOUT*>(l);
  const int height = scaled(kHeaderHeight, reinterpret_cast<ListBinding*>(view)->host().dpi());
  layout.pwpos->cy = height;
  layout.prc->top = height;
  return answer;
}

// The pictures also make the rows as high as they are.
void ListBinding::make_images() {
  const int size = scaled(kPictureSize, host().dpi());
  const int above = scaled(kPictureAbove, host().dpi());
  if (has_boxes()) {
    images_ = host().pictures().list(place().picture, size, CLR_NONE,
                                     scaled(kPictureBeside, host().dpi()), above);
    ImageListOwner boxes = tick_boxes(host(), size + 2 * above, 0);
    send(LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(boxes.get()));
    boxes_ = std::move(boxes);
  } else {
    images_.reset(ImageList_Create(1, size + 2 * above, ILC_COLOR32, 0, 1));
  }
  image_count_ = ImageList_GetImageCount(images_.get());
  send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images_.get()));
}

void ListBinding::set_widths() {
  const int count = static_cast<int>(list_.columns().size());
  for (int column = 0; column < count; ++column) {
    int width = column + 1 == count ? kLastColumn : kOtherColumn;
    if (!has_boxes()) width = kPlainColumn;
    const int told = list_.column_width(column + 1) / kTwipsOfUnit;
    send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column),
         scaled(told != 0 ? told : width, host().dpi()));
  }
  fit_columns();
}

void ListBinding::make_columns() {
  for (std::size_t i = 0; i < list_.columns().size(); ++i) {
    std::wstring text = widen(list_.columns()[i]);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
    // Sizes stand on the right. A column that was given a width is none of them.
    const bool is_size = has_boxes() && i == 1 && list_.column_width(2) == 0;
    column.fmt = is_size ? LVCFMT_RIGHT : LVCFMT_LEFT;
    column.pszText = text.data();
    column.iSubItem = static_cast<int>(i);
    send(LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
}

void ListBinding::show_captions() {
  for (std::size_t i = 0; i < list_.columns().size(); ++i) {
    std::wstring text = widen(list_.columns()[i]);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = text.data();
    send(LVM_SETCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
}

// File names take what the other columns leave; in a list without boxes it is the last column.
void ListBinding::fit_columns() {
  const std::size_t count = list_.columns().size();
  const std::size_t wide = has_boxes() ? 0 : count - 1;
  int others = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (i != wide) others += static_cast<int>(send(LVM_GETCOLUMNWIDTH, i));
  }
  const int room = client_area().right - others;
  const int width = std::max(room, scaled(kLeastColumn, host().dpi()));
  if (send(LVM_GETCOLUMNWIDTH, wide) != width) send(LVM_SETCOLUMNWIDTH, wide, width);
}

void ListBinding::show_order() {
  const auto header = reinterpret_cast<HWND>(send(LVM_GETHEADER));
  for (std::size_t i = 0; i < list_.columns().size(); ++i) {
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    SendMessageW(header, HDM_GETITEMW, i, reinterpret_cast<LPARAM>(&item));
    const int before = item.fmt;
    item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
    if (list_.sorted() && list_.sort_key() == static_cast<int>(i)) {
      item.fmt |= list_.descending() ? HDF_SORTDOWN : HDF_SORTUP;
    }
    if (item.fmt != before) {
      SendMessageW(header, HDM_SETITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
  }
}

// In high contrast: by itself the header has the ground of the controls' look, on which the
// system's text need not show.
LRESULT ListBinding::draw_header(const NMCUSTOMDRAW& drawing) const {
  if (drawing.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawing.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const Theme& theme = host().theme();
  const auto column = static_cast<int>(drawing.dwItemSpec);
  std::wstring text = widen(list_.columns()[static_cast<std::size_t>(column)]);
  if (list_.sorted() && list_.sort_key() == column) {
    text += list_.descending() ? L" \u25BC" : L" \u25B2";
  }
  RECT area = drawing.rc;
  fill(drawing.hdc, area, theme.page);
  frame(drawing.hdc, area, theme.border);
  InflateRect(&area, -scaled(kHeaderBeside, host().dpi()), 0);
  const Selected font(drawing.hdc, plain_font());
  SetBkMode(drawing.hdc, TRANSPARENT);
  SetTextColor(drawing.hdc, theme.text);
  const UINT side = has_boxes() && column == 1 ? DT_RIGHT : DT_LEFT;  // sizes
  DrawTextW(drawing.hdc, text.c_str(), -1, &area,
            side | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  return CDRF_SKIPDEFAULT;
}

}  // namespace quillvane
