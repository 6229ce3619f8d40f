// script [FILE].

#include <CLI/CLI.hpp>

#include "view/console/console_command.h"
#include "view/console/input_file.h"
#include "view/console/program_driver.h"
#include "view/console/script/script_runner.h"

namespace quillvane {

namespace {

int run_script(const ConsoleSession& session, const std::string& file) {
  InputFile script(file, session.io.in);
  if (!script.opened()) return session.problem(file + ": cannot be read");
  const std::unique_ptr<ConsoleMachine> machine = session.open_machine();
  if (machine == nullptr) return kNotDone;

  ProgramDriver program(machine->platform());
  program.set_problem_teller(session.problem_teller());
  ScriptRunner runner(script.stream(), session.io.out, *machine, program);
  const auto problem = runner.run();
  return problem ? session.problem(*problem) : kDone;
}

}  // namespace

std::function<int()> prepare_script(CLI::App& app, ConsoleSession& session) {
  const auto file = std::make_shared<std::string>();
  app.add_option("FILE", *file, "The script; - or none for standard input");
  return [&session, file] { return run_script(session, *file); };
}

}  // namespace quillvane
