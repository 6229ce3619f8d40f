#include "view/win32/open_windows.h"

#include <cstddef>
#include <utility>

#include "platform/win32/wide_text.h"
#include "platform/win32/win32_tray.h"
#include "view/win32/dispatch.h"
#include "view/win32/form_window.h"
#include "view/win32/look/layouts.h"

namespace quillvane {

OpenWindows::OpenWindows(std::function<bool()> ended) : ended_(std::move(ended)) {}

OpenWindows::~OpenWindows() = default;

// Before the one that the user works in, else before the one that was opened last.
std::shared_ptr<void> OpenWindows::open(Window& model) {
  HWND owner = windows_.empty() ? nullptr : windows_.back()->window();
  for (const auto& window : windows_) {
    if (window->window() == GetActiveWindow()) owner = window->window();
  }
  return open_before(model, owner);
}

std::shared_ptr<void> OpenWindows::open_beside(Window& model) {
  return open_before(model, nullptr);
}

std::shared_ptr<void> OpenWindows::open_before(Window& model, HWND owner) {
  const WindowLayout* layout = find_layout(model.name());
  if (layout == nullptr) return nullptr;
  windows_.push_back(std::make_unique<FormWindow>(model, *layout, owner, ended_));
  return {windows_.back().get(), [this](const void* opened) {
            std::erase_if(windows_,
                          [opened](const auto& window) { return window.get() == opened; });
          }};
}

// Other windows of this thread are hints, which paint and go by timers, and the tray's, whose
// double click brings a minimised window back. What else waits for them has to do with the program.
bool OpenWindows::show_reading(const TreeProgress& progress) {
  const std::wstring folder = widen(progress.folder);
  bool goes_on = true;
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    goes_on = windows_[i]->serve_reading(folder) && goes_on;
  }
  for (const UINT message : {UINT{WM_PAINT}, UINT{WM_TIMER}, kTrayMessage}) {
    dispatch_waiting(nullptr, message, message);
  }
  return goes_on;
}

bool OpenWindows::take_key(MSG& message) {
  // By number: what the key does may open further windows.
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    if (windows_[i]->take_key(message)) return true;
  }
  return false;
}

}  // namespace quillvane
