#include "view/win32/toolbar_binding.h"

#include <commctrl.h>

#include <string>
#include <vector>

#include "platform/win32/wide_text.h"
#include "view/win32/look/arrange.h"

namespace quillvane {

namespace {

constexpr int kPictureSize = 24;
constexpr int kButtonSize = 38;

// What the table says of a button; empty for none.
std::wstring hint_of(const WindowLayout& layout, int number) {
  for (const ToolbarHint& hint : layout.hints) {
    if (hint.button == number) return widen(hint.text);
  }
  return {};
}

}  // namespace

ToolbarBinding::ToolbarBinding(ViewHost& host, Toolbar& bar, const ControlPlace& place)
    : ControlView(host, bar, place), bar_(bar) {
  create(TOOLBARCLASSNAMEW, WS_TABSTOP | TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS |
                                CCS_NODIVIDER | CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NOMOVEY);
  send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
  // Texts are there for screen readers and as hints; none is drawn.
  send(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS | TBSTYLE_EX_DOUBLEBUFFER);
  restyle();
  add_buttons();
}

void ToolbarBinding::restyle() {
  ControlView::restyle();
  const int size = scaled(kPictureSize, host().dpi());
  const Theme& theme = host().theme();
  images_ = host().pictures().list(place().picture, size);
  gray_images_ = host().pictures().list(
      place().picture, size, theme.high_contrast ? theme.disabled_text : Pictures::kPale);
  send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images_.get()));
  send(TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(gray_images_.get()));
  const int button = scaled(kButtonSize, host().dpi());
  send(TB_SETBUTTONSIZE, 0, MAKELPARAM(button, button));
}

void ToolbarBinding::add_buttons() {
  for (int number = 1; number <= bar_.count(); ++number) {
    const ToolbarButton& model = *bar_.button(number);
    TBBUTTON button{};
    button.idCommand = kFirstCommand + number;
    button.fsStyle = model.separator ? BTNS_SEP : BTNS_BUTTON;
    button.iBitmap = model.separator ? 0 : model.image - 1;
    const std::wstring hint = hint_of(host().layout(), number);
    if (!hint.empty()) button.iString = reinterpret_cast<INT_PTR>(hint.c_str());
    send(TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
  }
}

void ToolbarBinding::show_states() {
  for (int number = 1; number <= bar_.count(); ++number) {
    const ToolbarButton& model = *bar_.button(number);
    const auto command = static_cast<WPARAM>(kFirstCommand + number);
    const bool enabled = bar_.enabled() && model.enabled;
    const LRESULT state = send(TB_GETSTATE, command);
    LRESULT wanted = state & ~(TBSTATE_ENABLED | TBSTATE_HIDDEN);
    if (enabled) wanted |= TBSTATE_ENABLED;
    if (!model.visible) wanted |= TBSTATE_HIDDEN;
    if (wanted != state) send(TB_SETSTATE, command, wanted);
  }
}

void ToolbarBinding::show_changes(const Changes& /*changes*/) { show_states(); }

int ToolbarBinding::wanted_width() const {
  SIZE size{};
  send(TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&size));
  return size.cx;
}

void ToolbarBinding::click(int number) {
  const ToolbarButton* button = bar_.button(number);
  const bool is_on = bar_.enabled() && button != nullptr && button->enabled;
  const auto meanwhile =
      is_on ? host().layout().while_reading(place().name, number) : WhileReading::kWaits;
  host().act([this, number] { bar_.click_button(number); }, meanwhile);
}

void ToolbarBinding::commanded(int code) { click(code - kFirstCommand); }

bool ToolbarBinding::press() {
  const auto hot = static_cast<int>(send(TB_GETHOTITEM));
  if (hot >= 0) click(hot + 1);
  return hot >= 0;
}

void ToolbarBinding::move_hot(int step) {
  auto item = static_cast<int>(send(TB_GETHOTITEM));
  if (item < 0 && step < 0) item = bar_.count();
  for (item += step; item >= 0 && item < bar_.count(); item += step) {
    const ToolbarButton& button = *bar_.button(item + 1);
    if (button.separator || !button.visible || !button.enabled) continue;
    send(TB_SETHOTITEM, static_cast<WPARAM>(item));
    return;
  }
}

std::optional<LRESULT> ToolbarBinding::filter(UINT message, WPARAM w, LPARAM /*l*/) {
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS;
    case WM_SETFOCUS:
      if (send(TB_GETHOTITEM) < 0) move_hot(1);
      return 0;
    case WM_KILLFOCUS:
      send(TB_SETHOTITEM, static_cast<WPARAM>(-1));
      return 0;
    case WM_KEYDOWN:
      if (w == VK_LEFT || w == VK_UP) move_hot(-1);
      if (w == VK_RIGHT || w == VK_DOWN) move_hot(1);
      if (w == VK_SPACE) press();
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> ToolbarBinding::notified(NMHDR& header) {
  if (header.code != static_cast<UINT>(NM_CUSTOMDRAW)) return std::nullopt;
  auto& drawing = reinterpret_cast<NMTBCUSTOMDRAW&>(header);
  if (drawing.nmcd.dwDrawStage != CDDS_PREERASE && drawing.nmcd.dwDrawStage != CDDS_PREPAINT) {
    return CDRF_DODEFAULT;
  }
  const RECT area = client_area();
  fill(drawing.nmcd.hdc, area, host().theme().page);
  return drawing.nmcd.dwDrawStage == CDDS_PREERASE ? CDRF_SKIPDEFAULT : CDRF_DODEFAULT;
}

}  // namespace quillvane
