// Machine folders are the machines of the console.

#include <stdlib.h>

#include <filesystem>
#include <ostream>
#include <system_error>
#include <utility>

#include "app/folder_console_machine.h"
#include "app/make_machine_host.h"
#include "platform/folder/create_machine.h"
#include "platform/folder/demo_folder.h"
#include "platform/folder/demo_machine.h"
#include "platform/folder/drive_words.h"
#include "platform/folder/reg_file.h"

namespace quillvane {

namespace {

std::optional<std::string> host_variable(const char* name) {
  const char* value = getenv(name);
  if (value == nullptr) return std::nullopt;
  return std::string(value);
}

using OpenedFolder = std::variant<std::unique_ptr<FolderMachine>, HostProblem>;

OpenedFolder open_folder(const std::string& dir) {
  auto opened = FolderMachine::open(dir);
  if (auto* why = std::get_if<std::string>(&opened)) return HostProblem{std::move(*why)};
  return std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
}

std::optional<HostProblem> create_folder(const std::string& dir, bool demo) {
  auto why = create_machine(dir);
  if (!why && demo) why = fill_demo_machine(dir);
  if (why) return HostProblem{*std::move(why)};
  return std::nullopt;
}

bool is_empty_or_missing(const std::string& dir) {
  std::error_code failed;
  return !std::filesystem::exists(dir, failed) || std::filesystem::is_empty(dir, failed);
}

// Makes the demo machine beside its place and then puts it there, so that it is there whole or not
// at all, whoever interrupts.
std::optional<HostProblem> make_demo_machine(const std::string& dir) {
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(dir).parent_path(), failed);
  std::string beside = dir + ".XXXXXX";
  if (failed || mkdtemp(beside.data()) == nullptr) {
    return HostProblem{dir + ": the demo machine cannot be made here"};
  }
  auto problem = create_folder(beside, true);
  if (!problem) std::filesystem::rename(beside, dir, failed);
  if (!problem && !failed) return std::nullopt;

  std::error_code ignored;
  std::filesystem::remove_all(beside, ignored);
  // Another run may have made it in the meantime.
  if (!problem && !is_empty_or_missing(dir)) return std::nullopt;
  if (!problem) problem = HostProblem{dir + ": " + failed.message()};
  return problem;
}

class FolderHost final : public MachineHost {
 public:
  [[nodiscard]] std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open(
      const std::optional<std::string>& dir, std::ostream& notices) override;
  [[nodiscard]] std::optional<HostProblem> create(const std::string& dir, bool demo) override {
    return create_folder(dir, demo);
  }
  [[nodiscard]] std::variant<MachineSummary, HostProblem> describe(const std::string& dir) override;
  [[nodiscard]] std::variant<std::string, HostProblem> export_registry(
      const std::string& dir) override;
  [[nodiscard]] std::optional<HostProblem> import_registry(const std::string& dir,
                                                           const std::string& content) override;

 private:
  // The folder to work on when the command line names none.
  [[nodiscard]] static std::variant<std::string, HostProblem> usual_folder(std::ostream& notices);
};

std::variant<std::string, HostProblem> FolderHost::usual_folder(std::ostream& notices) {
  auto named = host_variable("QUILLVANE_MACHINE");
  if (named && !named->empty()) return *std::move(named);
  auto demo = demo_folder(host_variable);
  if (!demo) return HostProblem{"--machine: needed here, as there is no home for a demo machine"};
  if (is_empty_or_missing(*demo)) {
    if (auto problem = make_demo_machine(*demo)) return *std::move(problem);
    notices << "quillvane: demo machine: made in " << *demo << '\n';
  }
  return *std::move(demo);
}

std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> FolderHost::open(
    const std::optional<std::string>& dir, std::ostream& notices) {
  auto folder = dir ? std::variant<std::string, HostProblem>(*dir) : usual_folder(notices);
  if (auto* problem = std::get_if<HostProblem>(&folder)) return std::move(*problem);
  auto opened = open_folder(std::get<std::string>(folder));
  if (auto* problem = std::get_if<HostProblem>(&opened)) return std::move(*problem);
  return std::make_unique<FolderConsoleMachine>(
      std::get<std::unique_ptr<FolderMachine>>(std::move(opened)));
}

std::variant<MachineSummary, HostProblem> FolderHost::describe(const std::string& dir) {
  auto opened = open_folder(dir);
  if (auto* problem = std::get_if<HostProblem>(&opened)) return std::move(*problem);
  const auto& machine = std::get<std::unique_ptr<FolderMachine>>(opened);

  EffectLog ignored;
  QueuedDialogs dialogs(ignored);
  const Platform platform = machine->platform(dialogs);
  MachineSummary summary;
  for (const MachineDrive& drive : machine->state().drives) {
    const auto space = platform.drives.space(std::string(1, drive.letter) + ":\\");
    MachineSummary::Drive row{
        std::string(1, drive.letter), drive_type_word(drive.type), drive.folder, {}, {}};
    if (space) {
      row.total_bytes = space->total_bytes;
      row.free_bytes = space->free_bytes;
    }
    summary.drives.push_back(std::move(row));
  }
  summary.environment = platform.environment.all();
  for (const MachineProcess& process : machine->state().processes) {
    summary.processes.push_back({process.id, process.name});
  }
  return summary;
}

std::variant<std::string, HostProblem> FolderHost::export_registry(const std::string& dir) {
  auto opened = open_folder(dir);
  if (auto* problem = std::get_if<HostProblem>(&opened)) return std::move(*problem);
  auto text = export_reg_file(std::get<std::unique_ptr<FolderMachine>>(opened)->registry());
  if (!text) return HostProblem{dir + "/registry.db: cannot be read whole"};
  return *std::move(text);
}

std::optional<HostProblem> FolderHost::import_registry(const std::string& dir,
                                                       const std::string& content) {
  auto opened = open_folder(dir);
  if (auto* problem = std::get_if<HostProblem>(&opened)) return std::move(*problem);
  auto why = import_reg_file(std::get<std::unique_ptr<FolderMachine>>(opened)->registry(), content);
  if (why) return HostProblem{*std::move(why)};
  return std::nullopt;
}

}  // namespace

std::unique_ptr<MachineHost> make_machine_host() { return std::make_unique<FolderHost>(); }

}  // namespace quillvane
