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

  // A control by its text, which is its accessible name; null when there is none.
  [[nodiscard]] HWND control(std::string_view text) const;
  [[nodiscard]] HWND control_of_class(const wchar_t* window_class) const;
  [[nodiscard]] std::vector<HWND> controls() const;
  // The text of the first control whose text begins so; empty when there is none.
  [[nodiscard]] std::string text_beginning(std::string_view begin) const;
  [[nodiscard]] bool is_enabled(std::string_view text) const;
  void click(std::string_view text) const;
  // Another window of the program by its title: a message box. Null when there is none.
  [[nodiscard]] HWND box(std::string_view title) const;
  [[nodiscard]] std::string box_text(HWND box) const;

  // The tree, in the order in which it shows.
  [[nodiscard]] HWND tree() const { return control("Categories"); }
  [[nodiscard]] std::vector<ScreenNode> nodes() const;
  [[nodiscard]] RECT node_area(const ScreenNode& node) const;  // of its text, on the screen
  void click_node(std::string_view begin) const;
  void tick_node(std::string_view begin) const;

  // Lists.
  [[nodiscard]] int rows(HWND list) const;
  [[nodiscard]] std::string row_text(HWND list, int row, int column) const;  // rows from 0
  [[nodiscard]] bool row_ticked(HWND list, int row) const;
  [[nodiscard]] RECT row_area(HWND list, int row) const;  // on the screen
  [[nodiscard]] std::vector<std::string> row_texts(HWND list, int column) const;

  // The tool bar's buttons, from 1.
  [[nodiscard]] bool tool_enabled(int button) const;
  [[nodiscard]] bool tool_hidden(int button) const;
  void click_tool(int button) const;

 private:
  [[nodiscard]] ScreenNode node_of(HTREEITEM item) const;
  [[nodiscard]] ScreenNode node_beginning(std::string_view begin) const;
  void collect(HTREEITEM item, std::vector<ScreenNode>& nodes) const;

  FileHandle process_;
  DWORD id_ = 0;
  HWND window_ = nullptr;
};

// The middle of an area.
[[nodiscard]] POINT middle(const RECT& area);
[[nodiscard]] std::string text_of(HWND window);
[[nodiscard]] RECT area_of(HWND window);

}  // namespace quillvane
