// Where the console finds its machines: machine folders, and on Windows this PC too.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/code_page.h"
#include "view/console/console_machine.h"

namespace quillvane {

// Why a thing could not be done: "WHAT: WHY" in one line.
struct HostProblem {
  std::string text;
};

// What `machine show` tells.
struct MachineSummary {
  struct Drive {
    std::string letter;
    std::string type;  // as in machine.json
    std::string folder;
    std::optional<std::uint64_t> total_bytes;  // nothing without a medium
    std::optional<std::uint64_t> free_bytes;
  };
  struct Process {
    std::uint32_t id = 0;
    std::string name;
  };

  std::vector<Drive> drives;
  std::vector<std::pair<std::string, std::string>> environment;
  std::vector<Process> processes;
};

class MachineHost {
 public:
  virtual ~MachineHost() = default;

  // Opens the machine of folder `dir`, or the usual one without it. What the user should know about
  // the choice goes to `notices`, one line each.
  [[nodiscard]] virtual std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open(
      const std::optional<std::string>& dir, std::ostream& notices) = 0;

  // Makes an empty machine in `dir`, or one with junk of every kind.
  [[nodiscard]] virtual std::optional<HostProblem> create(const std::string& dir, bool demo) = 0;

  [[nodiscard]] virtual std::variant<MachineSummary, HostProblem> describe(
      const std::string& dir) = 0;

  // The registry of the machine of folder `dir` as the content of a .reg file, and back.
  [[nodiscard]] virtual std::variant<std::string, HostProblem> export_registry(
      const std::string& dir) = 0;
  [[nodiscard]] virtual std::optional<HostProblem> import_registry(const std::string& dir,
                                                                   const std::string& content) = 0;

  // A code page, whatever the machine; null for one that is not installed here.
  [[nodiscard]] virtual const CodePage* code_page(int number) const = 0;
};

}  // namespace quillvane
