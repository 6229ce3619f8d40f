// Without another machine named, the console on Windows works on this PC.

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

#include "app/folder_host.h"
#include "app/make_machine_host.h"
#include "platform/unicode_case.h"
#include "platform/win32/win32_environment.h"
#include "platform/win32/win32_loop.h"
#include "platform/win32/win32_machine.h"
#include "platform/win32/win32_registry.h"

namespace quillvane {

namespace {

class Win32ConsoleMachine final : public ConsoleMachine {
 public:
  Win32ConsoleMachine() : dialogs_(effects_), loop_(Win32Loop().local_now()) {}

  [[nodiscard]] Platform platform() override { return machine_.platform(dialogs_, loop_); }
  [[nodiscard]] VirtualLoop& loop() override { return loop_; }
  [[nodiscard]] QueuedDialogs& dialogs() override { return dialogs_; }
  [[nodiscard]] EffectLog& effects() override { return effects_; }
  [[nodiscard]] std::unique_ptr<Registry> another_registry() override {
    return std::make_unique<Win32Registry>();
  }

  [[nodiscard]] Problem set_environment(const std::string& name,
                                        const std::string& value) override {
    if (_putenv_s(name.c_str(), value.c_str()) != 0) return name + ": cannot be set";
    return std::nullopt;
  }
  [[nodiscard]] Problem add_process(std::uint32_t /*id*/, const std::string& name) override {
    return name + ": " + kReal;
  }
  [[nodiscard]] Problem add_in_use(const std::string& path) override { return path + ": " + kReal; }
  [[nodiscard]] Problem add_denied(const std::string& folder) override {
    return folder + ": " + kReal;
  }
  [[nodiscard]] Problem add_url_cache_entry(const std::string& url,
                                            const std::string& /*file*/) override {
    return url + ": " + kReal;
  }
  [[nodiscard]] Problem add_window(const std::string& title) override {
    return title + ": " + kReal;
  }

 private:
  static constexpr const char* kReal = "this is a real PC, where a script cannot make that up";

  Win32Machine machine_;
  EffectLog effects_;
  QueuedDialogs dialogs_;
  VirtualLoop loop_;
};

std::optional<std::string> host_variable(const std::string& name) {
  for (const auto& [other, value] : Win32Environment().all()) {
    if (same_name(other, name)) return value;
  }
  return std::nullopt;
}

class Win32Host final : public FolderHost {
 public:
  [[nodiscard]] std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open(
      const std::optional<std::string>& dir, std::ostream& /*notices*/) override {
    if (dir) return open_folder(*dir);
    // A script's empty variable is no wish for the real PC.
    const auto named = host_variable("QUILLVANE_MACHINE");
    if (named && named->empty()) return HostProblem{"QUILLVANE_MACHINE: is set and empty"};
    if (named) return open_folder(*named);
    return std::make_unique<Win32ConsoleMachine>();
  }
};

}  // namespace

std::unique_ptr<MachineHost> make_machine_host() { return std::make_unique<Win32Host>(); }

}  // namespace quillvane
