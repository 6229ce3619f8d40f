// Names of controls for screen readers.
#pragma once

#include <windows.h>

#include <string>

namespace quillvane {

// Names a control. A control that shows its text gets the name as its text; for lists, trees and
// the like, whose text no reader looks at, the name is told to the service of Windows too. Without
// the service (older Windows, Wine) the text is all there is.
void name_for_readers(HWND control, const std::wstring& name);

}  // namespace quillvane
