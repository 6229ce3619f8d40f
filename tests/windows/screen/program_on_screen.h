// The program, running as a process of its own, seen through the windows and controls that it
// shows.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/system_handle.h"

namespace quillvane {

// Asks until `holds` answers true; a failure that names `what` when it does not for very long.
[[nodiscard]] bool eventually(const std::string& what, const std::function<bool()>& holds);

// Its executable, as it was built.
[[nodiscard]] std::wstring cleaner_program();

// A node of the tree as the control shows it.
struct ScreenNode {
  std::string text;
  bool bold = false;
  bool ticked = false;
  bool selected = false;
  HTREEITEM item = nullptr;
};

// The middle of an area.
[[nodiscard]] POINT middle(const RECT& area);
[[nodiscard]] std::string text_of(HWND window);
[[nodiscard]] RECT area_of(HWND window);

// Controls of a window. One is known by its text, which is its accessible name, the one that shows
// first; null when there is none of it.
[[nodiscard]] std::vector<HWND> controls_in(HWND window);
[[nodiscard]] HWND control_in(HWND window, std::string_view text);
[[nodiscard]] HWND control_of_class(HWND window, const wchar_t* window_class);
[[nodiscard]] bool is_enabled_in(HWND window, std::string_view text);
void click_in(HWND window, std::string_view text);

class ProgramOnScreen {
 public:
  // Starts it and waits for its window.
  explicit ProgramOnScreen(const std::wstring& program = cleaner_program(),
                           const std::wstring& switches = L"");
  // Closes the window if it is there still; ends the process if it then stays.
  ~ProgramOnScreen();
  ProgramOnScreen(const ProgramOnScreen&) = delete;
  ProgramOnScreen& operator=(const ProgramOnScreen&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] DWORD id() const { return id_; }
  [[nodiscard]] RECT area() const;
  // Waits until the process has ended; its exit code, or STILL_ACTIVE when it has not.
  [[nodiscard]] DWORD exit_code() const;

  // Controls of the main window; see the functions below.
  [[nodiscard]] HWND control(std::string_view text) const { return control_in(window_, text); }
  [[nodiscard]] std::vector<HWND> controls() const { return controls_in(window_); }
  // The text of the first control whose text begins so; empty when there is none.
  [[nodiscard]] std::string text_beginning(std::string_view begin) const;
  [[nodiscard]] bool is_enabled(std::string_view text) const {
    return is_enabled_in(window_, text);
  }
  void click(std::string_view text) const { click_in(window_, text); }
  // The window of the program's own that waits for the user, by its title; null when there is none.
  [[nodiscard]] HWND form(std::string_view title) const;
  // Another window of the program by its title: a message box. Null when there is none.
  [[nodiscard]] HWND box(std::string_view title) const;
  [[nodiscard]] std::string box_text(HWND box) const;

  // The tree, in the order in which it shows.
  [[nodiscard]] HWND tree() const { return control("Categories"); }
  [[nodiscard]] std::vector<ScreenNode> nodes() const;
  [[nodiscard]] RECT node_area(const ScreenNode& node) const;  // of its text, on the screen
  void click_node(std::string_view begin) const;
  void tick_node(std::string_view begin) const;
  // Goes down any tree from its first node, by parts of the nodes' texts, and selects the last one.
  void choose_in(HWND tree, const std::vector<std::string>& names) const;

  // Lists.
  [[nodiscard]] int rows(HWND list) const;
  [[nodiscard]] std::string row_text(HWND list, int row, int column) const;  // rows from 0
  [[nodiscard]] bool row_ticked(HWND list, int row) const;
  [[nodiscard]] bool row_selected(HWND list, int row) const;
  [[nodiscard]] RECT row_area(HWND list, int row) const;  // on the screen
  [[nodiscard]] std::vector<std::string> row_texts(HWND list, int column) const;

  // Tabs, from 0.
  void click_tab(HWND strip, int number) const;

  // The tool bar's buttons, from 1.
  [[nodiscard]] bool tool_enabled(int button) const;
  [[nodiscard]] bool tool_hidden(int button) const;
  void click_tool(int button) const;

 private:
  [[nodiscard]] ScreenNode node_of(HWND tree, HTREEITEM item) const;
  [[nodiscard]] ScreenNode node_beginning(std::string_view begin) const;
  void collect(HTREEITEM item, std::vector<ScreenNode>& nodes) const;

  FileHandle process_;
  DWORD id_ = 0;
  HWND window_ = nullptr;
};

// Waits for a message box or another dialog of Windows; its window.
[[nodiscard]] HWND await_box(const ProgramOnScreen& program, const std::string& title);
// Clicks a button of it and waits for its end.
void answer_box(HWND box, const std::string& button);

}  // namespace quillvane
