#include "view/console/scan/attended_run.h"

#include <optional>

#include "core/form7.h"
#include "view/console/scan/interrupt.h"
#include "view/console/scan/progress_line.h"

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
    if (progress) progress->show(form.Text13.text());
  });
  act();
  loop.set_served_hook(nullptr);
  io.clear_line = nullptr;
}

}  // namespace quillvane
