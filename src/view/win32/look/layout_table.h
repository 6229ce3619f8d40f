// How a window looks, as data: a grid, and for each control its place in it.
//
// A new window on the screen is a new table of this kind, not new code. Lengths are in units of
// 1/96 inch; the view turns them into pixels of the screen that the window stands on.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quillvane {

// What draws a control on the screen.
enum class ControlKind {
  kToolbar,
  kTree,
  kList,         // with boxes to tick and pictures
  kPictureList,  // with pictures alone
  kPlainList,    // without
  kTabs,         // tabs of the program's own, which change what its lists hold
  kButton,       // a command with its caption
  kMainButton,   // the command of the page
  kTitleButton,  // a picture in the title bar
  kLink,         // a text that is clicked
  kLabel,
  kHeading,  // a label in bold
  kCaption,  // the view's own words before a control, whose showing they share
  kNote,     // the view's own words on a page: a heading, and below it what follows a line end
  kEdit,     // a line of text to be typed
  kCheckBox,
  kOption,     // one of a group of choices
  kPathLine,   // a line of text that is shortened in its middle
  kPathLabel,  // a label that is shortened so, and shows the folder that is being read
  kMark,       // a small square of colour
  kPicture,
  kProgress,
  kAnimation,
};

// How a control takes its place in its cell.
enum class Pack {
  kFill,       // what the packed ones leave
  kFromLeft,   // behind those that were packed before it
  kFromRight,  // before those that were packed before it
  kFromTop,    // above all others of the cell, without a gap; its width is a height
};

struct ControlPlace {
  std::string_view name;  // of the control in its window
  ControlKind kind;
  int row;
  int column;
  int columns;  // how many columns the cell takes
  Pack pack;
  int width;  // of a packed control; one with a longer caption gets wider
  // What a screen reader says; empty: the text that the control shows. A line to be typed in takes
  // the name of the label before it.
  std::string_view accessible_name;
  // The frame whose showing it shares; empty: it stands in the window itself.
  std::string_view page;
  // Controls of one cell that have a tab share the cell and are shown in turn.
  std::string_view tab;
  // Its own, or the set that a list, tree or tool bar takes from. "row-NAME": the pictures of rows
  // by their keys, that one where a row has no other.
  std::string_view picture;
  // Of a list, a letter a column: w takes what the others leave, n a number, t a text, s a short
  // one, b the space that is left of the number in the column before, with a bar of what is taken.
  // Empty: as the kind has it.
  std::string_view column_looks = {};
  // Drawn though the model has it hidden: there no window shows what the button holds.
  bool though_hidden = false;

  // The same place with one thing more, so that a table holds a control a line.
  [[nodiscard]] constexpr ControlPlace says(std::string_view text) const {
    ControlPlace place = *this;
    place.accessible_name = text;
    return place;
  }
  [[nodiscard]] constexpr ControlPlace on(std::string_view frame) const {
    ControlPlace place = *this;
    place.page = frame;
    return place;
  }
  [[nodiscard]] constexpr ControlPlace under(std::string_view tab_caption) const {
    ControlPlace place = *this;
    place.tab = tab_caption;
    return place;
  }
  [[nodiscard]] constexpr ControlPlace with(std::string_view its_picture) const {
    ControlPlace place = *this;
    place.picture = its_picture;
    return place;
  }
  [[nodiscard]] constexpr ControlPlace columns_as(std::string_view looks) const {
    ControlPlace place = *this;
    place.column_looks = looks;
    return place;
  }
  [[nodiscard]] constexpr ControlPlace drawn_though_hidden() const {
    ControlPlace place = *this;
    place.though_hidden = true;
    return place;
  }
};

// A control that fills what others leave of its cell.
constexpr ControlPlace filling(std::string_view name, ControlKind kind, int row, int column,
                               int columns) {
  return {name, kind, row, column, columns, Pack::kFill, 0, {}, {}, {}, {}};
}

// A control of that width at the left or right end of a cell that begins with the first column.
constexpr ControlPlace packed(Pack pack, std::string_view name, ControlKind kind, int row,
                              int columns, int width) {
  return {name, kind, row, 0, columns, pack, width, {}, {}, {}, {}};
}

// A row or column of the grid: a fixed length, or a share of what the fixed ones leave.
struct Track {
  int length;  // with a share: the least
  int share;   // 0: fixed
};

// Controls with a grid of their own that take turns with the window's others.
struct PageGrid {
  std::string_view
      frame;  // the frame whose page it is; empty: it shows on all pages, while none is at work
  std::span<const Track> rows;
  std::span<const Track> columns;
  std::span<const ControlPlace> controls;
};

// A window may do two jobs. Tabs below the title bar change between the window's own controls and
// pages, of which the one shows whose frame is foremost.
struct PageSet {
  std::string_view own_tab;  // caption of the tab of the window's own controls
  std::string_view pages_tab;
  int tab_row = 0;                   // of the window's own grid; they stand at its left end
  std::string_view first_page;       // the button that brings the first page to the front
  std::string_view shared_page;      // the frame that shows results of either job
  std::string_view run_page = {};    // the frame that shows while the pages' job runs
  std::string_view own_work;         // the control that is enabled while the window's own job runs
  std::string_view pages_work = {};  // the text box that holds "1" while the pages' job runs
  std::span<const PageGrid> pages = {};  // the foremost first

  [[nodiscard]] constexpr bool empty() const { return pages.empty(); }
};

// A click before which the user is asked, since nothing else asks: it takes all rows of a list.
struct AskedClick {
  std::string_view control;
  std::string_view list;
  std::string_view question;  // stands behind the number of rows
};

// What a screen reader and a pointing user are told of a tool bar's button, which has no text.
struct ToolbarHint {
  int button;
  std::string_view text;
};

// A key that clicks a control wherever the focus is, unless it is drawn on a page that isn't shown.
// `key` is Windows' number of it.
struct KeyClick {
  int key;
  std::string_view control;
};

// What an act of the user does while a tree is read, when no handler of the program runs.
enum class WhileReading {
  kWaits,    // until the reading is over
  kEndsIt,   // and then waits likewise; it is done before anything else
  kActsNow,  // it touches nothing but the window's place on the screen
};

// A click that does not just wait. `button` is a tool bar's; 0: the control is no tool bar.
struct ReadingClick {
  std::string_view control;
  int button;
  WhileReading what;
};

// A list that opens below the title bar to choose from: the labels of a panel.
struct ChoicePanel {
  std::string_view panel;  // the frame that shows it; empty: there is none
  std::string_view label;  // what the names of its labels begin with: "lbllanguage(0)" and on
  std::string_view mark;   // the picture that stands at the height of the chosen one
  std::string_view says;   // what a screen reader says
};

struct WindowLayout {
  std::string_view window;
  // The label whose caption the title bar shows; empty: it shows the window's own.
  std::string_view title;
  // The button that Enter presses where no other one has the focus; empty: none.
  std::string_view default_button;
  std::span<const Track> rows;
  std::span<const Track> columns;
  std::span<const ControlPlace> controls;
  std::span<const ToolbarHint> hints;
  std::span<const KeyClick> keys;
  std::span<const ReadingClick> reading_clicks;
  // Controls of the window that it does not draw: variables, pages to come, and what stands for
  // itself (timers, menus, the tray icon).
  std::span<const std::string_view> undrawn;
  // Frames that take the same place: of those that are shown, the first is drawn. Their controls
  // may share cells with each other, and with nothing else.
  std::span<const std::string_view> stack = {};
  int margin;      // to the window's edges; row 0 is the title bar and has none
  int gap;         // between rows, columns and packed controls
  int tab_height;  // of the strip above controls that share a cell
  int width;       // at the start
  int height;
  int least_width;  // to which it can be made smaller; with both as at the start, it keeps its size
  int least_height;
  ChoicePanel choices = {};
  PageSet page_set = {};
  std::span<const AskedClick> asked_clicks = {};

  [[nodiscard]] constexpr WhileReading while_reading(std::string_view control,
                                                     int button = 0) const {
    for (const ReadingClick& click : reading_clicks) {
      if (click.control == control && click.button == button) return click.what;
    }
    return WhileReading::kWaits;
  }
  // The place of a frame in the stack; -1 for none.
  [[nodiscard]] constexpr int stacked(std::string_view frame) const {
    for (std::size_t i = 0; i < stack.size(); ++i) {
      if (stack[i] == frame) return static_cast<int>(i);
    }
    return -1;
  }
  // Whether both are never seen together.
  [[nodiscard]] constexpr bool take_turns(const ControlPlace& one,
                                          const ControlPlace& other) const {
    return one.page != other.page && stacked(one.page) >= 0 && stacked(other.page) >= 0;
  }
  [[nodiscard]] constexpr bool can_be_sized() const {
    return least_width != width || least_height != height;
  }
};

}  // namespace quillvane
