// What a command of the console is, and what all of them share.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "view/console/console.h"

namespace CLI {
class App;
}

namespace quillvane {

// One run of the program: its options and the ways in and out.
struct ConsoleSession {
  ConsoleIo& io;
  MachineHost& host;
  std::optional<std::string> machine_folder;  // --machine
  bool json = false;
  bool list = false;

  // "quillvane: WHAT: WHY" on standard error; answers kNotDone.
  int problem(std::string_view what_and_why) const;
  // What tells a problem of the running program in the same way, above the line of progress. The
  // session outlives it.
  [[nodiscard]] std::function<void(std::string_view what, std::string_view why)> problem_teller()
      const;
  // The machine to work on; null when it cannot be opened, which has been told then.
  [[nodiscard]] std::unique_ptr<ConsoleMachine> open_machine() const;
};

struct ConsoleCommand {
  // Adds the command's own words to `app` and answers what runs when they have been read. The
  // session outlives both.
  using Prepare = std::function<int()> (*)(CLI::App& app, ConsoleSession& session);

  const char* group;  // the word before the name: "machine" in "machine show"; empty for none
  const char* name;
  const char* description;
  Prepare prepare;
};

[[nodiscard]] std::span<const ConsoleCommand> console_commands();

// One file each.
std::function<int()> prepare_scan(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_clean(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_shortcuts(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_search(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_run(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_script(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_machine_create(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_machine_show(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_registry_export(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_registry_import(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_language_check(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_report(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_lists_show(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_lists_add(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_lists_remove(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_lists_on(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_lists_off(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_paint_button(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_paint_bar(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_paint_shadow(CLI::App& app, ConsoleSession& session);
std::function<int()> prepare_gallery(CLI::App& app, ConsoleSession& session);

}  // namespace quillvane
