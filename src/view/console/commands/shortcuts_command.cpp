// shortcuts: the links whose target is gone, found by the same button that a user presses; their
// removal and their report.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "platform/unicode_case.h"
#include "shortcuts/shortcut_report.h"
#include "support/text.h"
#include "support/text_file.h"
#include "view/console/clean/cleaning_report.h"
#include "view/console/console_command.h"
#include "view/console/json_text.h"
#include "view/console/output_file.h"
#include "view/console/readable.h"
#include "view/console/shortcuts/attended_links.h"

namespace quillvane {

namespace {

struct ShortcutsOptions {
  std::vector<std::string> drives;  // none: the start menu
  bool unreachable = false;
  bool yes = false;
  std::string report;
  CLI::App* remove_words = nullptr;
  CLI::App* report_words = nullptr;
};

// The row of View2 that stands for the drive of this word ("d", "D:", "D:\"); 0 for none.
int row_of_drive(const ListView& drives, const std::string& word) {
  const std::string rest = word.substr(std::min<std::size_t>(1, word.size()));
  if (!rest.empty() && rest != ":" && rest != ":\\") return 0;
  for (int row = 1; row <= drives.count(); ++row) {
    if (same_name(drives.text(row).substr(0, 1), word.substr(0, 1))) return row;
  }
  return 0;
}

// Chooses where to look, whatever the options are that the machine has stored. Answers the drive
// that is not there; empty when all are.
std::string choose_places(Form3& form, const std::vector<std::string>& drives) {
  form.Check1.set_checked(false);
  form.View2.check_all(false);
  form.Option4.choose();
  for (const std::string& drive : drives) {
    const int row = row_of_drive(form.View2, drive);
    if (row == 0) return drive;
    form.View2.tick_row(row, true);
  }
  return {};
}

// Starts the window and scans. False: it could not be, which has been told then.
bool scan_links(const ConsoleSession& session, AttendedLinks& attended,
                const ShortcutsOptions& options) {
  attended.start("s");
  Form3& form = attended.form();
  const std::string unknown = choose_places(form, options.drives);
  if (!unknown.empty()) {
    session.problem("--drive " + unknown + ": is no fixed drive of this machine");
    return false;
  }
  attended.run([&] { form.cmd_start.click(); });
  return true;
}

void print_found(const ConsoleSession& session, const AttendedLinks& attended) {
  if (session.json) {
    print_links_json_open(session.io.out, attended.links, session.list);
  } else {
    print_links(session.io, attended.links, session.list);
  }
}

int show_links(const ConsoleSession& session, ConsoleMachine& machine,
               const ShortcutsOptions& options) {
  AttendedLinks attended(session, machine);
  if (!scan_links(session, attended, options)) return kNotDone;
  print_found(session, attended);
  const bool cancelled = AttendedLinks::cancelled();
  if (session.json) {
    session.io.out << (cancelled ? ",\n \"outcome\": \"cancelled\"}\n" : "}\n");
  }
  if (!cancelled) return kDone;
  return session.problem("shortcuts: cancelled, this is what was found until then");
}

// Ticks what goes: a target that is not there; one whose drive or share is not there now, only when
// that was asked for. Answers how many.
int tick_doomed(Form3& form, const LinkList& links, bool unreachable) {
  int ticked = 0;
  for (int row = 1; row <= form.view1.count(); ++row) {
    const ListedLink* link = links.find(form.link_path(row));
    if (link == nullptr) continue;
    const bool goes = link->verdict == ShortcutVerdict::kMissing ||
                      (unreachable && link->verdict == ShortcutVerdict::kUnreachable);
    form.view1.set_checked(row, goes);
    ticked += goes ? 1 : 0;
  }
  return ticked;
}

CleaningResult result_of(const std::vector<RemovedLink>& links, int ticked) {
  CleaningResult result;
  result.begun = !links.empty();
  result.not_reached = ticked - static_cast<int>(links.size());
  for (const RemovedLink& link : links) {
    if (link.removed) {
      ++result.removed;
    } else {
      result.left.push_back({link.path, false,
                             link.copied ? "it could not be removed"
                                         : "its backup could not be written, the removal ended"});
    }
  }
  return result;
}

Outcome outcome_of(const AttendedLinks& attended, const CleaningResult& result, int ticked,
                   bool asked) {
  if (ticked > 0 && !attended.dialogs.said_yes(kRemoveLinksTitle)) {
    return asked ? Outcome::kDeclined : Outcome::kCancelled;
  }
  if (result.failed() > 0) return Outcome::kFailed;
  const bool ended = result.not_reached > 0 || ticked == 0;
  return AttendedLinks::cancelled() && ended ? Outcome::kCancelled : Outcome::kDone;
}

int remove_links(const ConsoleSession& session, ConsoleMachine& machine,
                 const ShortcutsOptions& options) {
  AttendedLinks attended(session, machine);
  if (options.yes) attended.dialogs.answer_in_advance(kRemoveLinksTitle, Answer::kYes);
  if (!scan_links(session, attended, options)) return kNotDone;
  print_found(session, attended);
  session.io.out.flush();
  Form3& form = attended.form();
  CleaningResult result;
  Outcome outcome = Outcome::kCancelled;
  // Nothing is removed when nobody could be told what.
  if (!AttendedLinks::cancelled() && session.io.out) {
    const int ticked = tick_doomed(form, attended.links, options.unreachable);
    form.uncopied_links = UncopiedLinks::kEndTheRun;
    attended.run([&] { form.cmd_delete.click(); });
    result = result_of(form.removed_links, ticked);
    outcome = outcome_of(attended, result, ticked, !options.yes);
  }
  if (session.json) {
    print_cleaning_json(session.io.out, result, outcome);
    session.io.out << "}\n";
  } else {
    print_cleaning(session.io, result);
  }
  if (session.io.out) tell_outcome(session.io, "shortcuts remove", result, outcome);
  return exit_status(outcome);
}

// The report goes into a file of the computer that the program runs on, "-" being standard output.
int report_links(const ConsoleSession& session, ConsoleMachine& machine,
                 const ShortcutsOptions& options) {
  AttendedLinks attended(session, machine);
  if (!scan_links(session, attended, options)) return kNotDone;
  if (AttendedLinks::cancelled()) {
    return session.problem("shortcuts report: cancelled, nothing was written");
  }
  const std::string text =
      bytes_of_text(attended.platform.system, shortcut_report(attended.form()));
  if (const auto problem = write_output(options.report, text, session.io.out)) {
    return session.problem(options.report + ": " + *problem);
  }
  return kDone;
}

int run_shortcuts(const ConsoleSession& session, const ShortcutsOptions& options) {
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;
  if (options.remove_words->parsed()) return remove_links(session, *machine, options);
  if (options.report_words->parsed()) return report_links(session, *machine, options);
  return show_links(session, *machine, options);
}

}  // namespace

std::function<int()> prepare_shortcuts(CLI::App& app, ConsoleSession& session) {
  const auto options = std::make_shared<ShortcutsOptions>();
  app.add_option("--drive", options->drives,
                 "Search this drive, and no start menu; may be repeated")
      ->type_name("C:")
      ->allow_extra_args(false);
  app.require_subcommand(0, 1);
  options->remove_words = app.add_subcommand(
      "remove", "Ask, and remove the links whose target is missing, with a backup");
  options->remove_words->add_flag("--yes", options->yes, "Remove without asking");
  options->remove_words->add_flag("--unreachable", options->unreachable,
                                  "Also those whose drive or share is not there now");
  options->report_words = app.add_subcommand("report", "Write a report of the broken links");
  options->report_words->add_option("FILE", options->report, "Where to; - is standard output")
      ->required();
  return [options, &session] { return run_shortcuts(session, *options); };
}

}  // namespace quillvane
