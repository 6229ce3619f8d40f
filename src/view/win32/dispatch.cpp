#include "view/win32/dispatch.h"

namespace quillvane {

void dispatch_waiting(HWND window, UINT first, UINT last, const std::function<bool(MSG&)>& take) {
  MSG message;
  while (PeekMessageW(&message, window, first, last, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // It comes whatever is asked for; it is for the outermost loop.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (take && take(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace quillvane
