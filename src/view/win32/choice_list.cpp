#include "view/win32/choice_list.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "platform/win32/wide_text.h"
#include "view/win32/look/arrange.h"
#include "view/win32/screen.h"

namespace quillvane {

namespace {

constexpr int kItemHeight = 26;
constexpr int kLeastWidth = 170;
constexpr int kMarkSize = 16;
constexpr int kBeside = 8;  // of the mark and of the text
constexpr int kBelowTitle = 4;

}  // namespace

ChoiceList::ChoiceList(ViewHost& host, Window& model)
    : host_(host), model_(model), panel_(model.find(host.layout().choices.panel)) {
  window_ = CreateWindowExW(0, WC_LISTBOXW, widen(host.layout().choices.says).c_str(),
                            WS_CHILD | WS_BORDER | WS_TABSTOP | WS_CLIPSIBLINGS |
                                LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT,
                            0, 0, 0, 0, host.window(), nullptr, GetModuleHandleW(nullptr), nullptr);
  SetWindowSubclass(window_, procedure, 0, reinterpret_cast<DWORD_PTR>(this));
  restyle();
}

ChoiceList::~ChoiceList() {
  RemoveWindowSubclass(window_, procedure, 0);
  DestroyWindow(window_);
}

int ChoiceList::item_height() const { return scaled(kItemHeight, host_.dpi()); }

void ChoiceList::restyle() {
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(host_.font()), FALSE);
  SendMessageW(window_, LB_SETITEMHEIGHT, 0, item_height());
  InvalidateRect(window_, nullptr, TRUE);
}

void ChoiceList::fill() {
  labels_.clear();
  std::vector<std::string> captions;
  for (;;) {
    const std::string name =
        std::string(host_.layout().choices.label) + "(" + std::to_string(labels_.size()) + ")";
    auto* label = dynamic_cast<Label*>(model_.find(name));
    if (label == nullptr) break;
    labels_.push_back(label);
    captions.push_back(label->caption());
  }
  if (captions == shown_) return;
  shown_ = captions;
  SendMessageW(window_, LB_RESETCONTENT, 0, 0);
  for (const std::string& caption : shown_) {
    SendMessageW(window_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(widen(caption).c_str()));
  }
}

void ChoiceList::refresh() {
  const bool is_visible = (GetWindowLongW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
  const bool shown = panel_ != nullptr && panel_->visible();
  if (!shown) {
    if (is_visible) ShowWindow(window_, SW_HIDE);
    return;
  }
  fill();
  InvalidateRect(window_, nullptr, FALSE);
  if (is_visible) return;
  RECT area{};
  GetClientRect(host_.window(), &area);
  place(area.right);
  for (std::size_t i = 0; i < labels_.size(); ++i) {
    if (is_marked(*labels_[i])) SendMessageW(window_, LB_SETCURSEL, i, 0);
  }
  SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
  SetFocus(window_);
}

void ChoiceList::place(int window_width) {
  const int count = std::max(static_cast<int>(shown_.size()), 1);
  const int width = scaled(kLeastWidth, host_.dpi());
  const int border = 2 * GetSystemMetrics(SM_CYBORDER);
  const int left = window_width - width - scaled(host_.layout().margin, host_.dpi());
  const int top = scaled(host_.layout().rows.front().length + kBelowTitle, host_.dpi());
  MoveWindow(window_, std::max(left, 0), top, width, count * item_height() + border, TRUE);
}

bool ChoiceList::is_marked(const Label& label) const {
  const Control* mark = model_.find(host_.layout().choices.mark);
  return mark != nullptr && mark->top() == label.top();
}

// A label that nothing has coloured yet has the list's colours. In high contrast the models'
// colours do not count.
void ChoiceList::draw(const DRAWITEMSTRUCT& item) const {
  if (item.itemID >= labels_.size()) return;
  const Label& label = *labels_[item.itemID];
  const Theme& theme = host_.theme();
  const bool is_chosen = (item.itemState & ODS_SELECTED) != 0;
  const bool is_colored = label.back_color() != 0 && !theme.high_contrast;
  COLORREF back = is_colored ? shown_color(label.back_color()) : theme.list;
  if (theme.high_contrast && is_chosen) back = theme.title;
  quillvane::fill(item.hDC, item.rcItem, back);
  RECT area = item.rcItem;
  const int beside = scaled(kBeside, host_.dpi());
  const int size = scaled(kMarkSize, host_.dpi());
  area.left += beside;
  if (is_marked(label)) {
    host_.pictures().draw(item.hDC, area.left, (area.top + area.bottom - size) / 2, size,
                          "language-chosen", theme.high_contrast ? theme.list_text : CLR_NONE);
  }
  area.left += size + beside;
  const FontOwner own = label.font() ? make_font(*label.font(), FW_NORMAL, host_.dpi()) : nullptr;
  const Selected font(item.hDC, own != nullptr ? own.get() : host_.font());
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, theme.high_contrast && is_chosen ? theme.title_text
                         : is_colored                     ? readable_on(back)
                                                          : theme.list_text);
  DrawTextW(item.hDC, widen(label.caption()).c_str(), -1, &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  if (is_chosen) frame(item.hDC, item.rcItem, theme.focus);
}

void ChoiceList::choose(int item) {
  if (item < 0 || item >= static_cast<int>(labels_.size())) return;
  Label* label = labels_[static_cast<std::size_t>(item)];
  host_.act([label] { label->click(); }, WhileReading::kWaits);
}

bool ChoiceList::take_key(WPARAM key) {
  if (key == VK_RETURN || key == VK_SPACE) {
    choose(static_cast<int>(SendMessageW(window_, LB_GETCURSEL, 0, 0)));
    return true;
  }
  if (key != VK_ESCAPE) return false;
  host_.act([this] { panel_->hide(); }, WhileReading::kWaits);
  return true;
}

int ChoiceList::item_at(LPARAM place) const {
  const auto answer = static_cast<DWORD>(SendMessageW(window_, LB_ITEMFROMPOINT, 0, place));
  const bool is_outside = HIWORD(answer) != 0;
  const int item = LOWORD(answer);
  return is_outside || item >= static_cast<int>(labels_.size()) ? -1 : item;
}

// Between two labels the mouse is over the panel.
void ChoiceList::mouse_moved(LPARAM place) {
  const int item = item_at(place);
  if (item == under_mouse_) return;
  under_mouse_ = item;
  host_.act(
      [this, item] {
        if (panel_->on_mouse_move) panel_->on_mouse_move();
        if (item < 0 || item >= static_cast<int>(labels_.size())) return;
        const Label& label = *labels_[static_cast<std::size_t>(item)];
        if (label.on_mouse_move) label.on_mouse_move();
        host_.needs_refresh();
      },
      WhileReading::kActsNow);
}

LRESULT CALLBACK ChoiceList::procedure(HWND window, UINT message, WPARAM w, LPARAM l,
                                       UINT_PTR /*id*/, DWORD_PTR list) {
  auto& self = *reinterpret_cast<ChoiceList*>(list);
  if (message == WM_MOUSEMOVE) self.mouse_moved(l);
  const LRESULT answer = DefSubclassProc(window, message, w, l);
  if (message == WM_LBUTTONUP) self.choose(self.item_at(l));
  return answer;
}

}  // namespace quillvane
