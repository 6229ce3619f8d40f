// The notification area beside the system's clock.
#pragma once

#include <functional>
#include <string>

namespace quillvane {

class Tray {
 public:
  virtual ~Tray() = default;

  // Shows the program's icon once more, for `owner`, which tells it from those of others. `mouse`
  // is called from the message loop with what the mouse does to it, as Windows numbers it.
  virtual void add(const void* owner, const std::string& tip,
                   std::function<void(int message)> mouse) = 0;
  // Nothing happens when `owner` has none.
  virtual void modify(const void* owner, const std::string& tip) = 0;
  virtual void remove(const void* owner) = 0;
};

}  // namespace quillvane
