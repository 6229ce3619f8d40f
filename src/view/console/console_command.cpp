#include "view/console/console_command.h"

#include <array>
#include <sstream>
#include <string>
#include <variant>

#include "view/console/readable.h"

namespace quillvane {

namespace {

constexpr std::array kCommands = {
    ConsoleCommand{"", "scan", "Search the machine for junk; nothing is removed", prepare_scan},
    ConsoleCommand{"", "clean", "Search, ask, and remove what was found", prepare_clean},
    ConsoleCommand{"", "search", "Search whole drives by file types; nothing is removed",
                   prepare_search},
    ConsoleCommand{"", "shortcuts", "Find links whose target is gone", prepare_shortcuts},
    ConsoleCommand{"", "run", "Do what the suite asks for by a run switch", prepare_run},
    ConsoleCommand{"", "script", "Drive the windows by an automation script", prepare_script},
    ConsoleCommand{"", "report", "Search, and write what was found into a report", prepare_report},
    ConsoleCommand{"lists", "show", "Show one of the program's lists", prepare_lists_show},
    ConsoleCommand{"lists", "add", "Add an entry to a list", prepare_lists_add},
    ConsoleCommand{"lists", "remove", "Remove entries from a list", prepare_lists_remove},
    ConsoleCommand{"lists", "on", "Have the drive search look for types", prepare_lists_on},
    ConsoleCommand{"lists", "off", "Have it pass over types", prepare_lists_off},
    ConsoleCommand{"machine", "create", "Make a machine folder", prepare_machine_create},
    ConsoleCommand{"machine", "show", "Show what a machine folder holds", prepare_machine_show},
    ConsoleCommand{"registry", "export", "Print a machine's registry as .reg text",
                   prepare_registry_export},
    ConsoleCommand{"registry", "import", "Read .reg text into a machine's registry",
                   prepare_registry_import},
    ConsoleCommand{"language", "check", "Tell what a language file lacks", prepare_language_check},
    ConsoleCommand{"paint", "button", "Draw a button", prepare_paint_button},
    ConsoleCommand{"paint", "bar", "Draw a progress bar", prepare_paint_bar},
    ConsoleCommand{"paint", "shadow", "Draw the shadow of a window", prepare_paint_shadow},
    ConsoleCommand{"", "gallery", "Draw all controls in all their states on one sheet",
                   prepare_gallery},
};

// Each a line.
void print_notices(const ConsoleIo& io, const std::string& notices) {
  std::istringstream lines(notices);
  for (std::string line; std::getline(lines, line);) {
    io.err << shown(line, io.err_is_terminal) << '\n';
  }
}

}  // namespace

std::span<const ConsoleCommand> console_commands() { return kCommands; }

int ConsoleSession::problem(std::string_view what_and_why) const {
  io.out.flush();  // what was printed before stands before
  io.err << "quillvane: " << shown(what_and_why, io.err_is_terminal) << '\n';
  return kNotDone;
}

std::function<void(std::string_view what, std::string_view why)> ConsoleSession::problem_teller()
    const {
  return [this](std::string_view what, std::string_view why) {
    if (io.clear_line) io.clear_line();
    problem(std::string(what) + ": " + std::string(why));
  };
}

std::unique_ptr<ConsoleMachine> ConsoleSession::open_machine() const {
  std::ostringstream notices;
  auto opened = host.open(machine_folder, notices);
  print_notices(io, notices.str());
  if (const auto* why = std::get_if<HostProblem>(&opened)) {
    problem(why->text);
    return nullptr;
  }
  return std::get<std::unique_ptr<ConsoleMachine>>(std::move(opened));
}

}  // namespace quillvane
