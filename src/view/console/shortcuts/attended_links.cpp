#include "view/console/shortcuts/attended_links.h"

#include <optional>
#include <string>

#include "view/console/readable.h"
#include "view/console/scan/progress_line.h"

namespace quillvane {

AttendedLinks::AttendedLinks(const ConsoleSession& session, ConsoleMachine& machine)
    : dialogs(session.io),
      platform(machine.platform().with({.dialogs = &dialogs})),
      program(platform),
      links(platform),
      io_(session.io),
      loop_(machine.loop()) {
  program.session.on_problem = session.problem_teller();
  io_.interrupted = [] { return Interrupt::came(); };
}

AttendedLinks::~AttendedLinks() { io_.interrupted = nullptr; }

void AttendedLinks::start(const std::string& switches) {
  program.attach_view = [this](Window& /*window*/) {
    links.watch(form());
    return nullptr;
  };
  run([&] { program.start(switches); });
}

void AttendedLinks::run(const std::function<void()>& act) {
  std::optional<ProgressLine> line;
  if (io_.err_is_terminal) {
    line.emplace(io_.err, io_.err_columns);
    io_.clear_line = [&] { line->clear(); };
  }
  loop_.set_served_hook([&] {
    serve();
    if (line && program.shortcut_window() != nullptr) {
      line->show(progress(form().Label5.caption()));
    }
  });
  loop_.set_reading_hook([&](const TreeProgress& reading) {
    if (line) line->show(progress(reading.folder));
    return !cancelled();  // nobody waits for the rest of the tree
  });
  program.session.on_warning = [this](const std::string& warning) {
    if (io_.clear_line) io_.clear_line();
    io_.err << "quillvane: " << printable(warning) << '\n';
  };
  act();
  program.session.on_warning = nullptr;
  loop_.set_reading_hook(nullptr);
  loop_.set_served_hook(nullptr);
  io_.clear_line = nullptr;
}

void AttendedLinks::serve() {
  if (!cancelled()) return;
  program.session.end_cleaning();
  // Each drive and folder is a search of its own.
  if (program.shortcut_window() != nullptr) form().stop_search();
}

std::string AttendedLinks::progress(std::string_view place) const {
  const auto count = [](std::size_t number, const char* what) {
    return std::to_string(number) + what;
  };
  return count(links.links().size(), " links, ") +
         count(static_cast<std::size_t>(links.broken()), " broken  ") + std::string(place);
}

}  // namespace quillvane
