// Hands out one machine, which a test has staged and can look at when the command is done.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <variant>

#include "platform/folder/host_code_page.h"
#include "tests/support/temp_console_machine.h"
#include "view/console/machine_host.h"

namespace quillvane {

class OneMachineHost final : public MachineHost {
 public:
  std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open(
      const std::optional<std::string>& /*dir*/, std::ostream& /*notices*/) override {
    return std::make_unique<TempConsoleMachine>(machine);
  }
  std::optional<HostProblem> create(const std::string& /*dir*/, bool /*demo*/) override {
    return HostProblem{"create: not here"};
  }
  std::variant<MachineSummary, HostProblem> describe(const std::string& /*dir*/) override {
    return HostProblem{"describe: not here"};
  }
  std::variant<std::string, HostProblem> export_registry(const std::string& /*dir*/) override {
    return HostProblem{"export: not here"};
  }
  std::optional<HostProblem> import_registry(const std::string& /*dir*/,
                                             const std::string& /*content*/) override {
    return HostProblem{"import: not here"};
  }
  const CodePage* code_page(int number) const override { return host_code_page(number); }

  TempConsoleMachine machine;
};

}  // namespace quillvane
