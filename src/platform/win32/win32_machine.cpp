#include "platform/win32/win32_machine.h"

#include <windows.h>

namespace quillvane {

Win32Machine::Win32Machine() { SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX); }

}  // namespace quillvane
