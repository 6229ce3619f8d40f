#include "view/win32/list_binding.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <cwchar>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

constexpr UINT kNoBox = 1;  // state pictures of the control
constexpr UINT kTickedBox = 2;

}  // namespace

ListBinding::ListBinding(ViewHost& host, ListView& list, const ControlPlace& place)
    : ControlView(host, list, place), list_(list) {
  create(WC_LISTVIEWW, WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                           LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS);
  LPARAM looks = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  if (has_boxes()) looks |= LVS_EX_CHECKBOXES;
  send(LVM_SETEXTENDEDLISTVIEWSTYLE, static_cast<WPARAM>(looks), looks);
  if (has_boxes()) {
    send(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);  // ticks are the model's
    // Made by Windows, and left to be destroyed when others take their place.
    boxes_.reset(reinterpret_cast<HIMAGELIST>(send(LVM_GETIMAGELIST, LVSIL_STATE)));
  }
  SetWindowSubclass(reinterpret_cast<HWND>(send(LVM_GETHEADER)), header_procedure, 0,
                    reinterpret_cast<DWORD_PTR>(this));
  make_columns();
  restyle();
}

void ListBinding::restyle() {
  ControlView::restyle();
  make_images();
  send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(host().theme().list));
  send(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(host().theme().list));
  send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(host().theme().list_text));
  set_widths();
  InvalidateRect(window(), nullptr, TRUE);
}

int ListBinding::selected_row() const {
  return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)) + 1;
}

// Looks through the rows only when the one that the control has selected is not the model's: a
// scan adds rows many times a second.
void ListBinding::show_selection() {
  if (clicks_to_come_ != 0) return;  // the control is ahead of the model
  const int shown = selected_row();
  if (shown != 0 && shown <= list_.count() && list_.selected(shown)) return;
  int wanted = 1;
  while (wanted <= list_.count() && !list_.selected(wanted)) ++wanted;
  LVITEMW item{};
  item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  if (shown != 0) send(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
  if (wanted > list_.count()) return;
  item.state = item.stateMask;
  send(LVM_SETITEMSTATE, static_cast<WPARAM>(wanted) - 1, reinterpret_cast<LPARAM>(&item));
}

void ListBinding::show_changes(const Changes& changes) {
  is_drawing_ = true;
  if (changes.has(Change::kCaption)) show_captions();
  const bool states_changed = changes.has(Change::kItemState);
  if (changes.has(Change::kItems)) {
    const int rows = list_.count();
    // Without a scroll: rows that are added below must not move what the user reads.
    if (rows != shown_rows_) {
      send(LVM_SETITEMCOUNT, static_cast<WPARAM>(rows), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
      fit_columns();
    }
    shown_rows_ = rows;
    show_order();
  }
  if (states_changed || selected_row() != 0) show_selection();
  if (changes.has(Change::kItems) || states_changed || changes.has(Change::kRefresh)) {
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
    item.iImage = is_there ? picture_of(row) : -1;
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
  ++clicks_to_come_;
  host().act([this, row] {
    --clicks_to_come_;
    list_.click_row(row);
  });
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
    case WM_NOTIFY: {
      const auto& header = *reinterpret_cast<const NMHDR*>(l);
      const bool is_drawn = host().theme().high_contrast &&
                            header.code == static_cast<UINT>(NM_CUSTOMDRAW) &&
                            header.hwndFrom == reinterpret_cast<HWND>(send(LVM_GETHEADER));
      if (!is_drawn) return std::nullopt;
      return draw_header(*reinterpret_cast<const NMCUSTOMDRAW*>(l));
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
      fit_columns();
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
  // Ctrl and a click take the selection away, of which the model knows nothing.
  if ((change.uOldState & LVIS_SELECTED) == 0) return;
  host().act([this] {
    if (selected_row() == 0) changed(list_, Change::kItemState);
  });
}

std::optional<LRESULT> ListBinding::notified(NMHDR& header) {
  if (header.code == LVN_GETDISPINFOW) {
    answer(reinterpret_cast<NMLVDISPINFOW&>(header).item);
    return 0;
  }
  if (header.code == static_cast<UINT>(NM_CUSTOMDRAW)) {
    return draw_row(reinterpret_cast<const NMLVCUSTOMDRAW&>(header));
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
