// run: what the window program does when the suite starts it with a run switch.

#include <CLI/CLI.hpp>
#include <string>

#include "core/form7.h"
#include "platform/unicode_case.h"
#include "support/text.h"
#include "view/console/clean/attended_cleaning.h"
#include "view/console/clean/cleaning_report.h"
#include "view/console/console_command.h"
#include "view/console/json_text.h"
#include "view/console/readable.h"

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

struct SwitchHelp {
  const char* words;
  const char* does;
};

constexpr SwitchHelp kSwitches[] = {
    {"w, w2, w3, w-c", "scans and REMOVES all that it finds, without a question"},
    {"w3-c3, w4-c4", "the same, but queues nothing for the next restart"},
    {"w2-c2", "scans and counts; removes nothing"},
    {"w4", "the same, and lists the files in junktmp.txt"},
    {"d", "opens the window with its start button off; removes nothing"},
};

std::string switches_text() {
  std::string text = "Switches:\n";
  for (const SwitchHelp& each : kSwitches) {
    text += "  " + padded(each.words, 16) + each.does + "\n";
  }
  return text +
         "Another second half, as in w-x, removes nothing. What is removed is each file that\n"
         "quillvane scan --list shows, with one of the recycle bin all of the bin, and the "
         "entries\n"
         "of Internet Explorer's cache.\n"
         "quillvane --help tells the options that all commands share.";
}

// What the suite finds in junst.txt, and what became of the files.
void print_result(const ConsoleSession& session, const Form7& form, const CleaningResult& result,
                  Outcome outcome) {
  std::ostream& out = session.io.out;
  if (session.json) {
    const Json totals = {{"files", json_number(form.totals.totalfiles)},
                         {"bytes", json_number(form.totals.totalsize)}};
    out << "{\"totals\": " << json_text(totals);
    print_cleaning_json(out, result, outcome);
    out << "}\n";
  } else {
    out << number_text(form.totals.totalfiles) << " files, "
        << form.size_text(form.totals.totalsize) << '\n';
    print_cleaning(session.io, result);
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
  AttendedCleaning cleaning(session.io, *machine);
  Program& program = cleaning.program;
  program.session.on_problem = session.problem_teller();
  cleaning.attendance.run([&] { program.start(words); });
  if (kind == SwitchKind::kWindow) return kDone;

  const Form7& form = program.main_window();
  const CleaningResult result = cleaning.watch.result();
  const Outcome outcome = form.may_remove()
                              ? outcome_of_run(result, cleaning.attendance.cancelled())
                              : Outcome::kFailed;
  print_result(session, form, result, outcome);
  // The suite's run shows no box.
  if (!form.may_remove()) return session.problem(form.ignore_list_message());
  tell_outcome(session.io, "run", result, outcome);
  return exit_status(outcome);
}

}  // namespace

std::function<int()> prepare_run(CLI::App& app, ConsoleSession& session) {
  const auto words = std::make_shared<std::string>();
  app.add_option("SWITCH", *words, "What to do; see below")->required();
  app.footer(switches_text());
  return [words, &session] { return run(session, *words); };
}

}  // namespace quillvane
