// The list's columns, their header, and the pictures of its rows.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/win32/wide_text.h"
#include "view/win32/list_binding.h"
#include "view/win32/look/arrange.h"
#include "view/win32/tick_boxes.h"

namespace quillvane {

namespace {

constexpr int kPictureSize = 16;
constexpr int kPictureBeside = 3;
constexpr int kPictureAbove = 2;
constexpr int kShortColumn = 72;
constexpr int kNumberColumn = 100;
constexpr int kTextColumn = 160;  // dates
constexpr int kSpaceColumn = 230;
constexpr int kLeastColumn = 120;  // of the one that takes what the others leave
constexpr int kHeaderHeight = 24;
constexpr int kHeaderBeside = 6;  // of a caption
constexpr int kTwipsOfUnit = 15;

constexpr std::string_view kRowSet = "row-";
// Of the pictures of that set; a row's picture is set by one of them.
constexpr std::string_view kRowKeys[] = {"tmp",  "gid",   "bak", "0by", "oth", "log", "fol",
                                         "file", "drive", "t",   "te",  "f",   "ss"};

int row_picture(std::string_view key) {
  const auto* const found = std::find(std::begin(kRowKeys), std::end(kRowKeys), key);
  return found == std::end(kRowKeys) ? -1 : static_cast<int>(found - std::begin(kRowKeys));
}

std::vector<std::string> row_pictures() {
  std::vector<std::string> names;
  for (const std::string_view key : kRowKeys) {
    names.push_back(std::string(kRowSet) + std::string(key));
  }
  return names;
}

int width_of(char look) {
  if (look == 's') return kShortColumn;
  if (look == 'n') return kNumberColumn;
  return look == 'b' ? kSpaceColumn : kTextColumn;
}

}  // namespace

// Files with their sizes and dates, or texts of which the last one is long.
char ListBinding::look_of(int column) const {
  const std::string_view told = place().column_looks;
  if (column < static_cast<int>(told.size())) return told[static_cast<std::size_t>(column)];
  const int last = static_cast<int>(list_.columns().size()) - 1;
  if (!has_boxes()) return column == last ? 'w' : 't';
  if (column == 0) return 'w';
  return column == last ? 't' : 'n';
}

int ListBinding::picture_of(int row) const {
  const auto icon = list_.icon(row);
  if (place().picture.starts_with(kRowSet)) {
    const int picture = icon ? row_picture(*icon) : -1;
    return picture >= 0 ? picture : row_picture(place().picture.substr(kRowSet.size()));
  }
  // The number is that of the category's picture; entries of the user's own share the last one.
  const int number = icon ? std::atoi(icon->c_str()) : 0;
  return std::min(number, image_count_) - 1;
}

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
  const int beside = scaled(kPictureBeside, host().dpi());
  if (place().picture.starts_with(kRowSet)) {
    images_ = host().pictures().list_of(row_pictures(), size, CLR_NONE, beside, above);
  } else if (has_pictures()) {
    images_ = host().pictures().list(place().picture, size, CLR_NONE, beside, above);
  } else {
    images_.reset(ImageList_Create(1, size + 2 * above, ILC_COLOR32, 0, 1));
  }
  if (has_boxes()) {
    ImageListOwner boxes = tick_boxes(host(), size + 2 * above, 0);
    send(LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(boxes.get()));
    boxes_ = std::move(boxes);
  }
  image_count_ = ImageList_GetImageCount(images_.get());
  send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images_.get()));
}

// What the header needs for the caption of a column.
int ListBinding::caption_width(int column) const {
  const auto header = reinterpret_cast<HWND>(send(LVM_GETHEADER));
  const auto font = reinterpret_cast<HFONT>(SendMessageW(header, WM_GETFONT, 0, 0));
  const std::wstring caption = widen(list_.columns()[static_cast<std::size_t>(column)]);
  return text_width(font, caption.c_str()) + 2 * scaled(kHeaderBeside, host().dpi());
}

void ListBinding::set_widths() {
  const int count = static_cast<int>(list_.columns().size());
  for (int column = 0; column < count; ++column) {
    const int told = list_.column_width(column + 1) / kTwipsOfUnit;
    const int usual = scaled(told != 0 ? told : width_of(look_of(column)), host().dpi());
    send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), std::max(usual, caption_width(column)));
  }
  fit_columns();
}

void ListBinding::make_columns() {
  for (std::size_t i = 0; i < list_.columns().size(); ++i) {
    std::wstring text = widen(list_.columns()[i]);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
    column.fmt = look_of(static_cast<int>(i)) == 'n' ? LVCFMT_RIGHT : LVCFMT_LEFT;
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
  set_widths();
}

// One column takes what the others leave.
void ListBinding::fit_columns() {
  const std::size_t count = list_.columns().size();
  std::size_t wide = 0;
  while (wide + 1 < count && look_of(static_cast<int>(wide)) != 'w') ++wide;
  int others = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (i != wide) others += static_cast<int>(send(LVM_GETCOLUMNWIDTH, i));
  }
  const int room = client_area().right - others;
  const int least =
      std::max(scaled(kLeastColumn, host().dpi()), caption_width(static_cast<int>(wide)));
  const int width = std::max(room, least);
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
  const UINT side = look_of(column) == 'n' ? DT_RIGHT : DT_LEFT;
  DrawTextW(drawing.hdc, text.c_str(), -1, &area,
            side | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  return CDRF_SKIPDEFAULT;
}

}  // namespace quillvane
