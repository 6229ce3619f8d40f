// run: what the window program does when the suite starts it with a run switch.

#include <CLI/CLI.hpp>
#include <string>

#include "core/form7.h"
#include "core/program.h"
#include "platform/unicode_case.h"
#include "support/text.h"
#include "view/console/console_command.h"
#include "view/console/console_dialogs.h"
#include "view/console/json_text.h"
#include "view/console/scan/attended_run.h"
#include "view/console/scan/browser_answer.h"

namespace quillvane {

namespace {

enum class SwitchKind { kScan, kShortcuts, kWindow, kUnknown };

SwitchKind kind_of(const std::string& words) {
  const std::string line = lower_case(Trim(words));
  const std::string first = Split(line, "-").front();
  if (first == "w" || first == "w2" || first == "w3" || first == "w4") return SwitchKind::kScan;
  if (line == "g" || line == "s") return SwitchKind::kShortcuts;
  if (line == "d") return SwitchKind::kWindow;
  return SwitchKind::kUnknown;
}

// The last reading of the run, as the suite finds it in junst.txt.
void print_result(const ConsoleSession& session, const Form7& form) {
  if (session.json) {
    const Json totals = {{"files", json_number(form.totals.totalfiles)},
                         {"bytes", json_number(form.totals.totalsize)}};
    session.io.out << json_text(Json{{"totals", totals}}) << '\n';
  } else {
    session.io.out << number_text(form.totals.totalfiles) << " files, "
                   << form.size_text(form.totals.totalsize) << '\n';
  }
}

int run(const ConsoleSession& session, const std::string& words) {
  const SwitchKind kind = kind_of(words);
  if (kind == SwitchKind::kUnknown) {
    session.problem("run " + words + ": there is no such switch");
    return kWrongWords;
  }
  if (kind == SwitchKind::kShortcuts) {
    return session.problem("run " + words + ": not available in this version yet");
  }
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;
  ConsoleDialogs dialogs(session.io);
  Program program(machine->platform().with({.dialogs = &dialogs}));
  run_attended(session.io, machine->loop(), program, [&] { program.start(words); });
  if (kind == SwitchKind::kScan) print_result(session, program.main_window());
  return kDone;
}

}  // namespace

std::function<int()> prepare_run(CLI::App& app, ConsoleSession& session) {
  const auto words = std::make_shared<std::string>();
  app.add_option("SWITCH", *words, "w, w2, w3 or w4, alone or with -c, -c2, -c3, -c4 behind it")
      ->required();
  return [words, &session] { return run(session, *words); };
}

}  // namespace quillvane
