// The processes that a machine folder plays.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/folder/machine_state.h"
#include "platform/processes.h"
#include "platform/virtual/effect_log.h"

namespace quillvane {

class MachineProcesses final : public Processes {
 public:
  // An ended process leaves `state` and, through `save`, machine.json. All must outlive this
  // object.
  MachineProcesses(MachineState& state, EffectLog& effects, std::function<void()> save);

  [[nodiscard]] std::vector<ProcessInfo> list() const override;
  [[nodiscard]] bool terminate(std::uint32_t id) override;

 private:
  MachineState& state_;
  EffectLog& effects_;
  std::function<void()> save_;
};

}  // namespace quillvane
