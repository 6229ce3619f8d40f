#include "forms/modal_windows.h"

#include <algorithm>

#include "platform/unicode_case.h"

namespace quillvane {

void ModalWindows::show(ModalWindow& window) {
  waiting_.push_back(&window);
  {
    const auto view = attach_view ? attach_view(window) : nullptr;
    window.show();
    session_.platform.loop.serve_until([&] { return window.unloaded() || session_.ended(); });
  }
  std::erase(waiting_, &window);
  if (!window.unloaded() && !session_.ended()) session_.stop();
}

ModalWindow* ModalWindows::find(std::string_view name) const {
  const auto found =
      std::find_if(waiting_.begin(), waiting_.end(),
                   [name](const ModalWindow* window) { return same_name(window->name(), name); });
  return found == waiting_.end() ? nullptr : *found;
}

}  // namespace quillvane
