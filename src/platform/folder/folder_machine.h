// A Windows machine held in a folder: what of it is a file lies in a folder a drive, the registry
// in registry.db, all else in machine.json. Everything that the program asks of a machine is
// answered from there.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

#include "platform/dialogs.h"
#include "platform/folder/machine_state.h"
#include "platform/platform.h"
#include "platform/virtual/effect_log.h"
#include "platform/virtual/virtual_loop.h"

namespace quillvane {

class MachineFiles;
class FolderRegistry;

class FolderMachine {
 public:
  // Opens the machine of folder `dir`; the text is what could not be read and why. One of
  // machine.json and the folder of a drive must be there; all else that is missing is as the
  // defaults have it. The clock shows the host's time in the machine's time zone.
  [[nodiscard]] static std::variant<std::unique_ptr<FolderMachine>, std::string> open(
      const std::string& dir);

  ~FolderMachine();
  FolderMachine(const FolderMachine&) = delete;
  FolderMachine& operator=(const FolderMachine&) = delete;

  // The machine as the program sees it. Both must outlive the result.
  [[nodiscard]] Platform platform(Dialogs& dialogs);

  [[nodiscard]] const std::string& folder() const { return dir_; }
  [[nodiscard]] const MachineState& state() const { return state_; }
  [[nodiscard]] EffectLog& effects() { return effects_; }
  [[nodiscard]] VirtualLoop& loop() { return loop_; }
  [[nodiscard]] MachineFiles& files() { return *files_; }
  [[nodiscard]] FolderRegistry& registry() { return *registry_; }

  // The registry once more, for a thread beside the one that works on the machine; null when it
  // cannot be opened. Its effects are not noted. The machine must outlive it.
  [[nodiscard]] std::unique_ptr<Registry> another_registry();

  // What a script sets up. It holds as long as this object; machine.json stays as it is.
  void set_environment(const std::string& name, const std::string& value);
  void add_process(std::uint32_t id, const std::string& name);
  void add_in_use(const std::string& path);
  void add_denied(const std::string& folder);
  void add_url_cache_entry(MachineCacheEntry entry);
  void add_window(const std::string& title);

 private:
  FolderMachine(std::string dir, MachineState state);

  // Brings machine.json up to date with what has left the state.
  void save() const;

  struct Parts;  // the small concerns, which need nothing but state and effects

  std::string dir_;
  MachineState state_;
  EffectLog effects_;
  EffectLog unseen_effects_;
  VirtualLoop loop_;
  std::unique_ptr<MachineFiles> files_;
  std::unique_ptr<FolderRegistry> registry_;
  std::unique_ptr<Parts> parts_;
};

}  // namespace quillvane
