// How a window looks, as data: a grid, and for each control its place in it.
//
// A new window on the screen is a new table of this kind, not new code. Lengths are in units of
// 1/96 inch; the view turns them into pixels of the screen that the window stands on.
#pragma once

#include <span>
#include <string_view>

namespace quillvane {

// What draws a control on the screen.
enum class ControlKind {
  kToolbar,
  kTree,
  kList,
  kButton,       // a command with its caption
  kMainButton,   // the command of the page
  kTitleButton,  // a picture in the title bar
  kLabel,
  kPathLine,  // a line of text that is shortened in its middle
  kMark,      // a small square of colour
  kPicture,
  kProgress,
  kAnimation,
};

// How a control takes its place in its cell.
enum class Pack {
  kFill,       // what the packed ones leave
  kFromLeft,   // behind those that were packed before it
  kFromRight,  // before those that were packed before it
};

struct ControlPlace {
  std::string_view name;  // of the control in its window
  ControlKind kind;
  int row;
  int column;
  int columns;  // how many columns the cell takes
  Pack pack;
  int width;  // of a packed control; one with a longer caption gets wider
  // What a screen reader says; empty: the text that the control shows.
  std::string_view accessible_name;
  // The frame whose showing it shares; empty: it stands in the window itself.
  std::string_view page;
  // Controls of one cell that have a tab share the cell and are shown in turn.
  std::string_view tab;
  std::string_view picture;  // its own, or the set that a list, tree or tool bar takes from
};

// A row or column of the grid: a fixed length, or a share of what the fixed ones leave.
struct Track {
  int length;  // with a share: the least
  int share;   // 0: fixed
};

// What a screen reader and a pointing user are told of a tool bar's button, which has no text.
struct ToolbarHint {
  int button;
  std::string_view text;
};

// A key that clicks a control wherever the focus is. `key` is Windows' number of it.
struct KeyClick {
  int key;
  std::string_view control;
};

struct WindowLayout {
  std::string_view window;
  std::span<const Track> rows;
  std::span<const Track> columns;
  std::span<const ControlPlace> controls;
  std::span<const ToolbarHint> hints;
  std::span<const KeyClick> keys;
  int margin;      // to the window's edges; row 0 is the title bar and has none
  int gap;         // between rows, columns and packed controls
  int tab_height;  // of the strip above controls that share a cell
  int width;       // at the start
  int height;
  int least_width;  // to which it can be made smaller
  int least_height;
};

}  // namespace quillvane
