// The tabs above controls that share one cell of the window.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string_view>
#include <vector>

#include "view/win32/control_view.h"
#include "view/win32/look/arrange.h"

namespace quillvane {

class TabStrip {
 public:
  explicit TabStrip(ViewHost& host);
  ~TabStrip();
  TabStrip(const TabStrip&) = delete;
  TabStrip& operator=(const TabStrip&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  // Of the chosen tab.
  [[nodiscard]] std::string_view chosen() const;
  void restyle();
  void move(const Box& box);

 private:
  ViewHost& host_;
  HWND window_ = nullptr;
  std::vector<std::string_view> captions_;
};

}  // namespace quillvane
