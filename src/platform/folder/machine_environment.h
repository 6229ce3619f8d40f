// The environment of a machine folder: machine.json's, over the defaults of a fresh Windows.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/environment.h"
#include "platform/folder/machine_state.h"

namespace quillvane {

using EnvironmentVariables = std::vector<std::pair<std::string, std::string>>;

// What a machine has when nothing else is told.
[[nodiscard]] EnvironmentVariables default_environment();

// Sets one variable; one of the same name but for case is replaced and keeps its place.
void set_variable(EnvironmentVariables& variables, const std::string& name,
                  const std::string& value);

class MachineEnvironment final : public Environment {
 public:
  // `state` outlives this object, and changes of it show.
  explicit MachineEnvironment(const MachineState& state) : state_(state) {}

  [[nodiscard]] std::string get(const std::string& name) const override;
  [[nodiscard]] std::string expand(const std::string& text) const override;
  [[nodiscard]] std::vector<std::pair<std::string, std::string>> all() const override;

 private:
  const MachineState& state_;
};

}  // namespace quillvane
