// A small window that asks for one line of text.
#pragma once

#include <windows.h>

#include <string>

namespace quillvane {

// What the user wrote, in UTF-8; empty when cancelled. The line begins with `preset`, all of it
// selected. `owner` takes no acts meanwhile; null: none does.
[[nodiscard]] std::string ask_for_text(HWND owner, const std::wstring& prompt,
                                       const std::wstring& title, const std::wstring& preset);

}  // namespace quillvane
