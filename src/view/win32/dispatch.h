// Serving a part of the messages that wait for this thread, while the rest is left where it is.
#pragma once

#include <windows.h>

#include <functional>

namespace quillvane {

// Dispatches the posted messages with numbers from `first` to `last` (0 and 0: all) that wait for
// `window` and the controls in it; null: for any window. `take` sees each one first; what it takes
// is done with; an empty one takes nothing.
void dispatch_waiting(HWND window, UINT first, UINT last,
                      const std::function<bool(MSG&)>& take = nullptr);

}  // namespace quillvane
