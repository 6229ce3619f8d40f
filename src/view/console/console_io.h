// Where the console program reads and writes.
#pragma once

#include <functional>
#include <istream>
#include <ostream>

#include "platform/picture_tools.h"

namespace quillvane {

struct ConsoleIo {
  std::istream& in;
  std::ostream& out;            // results
  std::ostream& err;            // problems and progress
  bool out_takes_bold = false;  // a terminal that understands the usual escapes
  bool err_is_terminal = false;
  int err_columns = 80;         // width of that terminal
  bool in_is_terminal = false;  // somebody can answer
  // Takes away what stands in the terminal's last line for the moment; set while it may.
  std::function<void()> clear_line = nullptr;
  bool out_is_terminal = false;
  // Whether the user has pressed Ctrl-C; set while somebody attends to it.
  std::function<bool()> interrupted = nullptr;
  // Waits until a line can be read from `in`; false when `interrupted` holds before.
  std::function<bool(const std::function<bool()>& interrupted)> await_line = nullptr;
  // Whether writing to `out` failed since nobody reads it any more.
  std::function<bool()> reader_gone = nullptr;
  // Draws text and writes picture files; null where there is neither.
  PictureTools* pictures = nullptr;
};

}  // namespace quillvane
