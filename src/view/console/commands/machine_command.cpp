// machine create, machine show.

#include <CLI/CLI.hpp>
#include <iomanip>
#include <variant>

#include "view/console/console_command.h"
#include "view/console/json_text.h"
#include "view/console/readable.h"

namespace quillvane {

namespace {

Json bytes_json(const std::optional<std::uint64_t>& bytes) {
  return bytes ? Json(*bytes) : Json(nullptr);
}

Json summary_json(const MachineSummary& machine) {
  Json json = {
      {"drives", Json::array()}, {"environment", Json::object()}, {"processes", Json::array()}};
  for (const auto& drive : machine.drives) {
    json["drives"].push_back({{"letter", drive.letter},
                              {"type", drive.type},
                              {"folder", drive.folder},
                              {"total", bytes_json(drive.total_bytes)},
                              {"free", bytes_json(drive.free_bytes)}});
  }
  for (const auto& [name, value] : machine.environment) json["environment"][name] = value;
  for (const auto& process : machine.processes) {
    json["processes"].push_back({{"id", process.id}, {"name", process.name}});
  }
  return json;
}

std::string space_text(const MachineSummary::Drive& drive) {
  if (!drive.total_bytes || !drive.free_bytes) return "no medium";
  return readable_size(static_cast<double>(*drive.free_bytes)) + " free of " +
         readable_size(static_cast<double>(*drive.total_bytes));
}

void print_summary(const ConsoleIo& io, const MachineSummary& machine) {
  std::ostream& out = io.out;
  const auto text = [&io](const std::string& name) { return shown(name, io.out_is_terminal); };
  out << "Drives\n";
  for (const auto& drive : machine.drives) {
    out << "  " << drive.letter << ":  " << padded(drive.type, 9) << "  "
        << padded(space_text(drive), 26) << "  " << text(drive.folder) << '\n';
  }
  out << "\nEnvironment\n";
  std::size_t width = 0;
  for (const auto& [name, value] : machine.environment)
    width = std::max(width, columns_of(text(name)));
  for (const auto& [name, value] : machine.environment) {
    out << "  " << padded(text(name), width) << "  " << text(value) << '\n';
  }
  out << "\nProcesses\n";
  if (machine.processes.empty()) out << "  none\n";
  for (const auto& process : machine.processes) {
    out << "  " << std::setw(6) << process.id << "  " << text(process.name) << '\n';
  }
}

}  // namespace

std::function<int()> prepare_machine_create(CLI::App& app, ConsoleSession& session) {
  const auto dir = std::make_shared<std::string>();
  const auto demo = std::make_shared<bool>(false);
  app.add_option("DIR", *dir, "An empty folder, or one that isn't there yet")->required();
  app.add_flag("--demo", *demo, "Fill it with junk in every category");
  return [&session, dir, demo] {
    const auto problem = session.host.create(*dir, *demo);
    return problem ? session.problem(problem->text) : kDone;
  };
}

std::function<int()> prepare_machine_show(CLI::App& app, ConsoleSession& session) {
  const auto dir = std::make_shared<std::string>();
  app.add_option("DIR", *dir, "The machine folder")->required();
  return [&session, dir] {
    const auto described = session.host.describe(*dir);
    if (const auto* problem = std::get_if<HostProblem>(&described)) {
      return session.problem(problem->text);
    }
    const auto& machine = std::get<MachineSummary>(described);
    if (session.json) {
      session.io.out << json_text(summary_json(machine)) << '\n';
    } else {
      print_summary(session.io, machine);
    }
    return kDone;
  };
}

}  // namespace quillvane
