// scan: the whole junk scan, by the same button that a user presses. Nothing is removed.

#include <optional>

#include "core/form7.h"
#include "core/program.h"
#include "view/console/console_command.h"
#include "view/console/scan/interrupt.h"
#include "view/console/scan/progress_line.h"
#include "view/console/scan/scan_json.h"
#include "view/console/scan/scan_table.h"

namespace quillvane {

namespace {

// Runs the scan; Ctrl-C presses the cancel button.
void run_scan(ConsoleIo& io, VirtualLoop& loop, Program& program) {
  program.start("");
  Form7& form = program.main_window();
  Interrupt interrupt;
  std::optional<ProgressLine> progress;
  if (io.err_is_terminal) progress.emplace(io.err, io.err_columns);
  loop.set_served_hook([&] {
    if (interrupt.take()) form.cmd_cancel.click();
    if (progress) progress->show(form.Text13.text());
  });
  form.cmd_start.click();
  loop.set_served_hook(nullptr);
}

int scan(const ConsoleSession& session) {
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;

  Program program(machine->platform());
  run_scan(session.io, machine->loop(), program);

  const Form7& form = program.main_window();
  const ScanReport report = read_report(form);
  const ListView* files = session.list ? &form.view1 : nullptr;
  if (session.json) {
    print_scan_json(session.io.out, report, files);
  } else {
    print_scan_table(session.io.out, report, files, session.io.out_takes_bold);
  }
  return kDone;
}

}  // namespace

std::function<int()> prepare_scan(CLI::App& /*app*/, ConsoleSession& session) {
  return [&session] { return scan(session); };
}

}  // namespace quillvane
