// search: the drive search, by the same run that a user starts from its last page. Nothing is
// removed.

#include <CLI/CLI.hpp>
#include <algorithm>

#include "core/form7.h"
#include "core/program.h"
#include "drivesearch/type_table.h"
#include "platform/unicode_case.h"
#include "support/text.h"
#include "view/console/console_command.h"
#include "view/console/console_dialogs.h"
#include "view/console/scan/attendance.h"
#include "view/console/search/search_report.h"

namespace quillvane {

namespace {

struct SearchWords {
  std::vector<std::string> drives;
  std::string types;
};

// "C:" of "c", "C:" and "c:\"; nothing when it is no drive's name.
std::optional<std::string> drive_name(std::string word) {
  if (word.ends_with('\\')) word.pop_back();
  if (word.ends_with(':')) word.pop_back();
  const std::string letter = upper_case(word);
  if (letter.size() != 1 || letter[0] < 'A' || letter[0] > 'Z') return std::nullopt;
  return letter + ":";
}

// Ticks exactly these drives; the first that is not there is the answer.
std::optional<std::string> tick_drives(Form7& form, const std::vector<std::string>& words) {
  form.View2.check_all(false);
  for (const std::string& word : words) {
    const auto drive = drive_name(word);
    int found = 0;
    for (int row = 1; drive && row <= form.View2.count(); ++row) {
      if (form.View2.text(row).ends_with("(" + *drive + ")")) found = row;
    }
    if (found == 0) return word;
    form.View2.tick_row(found, true);
  }
  return std::nullopt;
}

// What the result will hold that a user may not expect.
void tell_types(const ConsoleSession& session, const Session& program) {
  const TypesToFind types = types_to_find(read_type_table(program).rows);
  if (types.all_files_on) {
    session.problem("search: the file type \"file with zero size\" is on: every file is listed");
  } else if (types.patterns == kMatchesNothing) {
    session.problem("search: no file type is on: no file of a drive is listed for its type");
  }
}

int search(const ConsoleSession& session, const SearchWords& words) {
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;

  ConsoleDialogs dialogs(session.io);
  Program program(machine->platform().with({.dialogs = &dialogs}));
  program.session.on_problem = session.problem_teller();
  program.start("");
  Form7& form = program.main_window();
  if (const auto missing = tick_drives(form, words.drives)) {
    return session.problem(*missing + ": is no drive that can be searched");
  }
  if (words.types.empty()) {
    tell_types(session, program.session);
  } else {
    form.types_instead = replace_all(words.types, ",", "|");
  }
  Attendance attendance(session.io, machine->loop(), program, Attendance::Work::kSearch);
  attendance.run([&] { form.orvbutton5.raise_click(); });

  const SearchReport report = read_search_report(form);
  const ListView* files = session.list ? &form.view1 : nullptr;
  const bool cancelled = attendance.cancelled();
  if (session.json) {
    print_search_json(session.io.out, report, files, cancelled);
  } else {
    print_search_table(session.io, report, files);
  }
  if (cancelled) return session.problem("search: cancelled, this is what was found until then");
  // The box of the start has said that the ignore list is not in these results.
  return form.may_remove() ? kDone : kNotDone;
}

}  // namespace

std::function<int()> prepare_search(CLI::App& app, ConsoleSession& session) {
  const auto words = std::make_shared<SearchWords>();
  app.add_option("DRIVE", words->drives, "Drives to search, such as C:")->required();
  app.add_option("--types", words->types,
                 "Search for these patterns, joined by commas, instead of the file types that are "
                 "on")
      ->type_name("PATTERNS");
  return [words, &session] { return search(session, *words); };
}

}  // namespace quillvane
