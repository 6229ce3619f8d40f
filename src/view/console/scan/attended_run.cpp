#include "view/console/scan/attended_run.h"

#include <optional>

#include "core/form7.h"
#include "view/console/scan/interrupt.h"
#include "view/console/scan/progress_line.h"
#include "view/console/scan/scan_progress.h"

namespace quillvane {

void run_attended(ConsoleIo& io, VirtualLoop& loop, Program& program,
                  const std::function<void()>& act) {
  Interrupt interrupt;
  std::optional<ProgressLine> progress;
  if (io.err_is_terminal) {
    progress.emplace(io.err, io.err_columns);
    io.clear_line = [&] { progress->clear(); };
  }
  loop.set_served_hook([&] {
    if (!program.started()) return;
    Form7& form = program.main_window();
    if (interrupt.take()) form.cmd_cancel.click();
    if (progress) progress->show(scan_progress(form, form.Text13.text()));
  });
  loop.set_reading_hook([&](const TreeProgress& reading) {
    if (!program.started()) return true;
    const Form7& form = program.main_window();
    if (progress) progress->show(scan_progress(form, reading.folder));
    // Nobody waits for the rest of a tree whose scan was cancelled.
    return !interrupt.came() && form.cancelflag != 1;
  });
  program.on_warning = [&io](const std::string& warning) {
    if (io.clear_line) io.clear_line();
    io.err << "quillvane: " << warning << '\n';
  };
  act();
  program.on_warning = nullptr;
  loop.set_reading_hook(nullptr);
  loop.set_served_hook(nullptr);
  io.clear_line = nullptr;
}

}  // namespace quillvane
