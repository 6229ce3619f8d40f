// This PC is the one machine of the console on Windows.

#include <cstdlib>
#include <string>

#include "app/make_machine_host.h"
#include "platform/win32/win32_loop.h"
#include "platform/win32/win32_machine.h"

namespace quillvane {

namespace {

class Win32ConsoleMachine final : public ConsoleMachine {
 public:
  Win32ConsoleMachine() : dialogs_(effects_), loop_(Win32Loop().local_now()) {}

  [[nodiscard]] Platform platform() override { return machine_.platform(dialogs_, loop_); }
  [[nodiscard]] VirtualLoop& loop() override { return loop_; }
  [[nodiscard]] QueuedDialogs& dialogs() override { return dialogs_; }
  [[nodiscard]] EffectLog& effects() override { return effects_; }

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

// Machine folders are not part of this build.
class Win32Host final : public MachineHost {
 public:
  [[nodiscard]] std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open(
      const std::optional<std::string>& dir, std::ostream& /*notices*/) override {
    if (dir) return missing("--machine");
    // Whoever set it means that machine, not this PC.
    if (std::getenv("QUILLVANE_MACHINE") != nullptr) return missing("QUILLVANE_MACHINE");
    return std::make_unique<Win32ConsoleMachine>();
  }
  [[nodiscard]] std::optional<HostProblem> create(const std::string& /*dir*/,
                                                  bool /*demo*/) override {
    return missing("machine create");
  }
  [[nodiscard]] std::variant<MachineSummary, HostProblem> describe(
      const std::string& /*dir*/) override {
    return missing("machine show");
  }
  [[nodiscard]] std::variant<std::string, HostProblem> export_registry(
      const std::string& /*dir*/) override {
    return missing("registry export");
  }
  [[nodiscard]] std::optional<HostProblem> import_registry(
      const std::string& /*dir*/, const std::string& /*content*/) override {
    return missing("registry import");
  }

 private:
  static HostProblem missing(const std::string& what) {
    return {what + ": not available in this build, which works on this PC alone"};
  }
};

}  // namespace

std::unique_ptr<MachineHost> make_machine_host() { return std::make_unique<Win32Host>(); }

}  // namespace quillvane
