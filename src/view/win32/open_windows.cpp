#include "view/win32/open_windows.h"

#include <cstddef>
#include <utility>

#include "view/win32/form_window.h"
#include "view/win32/look/layouts.h"

namespace quillvane {

OpenWindows::OpenWindows(std::function<bool()> ended) : ended_(std::move(ended)) {}

OpenWindows::~OpenWindows() = default;

std::shared_ptr<void> OpenWindows::open(Window& model) {
  const WindowLayout* layout = find_layout(model.name());
  if (layout == nullptr) return nullptr;
  const HWND owner = windows_.empty() ? nullptr : windows_.back()->window();
  windows_.push_back(std::make_unique<FormWindow>(model, *layout, owner, ended_));
  return {windows_.back().get(), [this](const void* opened) {
            std::erase_if(windows_,
                          [opened](const auto& window) { return window.get() == opened; });
          }};
}

bool OpenWindows::take_key(MSG& message) {
  // By number: what the key does may open further windows.
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    if (windows_[i]->take_key(message)) return true;
  }
  return false;
}

}  // namespace quillvane
