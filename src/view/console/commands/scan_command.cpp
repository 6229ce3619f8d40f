// scan: the whole junk scan, by the same button that a user presses. Nothing is removed.

#include "core/form7.h"
#include "core/program.h"
#include "view/console/console_command.h"
#include "view/console/console_dialogs.h"
#include "view/console/scan/attended_run.h"
#include "view/console/scan/browser_answer.h"
#include "view/console/scan/scan_json.h"
#include "view/console/scan/scan_table.h"

namespace quillvane {

namespace {

int scan(const ConsoleSession& session, const BrowserAnswer& browsers) {
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;

  ConsoleDialogs dialogs(session.io);
  browsers.apply_to(dialogs);
  Program program(machine->platform().with({.dialogs = &dialogs}));
  program.on_problem = session.problem_teller();
  program.start("");
  Form7& form = program.main_window();
  run_attended(session.io, machine->loop(), program, [&] { form.cmd_start.click(); });
  tell_skipped(session.io.err, form);

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

std::function<int()> prepare_scan(CLI::App& app, ConsoleSession& session) {
  const auto browsers = std::make_shared<BrowserAnswer>();
  browsers->add_options(app);
  return [browsers, &session] { return scan(session, *browsers); };
}

}  // namespace quillvane
