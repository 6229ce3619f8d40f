// clean: the scan, the question, the cleaning run, and what became of the files.

#include <CLI/CLI.hpp>
#include <memory>

#include "cleaning/cleaning_run.h"
#include "core/form7.h"
#include "view/console/clean/attended_cleaning.h"
#include "view/console/clean/cleaning_report.h"
#include "view/console/console_command.h"
#include "view/console/scan/browser_answer.h"
#include "view/console/scan/scan_json.h"
#include "view/console/scan/scan_table.h"

namespace quillvane {

namespace {

struct CleanOptions {
  BrowserAnswer browsers;
  bool yes = false;
};

// What came of the question and the run behind it. Requires: the scan was not cancelled.
Outcome outcome_of(const AttendedCleaning& cleaning, const CleaningResult& result, bool asked) {
  if (!cleaning.dialogs.said_yes(kRemoveFilesTitle)) {
    return asked ? Outcome::kDeclined : Outcome::kCancelled;
  }
  return outcome_of_run(result, cleaning.attendance.cancelled());
}

// Nothing is scanned and removed without the ignore list; the box of the start has said why.
int refuse(const ConsoleSession& session, const Form7& form) {
  if (session.json) {
    std::ostream& out = session.io.out;
    print_scan_json_open(out, read_report(form), session.list ? &form.view1 : nullptr);
    print_cleaning_json(out, {}, Outcome::kFailed);
    out << "}\n";
  }
  return kNotDone;
}

int clean(const ConsoleSession& session, const CleanOptions& options) {
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;
  ConsoleIo& io = session.io;
  AttendedCleaning cleaning(io, *machine);
  options.browsers.apply_to(cleaning.dialogs);
  if (options.yes) cleaning.dialogs.answer_in_advance(kRemoveFilesTitle, Answer::kYes);
  cleaning.program.session.on_problem = session.problem_teller();
  cleaning.program.start("");
  Form7& form = cleaning.program.main_window();
  if (!form.may_remove()) return refuse(session, form);
  cleaning.attendance.run([&] { form.cmd_start.click(); });
  tell_skipped(io.err, form);

  const ScanReport report = read_report(form);
  const ListView* files = session.list ? &form.view1 : nullptr;
  if (session.json) {
    print_scan_json_open(io.out, report, files);
  } else {
    print_scan_table(io, report, files);
  }
  io.out.flush();
  CleaningResult result;
  Outcome outcome = Outcome::kCancelled;
  // Nothing is removed when nobody could be told what.
  if (!cleaning.attendance.cancelled() && io.out) {
    cleaning.attendance.run([&] { form.cmd_clean.click(); });
    result = cleaning.watch.result();
    outcome = outcome_of(cleaning, result, !options.yes);
  }
  if (session.json) {
    print_cleaning_json(io.out, result, outcome);
    io.out << "}\n";
  } else {
    print_cleaning(io, result);
  }
  if (io.out) tell_outcome(io, "clean", result, outcome);
  return exit_status(outcome);
}

}  // namespace

std::function<int()> prepare_clean(CLI::App& app, ConsoleSession& session) {
  const auto options = std::make_shared<CleanOptions>();
  app.add_flag("--yes", options->yes, "Remove without asking");
  options->browsers.add_options(app);
  return [options, &session] { return clean(session, *options); };
}

}  // namespace quillvane
