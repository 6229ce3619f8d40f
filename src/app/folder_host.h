// What the console can do to machine folders on every system. Which machine is the usual one each
// system says for itself.
#pragma once

#include "view/console/machine_host.h"

namespace quillvane {

class FolderHost : public MachineHost {
 public:
  [[nodiscard]] std::optional<HostProblem> create(const std::string& dir, bool demo) override;
  [[nodiscard]] std::variant<MachineSummary, HostProblem> describe(const std::string& dir) override;
  [[nodiscard]] std::variant<std::string, HostProblem> export_registry(
      const std::string& dir) override;
  [[nodiscard]] std::optional<HostProblem> import_registry(const std::string& dir,
                                                           const std::string& content) override;
  [[nodiscard]] const CodePage* code_page(int number) const override;

 protected:
  [[nodiscard]] static std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open_folder(
      const std::string& dir);
};

}  // namespace quillvane
