// A list that opens below the title bar, to choose from what the labels of a panel say.
//
// It stands over the controls of the page. The mouse, the arrow keys and Enter choose, Escape
// closes it.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "forms/buttons.h"
#include "forms/window.h"
#include "view/win32/control_view.h"

namespace quillvane {

class ChoiceList {
 public:
  // Both must outlive it. The table of the window names the panel, its labels and the mark.
  ChoiceList(ViewHost& host, Window& model);
  ~ChoiceList();
  ChoiceList(const ChoiceList&) = delete;
  ChoiceList& operator=(const ChoiceList&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  // Shows, hides and draws what the models say now.
  void refresh();
  void restyle();
  // In a window of that width, in pixels.
  void place(int window_width);
  void draw(const DRAWITEMSTRUCT& item) const;
  // True: done with.
  bool take_key(WPARAM key);

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                    DWORD_PTR list);
  void fill();
  void choose(int item);
  void mouse_moved(LPARAM place);
  [[nodiscard]] int item_at(LPARAM place) const;  // -1: none
  [[nodiscard]] int item_height() const;
  [[nodiscard]] bool is_marked(const Label& label) const;

  ViewHost& host_;
  Window& model_;
  Control* panel_;
  HWND window_ = nullptr;
  std::vector<Label*> labels_;
  std::vector<std::string> shown_;  // the captions that the list holds
  int under_mouse_ = -1;
};

}  // namespace quillvane
