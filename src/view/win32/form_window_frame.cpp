// The window's edges and its title bar.
#include <windowsx.h>

#include <algorithm>

#include "forms/buttons.h"
#include "platform/win32/wide_text.h"
#include "view/win32/form_window.h"
#include "view/win32/screen.h"

namespace quillvane {

namespace {

constexpr int kEdge = 6;  // by which the window is made larger and smaller
constexpr int kTitlePicture = 20;
constexpr int kTitleIndent = 10;
constexpr int kTitlePoints = 10;
constexpr int kTextPoints = 9;
constexpr WORD kProgramIcon = 1;

}  // namespace

// In the middle of the screen, and never larger than it.
RECT FormWindow::first_place() const {
  const RECT area = work_area(owner_);
  const int width = std::min<int>(scaled(layout_.width, dpi_), area.right - area.left);
  const int height = std::min<int>(scaled(layout_.height, dpi_), area.bottom - area.top);
  const int left = area.left + (area.right - area.left - width) / 2;
  const int top = area.top + (area.bottom - area.top - height) / 2;
  return {left, top, left + width, top + height};
}

std::string FormWindow::title() const {
  const auto* label = dynamic_cast<const Clickable*>(model_.find(layout_.title));
  return label != nullptr ? label->caption() : model_.caption();
}

// That of the label which it shows, a little larger.
FontOwner FormWindow::title_font() const {
  const Control* label = layout_.title.empty() ? nullptr : model_.find(layout_.title);
  if (label == nullptr || !label->font()) return make_font(kTitlePoints, FW_SEMIBOLD, dpi_);
  Font font = *label->font();
  font.size_points += kTitlePoints - kTextPoints;
  return make_font(font, FW_SEMIBOLD, dpi_);
}

void FormWindow::show_window() {
  if (is_topmost_ != model_.topmost()) {
    is_topmost_ = model_.topmost();
    SetWindowPos(window_, is_topmost_ ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return;  // nothing else has changed with it
  }
  if (!model_.visible() || model_.state() == WindowState::kMinimised) {
    // Before it hides: else Windows would look for another program's window to be the active one.
    free_owner();
    ShowWindow(window_, SW_HIDE);
    return;
  }
  if (owner_ != nullptr) EnableWindow(owner_, FALSE);
  ShowWindow(window_, SW_SHOWNORMAL);
  SetForegroundWindow(window_);
}

void FormWindow::free_owner() {
  if (owner_ == nullptr) return;
  EnableWindow(owner_, TRUE);
  if (GetActiveWindow() == window_) SetActiveWindow(owner_);
}

void FormWindow::limit_size(MINMAXINFO& limits) const {
  const RECT area = work_area(window_);
  limits.ptMinTrackSize.x =
      std::min<LONG>(scaled(layout_.least_width, dpi_), area.right - area.left);
  limits.ptMinTrackSize.y =
      std::min<LONG>(scaled(layout_.least_height, dpi_), area.bottom - area.top);
}

LRESULT FormWindow::part_at(POINT place) const {
  RECT window{};
  GetWindowRect(window_, &window);
  const int edge = layout_.can_be_sized() ? scaled(kEdge, dpi_) : 0;
  const bool left = place.x < window.left + edge;
  const bool right = place.x >= window.right - edge;
  const bool top = place.y < window.top + edge;
  const bool bottom = place.y >= window.bottom - edge;
  if (top) return left ? HTTOPLEFT : right ? HTTOPRIGHT : HTTOP;
  if (bottom) return left ? HTBOTTOMLEFT : right ? HTBOTTOMRIGHT : HTBOTTOM;
  if (left) return HTLEFT;
  if (right) return HTRIGHT;
  const int title = scaled(layout_.rows.front().length, dpi_);
  return place.y < window.top + title ? HTCAPTION : HTCLIENT;
}

void FormWindow::paint() {
  const PaintScope paint(window_);
  RECT area{};
  GetClientRect(window_, &area);
  const int height = scaled(layout_.rows.front().length, dpi_);
  RECT page = area;
  page.top = height;
  fill(paint.dc(), page, theme_.page);
  frame(paint.dc(), area, theme_.high_contrast ? theme_.border : theme_.title);
  RECT bar{0, 0, area.right, height};
  fill(paint.dc(), bar, theme_.title);

  const int size = scaled(kTitlePicture, dpi_);
  const int indent = scaled(kTitleIndent, dpi_);
  const auto icon =
      static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kProgramIcon),
                                    IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
  const IconOwner owner(icon);
  if (icon != nullptr) {
    DrawIconEx(paint.dc(), indent, (height - size) / 2, icon, size, size, 0, nullptr, DI_NORMAL);
  }
  const FontOwner font = title_font();
  const Selected selected(paint.dc(), font.get());
  SetBkMode(paint.dc(), TRANSPARENT);
  SetTextColor(paint.dc(), theme_.title_text);
  bar.left = indent + size + indent;
  DrawTextW(paint.dc(), widen(title()).c_str(), -1, &bar,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace quillvane
