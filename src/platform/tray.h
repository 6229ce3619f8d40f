// The notification area beside the system's clock.
#pragma once

#include <functional>
#include <string>

namespace quillvane {

class Tray {
 public:
  virtual ~Tray() = default;

  // Shows the program's icon; `double_click` is called from the message loop.
  virtual void add(const std::string& tip, std::function<void()> double_click) = 0;
  virtual void modify(const std::string& tip) = 0;
  virtual void remove() = 0;
};

}  // namespace quillvane
