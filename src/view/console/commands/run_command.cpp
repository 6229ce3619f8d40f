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
#include "view/console/shortcuts/attended_links.h"

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
    {"s", "opens the shortcut window alone; removes nothing"},
    {"g", "scans for broken links and REMOVES them, without a question and without a backup"},
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

CleaningResult result_of(const Form3& form) {
  CleaningResult result;
  result.begun = !form.removed_links.empty();
  result.not_reached = form.view1.count();
  for (const RemovedLink& link : form.removed_links) {
    if (link.removed) {
      ++result.removed;
    } else {
      result.left.push_back({link.path, false, "it could not be removed"});
    }
  }
  return result;
}

// "s" makes the window; "g" scans and removes what it finds.
int run_shortcuts(const ConsoleSession& session, ConsoleMachine& machine,
                  const std::string& words) {
  AttendedLinks attended(session, machine);
  attended.start(words);
  if (!attended.program.ended()) return kDone;
  const CleaningResult result = result_of(attended.form());
  const Outcome outcome = outcome_of_run(result, AttendedLinks::cancelled());
  if (session.json) {
    print_links_json_open(session.io.out, attended.links, session.list);
    print_cleaning_json(session.io.out, result, outcome);
    session.io.out << "}\n";
  } else {
    print_links(session.io, attended.links, session.list);
    print_cleaning(session.io, result);
  }
  tell_outcome(session.io, "run", result, outcome);
  return exit_status(outcome);
}

int run(const ConsoleSession& session, const std::string& words) {
  const SwitchKind kind = kind_of(words);
  if (kind == SwitchKind::kUnknown) {
    session.problem("run " + words + ": there is no such switch");
    return kWrongWords;
  }
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;
  if (kind == SwitchKind::kShortcuts) return run_shortcuts(session, *machine, words);
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
