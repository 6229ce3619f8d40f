#include "view/win32/popup_menu.h"

#include "platform/win32/wide_text.h"

namespace quillvane {

MenuEntry* choose_from(const Menu& menu, HWND owner, POINT place) {
  const HMENU shown = CreatePopupMenu();
  UINT number = 0;
  for (const MenuEntry* entry : menu.entries()) {
    ++number;
    if (!entry->visible()) continue;
    AppendMenuW(shown, MF_STRING | (entry->enabled() ? MF_ENABLED : MF_GRAYED), number,
                widen(entry->caption()).c_str());
  }
  const auto chosen = static_cast<UINT>(TrackPopupMenu(
      shown, TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_LEFTALIGN, place.x, place.y, 0, owner, nullptr));
  DestroyMenu(shown);
  return chosen == 0 ? nullptr : menu.entries()[chosen - 1];
}

}  // namespace quillvane
