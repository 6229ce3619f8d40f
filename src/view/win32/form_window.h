// A window of the program on the screen: borderless, with a title bar of its own, and with the
// controls that its table names.
#pragma once

#include <windows.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/window.h"
#include "view/win32/choice_list.h"
#include "view/win32/control_view.h"
#include "view/win32/hints.h"
#include "view/win32/look/arrange.h"
#include "view/win32/page_tabs.h"
#include "view/win32/tab_strip.h"

namespace quillvane {

inline constexpr wchar_t kFormWindowClass[] = L"QuillvaneForm";

class FormWindow final : public ViewHost, private ControlObserver {
 public:
  // `model` must outlive it; so must the pictures' library. `owner` is the window before which it
  // stands and which takes no acts of the user while it is there; null: none. `ended` tells whether
  // the program has ended itself: the window is gone from the screen then.
  FormWindow(Window& model, const WindowLayout& layout, HWND owner, std::function<bool()> ended);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  // A message of the loop before Windows dispatches it: keys that go through the controls. True:
  // done with.
  [[nodiscard]] bool take_key(MSG& message);

  // Shows the folder that is being read, paints, and takes what the user does; acts wait in their
  // row meanwhile. False: one of them is to end the reading.
  [[nodiscard]] bool serve_reading(const std::wstring& folder);

  [[nodiscard]] HWND window() const override { return window_; }
  [[nodiscard]] const WindowLayout& layout() const override { return layout_; }
  [[nodiscard]] const Theme& theme() const override { return theme_; }
  [[nodiscard]] int dpi() const override { return dpi_; }
  [[nodiscard]] HFONT font() const override { return font_.get(); }
  [[nodiscard]] HFONT bold_font() const override { return bold_font_.get(); }
  [[nodiscard]] Pictures& pictures() override { return pictures_; }
  using ViewHost::act;
  void act(std::function<void()> act, WhileReading meanwhile) override;
  [[nodiscard]] bool confirms(std::string_view control) override;
  void needs_refresh() override;
  void show_menu(const Menu& menu, POINT place) override;

 private:
  struct UserAct {
    std::function<void()> run;
    WhileReading meanwhile;
  };

  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  void create();
  LRESULT handle(UINT message, WPARAM w, LPARAM l);
  std::optional<LRESULT> handle_frame(UINT message, WPARAM w, LPARAM l);
  std::optional<LRESULT> handle_controls(UINT message, WPARAM w, LPARAM l);
  std::optional<LRESULT> handle_looks(UINT message, WPARAM w, LPARAM l);

  // form_window_frame.cpp: the window's edges and title bar.
  [[nodiscard]] LRESULT part_at(POINT place) const;
  void paint();
  void limit_size(MINMAXINFO& limits) const;
  [[nodiscard]] RECT first_place() const;
  [[nodiscard]] std::string title() const;
  [[nodiscard]] FontOwner title_font() const;
  void show_window();  // as the model tells
  void free_owner();

  // form_window_controls.cpp
  void make_controls();
  void make_controls_of(const PageGrid* page, std::span<const ControlPlace> places);
  void watch(std::string_view name);
  [[nodiscard]] ControlView* view_of(HWND window) const;
  [[nodiscard]] std::vector<int> wanted_widths() const;
  void arrange_controls();
  void place_controls(const Arrangement& places, std::size_t first);
  [[nodiscard]] bool is_shown(std::size_t view) const;
  [[nodiscard]] bool is_page_shown(std::string_view page) const;
  void show_side();  // the one of two jobs that the models tell
  void show_controls();
  [[nodiscard]] bool takes_keys(HWND control) const;
  [[nodiscard]] HWND first_focus() const;  // null: nothing takes keys
  void note_focus();
  void keep_focus();

  // A frame has been shown or hidden, and with it the controls of its page; or the title changed.
  void changed(Control& control, Change what) override;
  void run_acts();
  void refresh();
  void restyle();

  // form_window_keys.cpp
  void click(std::string_view name);
  [[nodiscard]] bool is_out_of_sight(std::string_view name) const;
  bool click_by_key(WPARAM key);
  bool press_focused_or_default(HWND focused);

  Window& model_;
  const WindowLayout& layout_;
  HWND owner_;
  std::function<bool()> ended_;
  HWND window_ = nullptr;
  HWND last_focus_ = nullptr;  // the control that had it when the user last did something
  int dpi_ = kPlainDpi;
  Theme theme_;
  FontOwner font_;
  FontOwner bold_font_;
  Pictures pictures_;
  Hints hints_;
  std::unique_ptr<TabStrip> tabs_;
  std::unique_ptr<PageTabs> pages_;  // null where the window does one job
  std::unique_ptr<ChoiceList> choices_;
  std::vector<int> arranged_widths_;  // what the captions needed when the controls were placed
  // As in the tables: the window's own controls, then those of its pages.
  std::vector<std::unique_ptr<ControlView>> views_;
  std::vector<const PageGrid*> page_of_;  // of each view; null: the window's own
  std::deque<UserAct> acts_;
  bool is_reading_ = false;         // inside serve_reading
  std::vector<Control*> observed_;  // frames that the table names, and the title's label
  std::uint64_t refreshed_ms_ = 0;
  bool refresh_is_due_ = false;
  bool shows_own_side_ = true;  // and not a page
  bool is_topmost_ = false;
};

}  // namespace quillvane
