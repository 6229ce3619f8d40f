// scan: the whole junk scan, by the same button that a user presses. Nothing is removed.

#include "core/form7.h"
#include "core/program.h"
#include "view/console/console_command.h"
#include "view/console/console_dialogs.h"
#include "view/console/scan/attendance.h"
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
  program.session.on_problem = session.problem_teller();
  program.start("");
  Form7& form = program.main_window();
  Attendance attendance(session.io, machine->loop(), program);
  attendance.run([&] { form.cmd_start.click(); });
  tell_skipped(session.io.err, form);

  const ScanReport report = read_report(form);
  const ListView* files = session.list ? &form.view1 : nullptr;
  const bool cancelled = attendance.cancelled();
  if (session.json) {
    print_scan_json_open(session.io.out, report, files);
    session.io.out << (cancelled ? ",\n \"outcome\": \"cancelled\"}\n" : "}\n");
  } else {
    print_scan_table(session.io, report, files);
  }
  if (cancelled) return session.problem("scan: cancelled, this is what was found until then");
  // The box of the start has said that the ignore list is not in these results.
  return form.may_remove() ? kDone : kNotDone;
}

}  // namespace

std::function<int()> prepare_scan(CLI::App& app, ConsoleSession& session) {
  const auto browsers = std::make_shared<BrowserAnswer>();
  browsers->add_options(app);
  return [browsers, &session] { return scan(session, *browsers); };
}

}  // namespace quillvane
