// Hints that come up while the mouse rests on a control that has a picture and no text.
#pragma once

#include <windows.h>

#include <string>

namespace quillvane {

class Hints {
 public:
  Hints() = default;
  ~Hints();
  Hints(const Hints&) = delete;
  Hints& operator=(const Hints&) = delete;

  // `control` is a child of `parent`, and lives as long as it.
  void add(HWND parent, HWND control, std::wstring text);

 private:
  HWND window_ = nullptr;
};

}  // namespace quillvane
