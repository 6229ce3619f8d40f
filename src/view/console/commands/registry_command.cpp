// registry export, registry import.

#include <CLI/CLI.hpp>
#include <cstddef>
#include <system_error>
#include <variant>

#include "view/console/console_command.h"
#include "view/console/input_file.h"

namespace quillvane {

namespace {

// Larger than any registry that somebody exported; an endless device would take the whole memory.
constexpr std::size_t kMostRegFile = std::size_t{256} << 20U;

}  // namespace

std::function<int()> prepare_registry_export(CLI::App& app, ConsoleSession& session) {
  const auto dir = std::make_shared<std::string>();
  app.add_option("DIR", *dir, "The machine folder")->required();
  return [&session, dir] {
    const auto exported = session.host.export_registry(*dir);
    if (const auto* problem = std::get_if<HostProblem>(&exported)) {
      return session.problem(problem->text);
    }
    session.io.out << std::get<std::string>(exported);
    return kDone;
  };
}

std::function<int()> prepare_registry_import(CLI::App& app, ConsoleSession& session) {
  const auto dir = std::make_shared<std::string>();
  const auto file = std::make_shared<std::string>();
  app.add_option("DIR", *dir, "The machine folder")->required();
  app.add_option("FILE", *file, "A .reg file; - for standard input")->required();
  return [&session, dir, file] {
    InputFile input(*file, session.io.in);
    if (!input.opened()) return session.problem(*file + ": cannot be read");
    const auto content = input.read_all(kMostRegFile);
    if (const auto* error = std::get_if<std::error_code>(&content)) {
      return session.problem(*file + ": cannot be read: " + error->message());
    }
    const auto problem = session.host.import_registry(*dir, std::get<std::string>(content));
    return problem ? session.problem(problem->text) : kDone;
  };
}

}  // namespace quillvane
