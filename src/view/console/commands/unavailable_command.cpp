// Words that are kept for commands this version does not have.

#include <CLI/CLI.hpp>

#include "view/console/console_command.h"

namespace quillvane {

std::function<int()> prepare_unavailable(CLI::App& app, ConsoleSession& session) {
  app.group("");  // left out of the help
  app.set_help_flag();
  app.fallthrough(false);
  app.prefix_command();
  return [&app, &session] {
    return session.problem(app.get_name() + ": not available in this version yet");
  };
}

}  // namespace quillvane
