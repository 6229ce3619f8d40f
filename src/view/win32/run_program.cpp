#include "view/win32/run_program.h"

#include <windows.h>

#include <commctrl.h>

#include "core/form7.h"
#include "platform/win32/win32_loop.h"
#include "view/win32/form_window.h"
#include "view/win32/look/form7_layout.h"

namespace quillvane {

void run_program(Program& program, Win32Loop& loop, const std::string& command_line) {
  const PictureLibrary library;
  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);

  program.start(command_line);  // a run switch does its whole work in here
  // Without a window there is nobody to wait for.
  if (program.ended() || !program.main_window().visible()) return;

  FormWindow window(program.main_window(), form7_layout(), [&program] { return program.ended(); });
  loop.set_message_filter([&window](MSG& message) { return window.take_key(message); });
  loop.serve_until([&program] { return program.ended(); });
  loop.set_message_filter(nullptr);
}

}  // namespace quillvane
