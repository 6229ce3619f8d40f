#include "view/win32/list_binding.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <cstdlib>
#include <cwchar>

#include "platform/win32/wide_text.h"
#include "view/win32/look/arrange.h"

namespace quillvane {

namespace {

constexpr int kPictureSize = 16;
constexpr int kPictureBeside = 3;
constexpr int kPictureAbove = 2;
constexpr int kOtherColumn = 96;  // sizes; dates take more
constexpr int kLastColumn = 160;
constexpr int kLeastFirstColumn = 120;
constexpr int kTwipsOfUnit = 15;
constexpr UINT kNoBox = 1;  // state pictures of the control
constexpr UINT kTickedBox = 2;

}  // namespace

ListBinding::ListBinding(ViewHost& host, ListView& list, const ControlPlace& place)
    : ControlView(host, list, place), list_(list) {
  create(WC_LISTVIEWW, WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                           LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS);
  const LPARAM looks =
      LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  send(LVM_SETEXTENDEDLISTVIEWSTYLE, static_cast<WPARAM>(looks), looks);
  send(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);  // ticks are the model's
  make_columns();
  restyle();
}

void ListBinding::restyle() {
  ControlView::restyle();
  images_ = host().pictures().list(place().picture, scaled(kPictureSize, host().dpi()), false,
                                   scaled(kPictureBeside, host().dpi()),
                                   scaled(kPictureAbove, host().dpi()));
  image_count_ = ImageList_GetImageCount(images_.get());
  send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images_.get()));
  send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(host().theme().list));
  send(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(host().theme().list));
  send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(host().theme().list_text));
  const int count = static_cast<int>(list_.columns().size());
  for (int column = 1; column < count; ++column) {
    const int width = column + 1 == count ? kLastColumn : kOtherColumn;
    const int told = list_.column_width(column + 1) / kTwipsOfUnit;
    send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column),
         scaled(told != 0 ? told : width, host().dpi()));
  }
  fit_first_column();
  InvalidateRect(window(), nullptr, TRUE);
}

void ListBinding::make_columns() {
  for (std::size_t i = 0; i < list_.columns().size(); ++i) {
    std::wstring text = widen(list_.columns()[i]);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
    column.fmt = i == 1 ? LVCFMT_RIGHT : LVCFMT_LEFT;
    column.pszText = text.data();
    column.iSubItem = static_cast<int>(i);
    send(LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
}

// File names take what the other columns leave.
void ListBinding::fit_first_column() {
  int others = 0;
  for (std::size_t i = 1; i < list_.columns().size(); ++i) {
    others += static_cast<int>(send(LVM_GETCOLUMNWIDTH, i));
  }
  const int bar = GetSystemMetrics(SM_CXVSCROLL);
  RECT area{};
  GetWindowRect(window(), &area);
  const int room = area.right - area.left - 2 - bar - others;
  send(LVM_SETCOLUMNWIDTH, 0, std::max(room, scaled(kLeastFirstColumn, host().dpi())));
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

void ListBinding::show_changes(const Changes& changes) {
  is_drawing_ = true;
  if (changes.has(Change::kItems)) {
    const int rows = list_.count();
    // Without a scroll: rows that are added below must not move what the user reads.
    if (rows != shown_rows_) {
      send(LVM_SETITEMCOUNT, static_cast<WPARAM>(rows), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
    }
    shown_rows_ = rows;
    show_order();
  }
  if (changes.has(Change::kItems) || changes.has(Change::kItemState) ||
      changes.has(Change::kRefresh)) {
    InvalidateRect(window(), nullptr, FALSE);
  }
  is_drawing_ = false;
}

// The model may have fewer rows by now than the control was told.
void ListBinding::answer(LVITEMW& item) {
  const int row = item.iItem + 1;
  const bool is_there = row <= list_.count();
  if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0) {
    const std::wstring text = is_there ? widen(list_.sub_item(row, item.iSubItem)) : std::wstring();
    wcsncpy(item.pszText, text.c_str(), static_cast<std::size_t>(item.cchTextMax) - 1);
    item.pszText[item.cchTextMax - 1] = L'\0';
  }
  if ((item.mask & LVIF_IMAGE) != 0) {
    // The number is that of the category's picture; entries of the user's own share the last one.
    const auto icon = is_there ? list_.icon(row) : std::nullopt;
    const int number = icon ? std::atoi(icon->c_str()) : 0;
    item.iImage = std::min(number, image_count_) - 1;
  }
  if ((item.mask & LVIF_STATE) != 0) {
    const bool ticked = is_there && list_.checked(row);
    item.state = INDEXTOSTATEIMAGEMASK(ticked ? kTickedBox : kNoBox);
    item.stateMask = LVIS_STATEIMAGEMASK;
  }
}

int ListBinding::row_at(POINT place, UINT& part) const {
  LVHITTESTINFO hit{};
  hit.pt = place;
  const auto item = static_cast<int>(send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
  part = hit.flags;
  return item + 1;
}

int ListBinding::focused_row() const {
  return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED)) + 1;
}

void ListBinding::click(int row) {
  if (row == 0) return;
  host().act([this, row] { list_.click_row(row); });
}

void ListBinding::tick(int row) {
  if (row == 0) return;
  host().act([this, row] {
    if (row <= list_.count()) list_.tick_row(row, !list_.checked(row));
  });
}

void ListBinding::open_menu(POINT place) {
  host().act([this, place] {
    if (const Menu* menu = list_.right_click()) host().show_menu(*menu, place);
  });
}

std::optional<LRESULT> ListBinding::filter(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      UINT part = 0;
      const int row = row_at({GET_X_LPARAM(l), GET_Y_LPARAM(l)}, part);
      // The flag of the box is also the one for "above": only on a row it means the box.
      if (row == 0 || (part & LVHT_ONITEM) != LVHT_ONITEMSTATEICON) return std::nullopt;
      SetFocus(window());
      tick(row);
      return 0;
    }
    case WM_KEYDOWN:
      if (w == VK_SPACE) {
        tick(focused_row());
        return 0;
      }
      return std::nullopt;
    case WM_CHAR:
      return w == VK_SPACE ? std::optional<LRESULT>(0) : std::nullopt;
    case WM_CONTEXTMENU: {
      POINT place{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
      if (l == -1) {  // by the keyboard: below the row in hand
        RECT row{};
        row.left = LVIR_LABEL;
        send(LVM_GETITEMRECT, static_cast<WPARAM>(std::max(focused_row() - 1, 0)),
             reinterpret_cast<LPARAM>(&row));
        place = {row.left, row.bottom};
        ClientToScreen(window(), &place);
      }
      open_menu(place);
      return 0;
    }
    case WM_SIZE: {
      const LRESULT answer = DefSubclassProc(window(), message, w, l);
      fit_first_column();
      return answer;
    }
    default:
      return std::nullopt;
  }
}

// The focus moves by keys and by clicks of either button alike.
void ListBinding::focus_moved(const NMLISTVIEW& change) {
  const bool came =
      (change.uNewState & LVIS_FOCUSED) != 0 && (change.uOldState & LVIS_FOCUSED) == 0;
  if (change.iItem >= 0 && came) click(change.iItem + 1);
}

std::optional<LRESULT> ListBinding::notified(NMHDR& header) {
  if (header.code == LVN_GETDISPINFOW) {
    answer(reinterpret_cast<NMLVDISPINFOW&>(header).item);
    return 0;
  }
  if (is_drawing_) return std::nullopt;
  switch (header.code) {
    case LVN_ITEMCHANGED:
      focus_moved(reinterpret_cast<const NMLISTVIEW&>(header));
      return 0;
    case NM_CLICK:
      // A row that has the focus already is clicked too.
      click(reinterpret_cast<const NMITEMACTIVATE&>(header).iItem + 1);
      return 0;
    case NM_DBLCLK: {
      const int row = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem + 1;
      host().act([this, row] { list_.double_click(row); });
      return 0;
    }
    case NM_RETURN: {
      const int row = focused_row();
      if (row != 0) host().act([this, row] { list_.double_click(row); });
      return 0;
    }
    case LVN_COLUMNCLICK: {
      const int column = reinterpret_cast<const NMLISTVIEW&>(header).iSubItem + 1;
      host().act([this, column] { list_.click_column(column); });
      return 0;
    }
    default:
      return std::nullopt;
  }
}

}  // namespace quillvane
