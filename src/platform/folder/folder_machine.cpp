#include "platform/folder/folder_machine.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <system_error>
#include <utility>

#include "platform/folder/drive_words.h"
#include "platform/folder/host_path.h"
#include "platform/folder/machine_clock.h"
#include "platform/folder/machine_drives.h"
#include "platform/folder/machine_environment.h"
#include "platform/folder/machine_event_log.h"
#include "platform/folder/machine_files.h"
#include "platform/folder/machine_instances.h"
#include "platform/folder/machine_json.h"
#include "platform/folder/machine_links.h"
#include "platform/folder/machine_locale.h"
#include "platform/folder/machine_outward.h"
#include "platform/folder/machine_processes.h"
#include "platform/folder/machine_system.h"
#include "platform/folder/machine_url_cache.h"
#include "platform/folder/registry_store.h"

namespace quillvane {

namespace {

void empty_recycle_bins(const MachineState& state, MachineFiles& files) {
  for (const MachineDrive& drive : state.drives) {
    files.remove_contents(std::string(1, drive.letter) + ":\\$Recycle.Bin");
  }
}

// A folder without any of these is another folder than its user thinks, not a clean machine.
bool holds_machine(const std::string& dir) {
  const std::filesystem::path folder = host_path(dir);
  std::error_code failed;
  if (std::filesystem::exists(folder / "machine.json", failed) || failed) return true;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const auto drive = folder / host_path(default_drive_folder(letter));
    if (std::filesystem::is_directory(drive, failed)) return true;
  }
  return false;
}

}  // namespace

struct FolderMachine::Parts {
  Parts(const std::string& dir, MachineState& state, EffectLog& effects, MachineFiles& files,
        const MessageLoop& loop, const std::function<void()>& save)
      : drives(state),
        environment(state),
        system(state),
        event_log(effects),
        processes(state, effects, save),
        instances(dir),
        links(state, files, environment),
        url_cache(state, save),
        security(effects),
        shell(state, effects, files, loop, [&state, &files] { empty_recycle_bins(state, files); }),
        suite(state, effects),
        tray(effects) {}

  MachineDrives drives;
  MachineEnvironment environment;
  MachineSystem system;
  MachineLocale locale;
  MachineEventLog event_log;
  MachineProcesses processes;
  MachineInstances instances;
  MachineLinks links;
  MachineUrlCache url_cache;
  MachineSecurity security;
  MachineShell shell;
  MachineSuiteChannel suite;
  MachineTray tray;
};

std::variant<std::unique_ptr<FolderMachine>, std::string> FolderMachine::open(
    const std::string& dir) {
  std::error_code failed;
  if (!std::filesystem::is_directory(host_path(dir), failed)) {
    return dir + ": " + (failed ? failed.message() : "is no folder");
  }
  if (!holds_machine(dir)) {
    return dir + ": is no machine folder (it has neither machine.json nor a drive_c)";
  }
  auto state = load_machine_json(dir);
  if (const auto* error = std::get_if<std::string>(&state)) return dir + "/" + *error;

  std::unique_ptr<FolderMachine> machine(
      new FolderMachine(dir, std::get<MachineState>(std::move(state))));
  auto registry = FolderRegistry::open(dir + "/registry.db", machine->effects_);
  if (const auto* error = std::get_if<std::string>(&registry)) return dir + "/" + *error;
  machine->registry_ = std::get<std::unique_ptr<FolderRegistry>>(std::move(registry));
  return machine;
}

FolderMachine::FolderMachine(std::string dir, MachineState state)
    : dir_(std::move(dir)),
      state_(std::move(state)),
      loop_(machine_clock(std::chrono::system_clock::now(), state_.utc_offset_minutes)),
      files_(make_machine_files(state_)),
      parts_(std::make_unique<Parts>(dir_, state_, effects_, *files_, loop_, [this] { save(); })) {}

FolderMachine::~FolderMachine() = default;

Platform FolderMachine::platform(Dialogs& dialogs) {
  return {.files = *files_,
          .drives = parts_->drives,
          .registry = *registry_,
          .environment = parts_->environment,
          .system = parts_->system,
          .locale = parts_->locale,
          .event_log = parts_->event_log,
          .processes = parts_->processes,
          .instances = parts_->instances,
          .links = parts_->links,
          .url_cache = parts_->url_cache,
          .security = parts_->security,
          .shell = parts_->shell,
          .suite = parts_->suite,
          .tray = parts_->tray,
          .loop = loop_,
          .dialogs = dialogs};
}

std::unique_ptr<Registry> FolderMachine::another_registry() {
  auto opened = FolderRegistry::open(dir_ + "/registry.db", unseen_effects_);
  if (std::holds_alternative<std::string>(opened)) return nullptr;
  return std::get<std::unique_ptr<FolderRegistry>>(std::move(opened));
}

void FolderMachine::save() const {
  // The call that made the change cannot tell of it: a process has ended, whether or not the folder
  // can be written.
  static_cast<void>(save_removals(dir_, state_));
}

void FolderMachine::set_environment(const std::string& name, const std::string& value) {
  set_variable(state_.environment, name, value);
}

void FolderMachine::add_process(std::uint32_t id, const std::string& name) {
  state_.processes.push_back({id, name});
}

void FolderMachine::add_in_use(const std::string& path) { state_.in_use.push_back(path); }

void FolderMachine::add_denied(const std::string& folder) { state_.denied.push_back(folder); }

void FolderMachine::add_url_cache_entry(MachineCacheEntry entry) {
  state_.url_cache.push_back(std::move(entry));
}

void FolderMachine::add_window(const std::string& title) { state_.windows.push_back(title); }

}  // namespace quillvane
