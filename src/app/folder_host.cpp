#include "app/folder_host.h"

#include <utility>

#include "app/folder_console_machine.h"
#include "machine/create_machine.h"
#include "machine/demo_machine.h"
#include "machine/reg_file.h"
#include "platform/folder/drive_words.h"
#include "platform/folder/host_code_page.h"
#include "platform/folder/registry_store.h"

namespace quillvane {

namespace {

using OpenedFolder = std::variant<std::unique_ptr<FolderMachine>, HostProblem>;

OpenedFolder open_machine(const std::string& dir) {
  auto opened = FolderMachine::open(dir);
  if (auto* why = std::get_if<std::string>(&opened)) return HostProblem{std::move(*why)};
  return std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
}

}  // namespace

std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> FolderHost::open_folder(
    const std::string& dir) {
  auto opened = open_machine(dir);
  if (auto* problem = std::get_if<HostProblem>(&opened)) return std::move(*problem);
  return std::make_unique<FolderConsoleMachine>(
      std::get<std::unique_ptr<FolderMachine>>(std::move(opened)));
}

std::optional<HostProblem> FolderHost::create(const std::string& dir, bool demo) {
  auto why = create_machine(dir, demo ? fill_demo_machine : FillMachine());
  if (why) return HostProblem{*std::move(why)};
  return std::nullopt;
}

std::variant<MachineSummary, HostProblem> FolderHost::describe(const std::string& dir) {
  auto opened = open_machine(dir);
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
  auto opened = open_machine(dir);
  if (auto* problem = std::get_if<HostProblem>(&opened)) return std::move(*problem);
  auto text = export_reg_file(std::get<std::unique_ptr<FolderMachine>>(opened)->registry());
  if (!text) return HostProblem{dir + "/registry.db: cannot be read whole"};
  return *std::move(text);
}

std::optional<HostProblem> FolderHost::import_registry(const std::string& dir,
                                                       const std::string& content) {
  auto opened = open_machine(dir);
  if (auto* problem = std::get_if<HostProblem>(&opened)) return std::move(*problem);
  auto why = import_reg_file(std::get<std::unique_ptr<FolderMachine>>(opened)->registry(), content);
  if (why) return HostProblem{*std::move(why)};
  return std::nullopt;
}

const CodePage* FolderHost::code_page(int number) const { return host_code_page(number); }

}  // namespace quillvane
