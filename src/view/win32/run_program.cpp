#include "view/win32/run_program.h"

#include <windows.h>

#include <commctrl.h>

#include "core/form7.h"
#include "platform/win32/win32_loop.h"
#include "view/win32/open_windows.h"
#include "view/win32/pictures.h"

namespace quillvane {

namespace {

// The switches "s" and "g" ask for the shortcut window: the first shows it, the other hides it.
bool wants_shortcut_window(const Program& program) { return program.HiddenRun == 1; }

void tell_shortcut_window_is_missing(const Program& program) {
  if (program.main_window().silentmode != 0) return;  // nobody is there to read it
  program.platform.dialogs.message_box("The shortcut tool is not part of this version yet.",
                                       std::string(kProgramName), kBoxIconInformation);
}

}  // namespace

bool run_program(Program& program, Win32Loop& loop, const std::string& command_line) {
  const PictureLibrary library;
  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);

  program.start(command_line);  // a run switch does its whole work in here
  if (wants_shortcut_window(program)) {
    tell_shortcut_window_is_missing(program);
    return false;
  }
  // Without a window there is nobody to wait for.
  if (program.ended() || !program.main_window().visible()) return true;

  OpenWindows windows([&program] { return program.ended(); });
  const auto main_window = windows.open(program.main_window());
  program.attach_view = [&windows](Window& window) { return windows.open(window); };
  loop.set_message_filter([&windows](MSG& message) { return windows.take_key(message); });
  loop.set_reading_view([&program, &windows](const TreeProgress& progress) {
    // Nobody waits for the rest of a tree whose scan was cancelled, or whose program has ended.
    return windows.show_reading(progress) && !program.ended() &&
           program.main_window().cancelflag != 1;
  });
  loop.serve_until([&program] { return program.ended(); });
  loop.set_reading_view(nullptr);
  loop.set_message_filter(nullptr);
  program.attach_view = nullptr;
  return true;
}

}  // namespace quillvane
