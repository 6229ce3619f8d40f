// Strips of tabs, of Windows' own control.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string_view>
#include <vector>

#include "view/win32/control_view.h"
#include "view/win32/look/arrange.h"

namespace quillvane {

// --- For whoever makes a strip. `height` is in units of the tables.
void add_tab(HWND strip, std::size_t number, std::string_view caption);
void style_tabs(HWND strip, const ViewHost& host, int height);
// Controls stand below the strip and not in its pane, of which nothing shall show. `height` is in
// pixels.
void cut_to_tabs(HWND strip, int height);

// Tabs of the view's own.
class TabStrip {
 public:
  // `says` is what a screen reader says of it.
  TabStrip(ViewHost& host, const wchar_t* says, std::vector<std::string_view> captions, int height);
  ~TabStrip();
  TabStrip(const TabStrip&) = delete;
  TabStrip& operator=(const TabStrip&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  // Of the chosen tab.
  [[nodiscard]] std::string_view chosen() const;
  [[nodiscard]] int chosen_number() const;  // from 0
  void choose(int number);
  void choose_last() { choose(static_cast<int>(captions_.size()) - 1); }
  void restyle();
  void move(const Box& box);

 private:
  ViewHost& host_;
  HWND window_ = nullptr;
  std::vector<std::string_view> captions_;
  int height_;
};

// The captions of the controls of a window that share a cell.
[[nodiscard]] std::vector<std::string_view> tabs_of(const WindowLayout& layout);

}  // namespace quillvane
