#include "view/console/scan/attendance.h"

#include <optional>
#include <utility>

#include "core/form7.h"
#include "view/console/scan/progress_line.h"

namespace quillvane {

Attendance::Attendance(ConsoleIo& io, VirtualLoop& loop, Program& program)
    : io_(io), loop_(loop), program_(program) {
  io_.interrupted = [] { return Interrupt::came(); };
}

Attendance::~Attendance() { io_.interrupted = nullptr; }

void Attendance::run(const std::function<void()>& act) {
  std::optional<ProgressLine> progress;
  if (io_.err_is_terminal) {
    progress.emplace(io_.err, io_.err_columns);
    io_.clear_line = [&] { progress->clear(); };
  }
  loop_.set_served_hook([&] {
    if (!program_.started()) return;
    serve();
    if (progress) progress->show(program_.main_window().Text13.text());
  });
  act();
  loop_.set_served_hook(nullptr);
  io_.clear_line = nullptr;
}

void Attendance::serve() {
  Form7& form = program_.main_window();
  if (on_window) std::exchange(on_window, nullptr)(form);
  if (!cancelled()) return;
  program_.end_cleaning();
  // Each scan begins with the flag cleared, the one behind a cleaning too.
  if (form.cancelflag == 1) return;
  form.cmd_cancel.click();
  form.cancelflag = 1;  // in the scan of a run switch the button is off
}

}  // namespace quillvane
