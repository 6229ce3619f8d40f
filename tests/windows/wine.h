// Where the tests run: on Windows or through Wine, which leaves some things out.
#pragma once

#include <windows.h>

namespace quillvane {

[[nodiscard]] inline bool is_wine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace quillvane
