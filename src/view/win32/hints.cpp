#include "view/win32/hints.h"

#include <commctrl.h>

namespace quillvane {

Hints::~Hints() {
  if (window_ != nullptr) DestroyWindow(window_);
}

void Hints::add(HWND parent, HWND control, std::wstring text) {
  if (window_ == nullptr) {
    window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                              WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0, parent, nullptr,
                              GetModuleHandleW(nullptr), nullptr);
  }
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;  // which every version of the controls takes
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = parent;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = text.data();
  SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace quillvane
