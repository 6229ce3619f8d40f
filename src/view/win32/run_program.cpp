#include "view/win32/run_program.h"

#include <windows.h>

#include <commctrl.h>

#include "core/form7.h"
#include "platform/win32/win32_loop.h"
#include "view/win32/open_windows.h"
#include "view/win32/pictures.h"

namespace quillvane {

void run_program(Program& program, Win32Loop& loop, const std::string& command_line) {
  const PictureLibrary library;
  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);

  program.start(command_line);  // a run switch does its whole work in here
  Window* shortcuts = program.find_window("Form3");
  const bool is_alone = shortcuts != nullptr && shortcuts->visible();
  // Without a window there is nobody to wait for.
  if (program.ended() || (!program.main_window().visible() && !is_alone)) return;

  OpenWindows windows([&program] { return program.ended(); });
  const auto main_window = is_alone ? nullptr : windows.open_beside(program.main_window());
  const auto shortcut_window = is_alone ? windows.open_beside(*shortcuts) : nullptr;
  program.attach_view = [&windows](Window& window) { return windows.open_beside(window); };
  program.windows.attach_view = [&windows](Window& window) { return windows.open(window); };
  loop.set_message_filter([&windows](MSG& message) { return windows.take_key(message); });
  loop.set_reading_view([&program, &windows](const TreeProgress& progress) {
    return windows.show_reading(progress) && program.awaits_reading();
  });
  loop.serve_until([&program] { return program.ended(); });
  loop.set_reading_view(nullptr);
  loop.set_message_filter(nullptr);
  program.windows.attach_view = nullptr;
  program.let_go_of_views();
}

}  // namespace quillvane
