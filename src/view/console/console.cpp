#include "view/console/console.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "view/console/command_words.h"
#include "view/console/console_command.h"

namespace quillvane {

namespace {

struct PreparedCommand {
  const CLI::App* app;
  std::function<int()> run;
};

struct GroupWords {
  std::string_view name;
  const char* description;
};

constexpr GroupWords kGroups[] = {
    {"machine", "Machine folders"},   {"registry", "The registry of a machine folder"},
    {"language", "Language files"},   {"paint", "The program's own controls as PNG files"},
    {"lists", "The program's lists"},
};

CLI::App& group_of(CLI::App& app, const ConsoleCommand& command) {
  const std::string name = command.group;
  if (name.empty()) return app;
  const auto known =
      app.get_subcommands([&](const CLI::App* other) { return other->get_name() == name; });
  if (!known.empty()) return *known.front();
  const auto* words = std::find_if(std::begin(kGroups), std::end(kGroups),
                                   [&](const GroupWords& group) { return group.name == name; });
  CLI::App* group = app.add_subcommand(name, words == std::end(kGroups) ? "" : words->description);
  group->require_subcommand(1);
  return *group;
}

// What the library calls things in a help.
void use_own_labels(CLI::App& app) {
  constexpr std::pair<const char*, const char*> kLabels[] = {{"Positionals", "Words"},
                                                             {"SUBCOMMAND", "COMMAND"},
                                                             {"Subcommands", "Commands"},
                                                             {"REQUIRED", "(needed)"}};
  for (const auto& [theirs, ours] : kLabels) app.get_formatter()->label(theirs, ours);
}

void add_common_options(CLI::App& app, ConsoleSession& session) {
  app.add_option(
         "--machine", session.machine_folder,
         "Work on the machine of this folder (else of QUILLVANE_MACHINE; else on Windows on "
         "this PC, elsewhere on a demo)")
      ->type_name("DIR");
  app.add_flag("--json", session.json, "Print results as one JSON document");
  app.add_flag("--list", session.list, "Print each file too");
  app.set_version_flag("--version", "quillvane " QUILLVANE_VERSION);
}

std::vector<PreparedCommand> add_commands(CLI::App& app, ConsoleSession& session) {
  std::vector<PreparedCommand> prepared;
  for (const ConsoleCommand& command : console_commands()) {
    CLI::App* added = group_of(app, command).add_subcommand(command.name, command.description);
    // A command may have more to tell.
    added->footer("quillvane --help tells the options that all commands share.");
    prepared.push_back({added, command.prepare(*added, session)});
  }
  return prepared;
}

// What the check of the words let pass and the library does not, in one line.
std::string reason_of(const CLI::ParseError& error) {
  std::string reason = error.what();
  std::replace(reason.begin(), reason.end(), '\n', ' ');
  return reason;
}

int run_words(const std::vector<std::string>& words, ConsoleIo& io, ConsoleSession& session) {
  CLI::App app("Finds junk files on a Windows machine.", "quillvane");
  app.allow_windows_style_options(false);  // the same words mean the same on either system
  app.fallthrough();                       // common options may stand behind the command too
  app.require_subcommand(1);
  use_own_labels(app);
  add_common_options(app, session);
  const std::vector<PreparedCommand> commands = add_commands(app, session);
  if (const auto wrong = wrong_words(app, words)) {
    session.problem(*wrong);
    return kWrongWords;
  }
  try {
    app.parse(std::vector<std::string>(words.rbegin(), words.rend()));  // it wants the last first
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
      return app.exit(error, io.out, io.err);  // help or version
    }
    session.problem("command line: " + reason_of(error));
    return kWrongWords;
  }
  for (const PreparedCommand& command : commands) {
    if (command.app->parsed()) return command.run();
  }
  return kWrongWords;
}

}  // namespace

int run_console(const std::vector<std::string>& words, ConsoleIo& io, MachineHost& host) {
  ConsoleSession session{io, host, std::nullopt, false, false};
  const int status = run_words(words, io, session);
  io.out.flush();
  const bool reader_gone = io.reader_gone && io.reader_gone();
  // One that has seen enough, as `head` has, is no problem.
  if (!io.out && !reader_gone) {
    io.err << "quillvane: standard output: cannot be written\n";
    return kNotDone;
  }
  return status;
}

}  // namespace quillvane
