// A window that holds one control on the screen, for tests of what draws it.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <deque>
#include <functional>
#include <utility>

#include "view/win32/control_view.h"
#include "view/win32/look/form7_layout.h"
#include "view/win32/screen.h"

namespace quillvane {

class ViewStage final : public ViewHost {
 public:
  ViewStage() : font_(make_font(9, FW_NORMAL, dpi())) {
    INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
    WNDCLASSW type{};
    type.lpfnWndProc = &ViewStage::procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = L"QuillvaneViewStage";
    RegisterClassW(&type);  // fails when an earlier stage did it already
    window_ = CreateWindowExW(0, type.lpszClassName, L"", WS_POPUP, 0, 0, 400, 300, nullptr,
                              nullptr, type.hInstance, nullptr);
    EXPECT_NE(window_, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  // The control must have gone before.
  ~ViewStage() override { DestroyWindow(window_); }
  ViewStage(const ViewStage&) = delete;
  ViewStage& operator=(const ViewStage&) = delete;

  // Sends what the control tells its window on to it.
  void attach(ControlView& view) {
    view_ = &view;
    MoveWindow(view.window(), 0, 0, 400, 300, FALSE);
    view.refresh();
  }
  // Runs the user's acts that wait, and draws what they changed.
  void settle() {
    while (!acts_.empty()) {
      const auto act = std::move(acts_.front());
      acts_.pop_front();
      act();
    }
    view_->refresh();
  }

  [[nodiscard]] HWND window() const override { return window_; }
  [[nodiscard]] const WindowLayout& layout() const override { return form7_layout(); }
  [[nodiscard]] const Theme& theme() const override { return theme_; }
  [[nodiscard]] int dpi() const override { return 96; }
  [[nodiscard]] HFONT font() const override { return font_.get(); }
  [[nodiscard]] HFONT bold_font() const override { return font_.get(); }
  [[nodiscard]] Pictures& pictures() override { return pictures_; }
  void act(std::function<void()> act, WhileReading /*meanwhile*/) override {
    acts_.push_back(std::move(act));
  }
  void needs_refresh() override { ++refreshes_asked; }
  void show_menu(const Menu& menu, POINT /*place*/) override { shown_menu = &menu; }

  int refreshes_asked = 0;
  const Menu* shown_menu = nullptr;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    const auto* stage = reinterpret_cast<ViewStage*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NOTIFY && stage != nullptr && stage->view_ != nullptr) {
      if (const auto answer = stage->view_->notified(*reinterpret_cast<NMHDR*>(l))) return *answer;
    }
    if (message == WM_COMMAND && stage != nullptr && stage->view_ != nullptr) {
      stage->view_->commanded(HIWORD(w));
    }
    return DefWindowProcW(window, message, w, l);
  }

  PictureLibrary library_;
  Pictures pictures_;
  Theme theme_ = make_theme(0, system_colors(), false);
  FontOwner font_;
  HWND window_ = nullptr;
  ControlView* view_ = nullptr;
  std::deque<std::function<void()>> acts_;
};

}  // namespace quillvane
