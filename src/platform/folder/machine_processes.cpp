#include "platform/folder/machine_processes.h"

#include <algorithm>
#include <utility>

namespace quillvane {

MachineProcesses::MachineProcesses(MachineState& state, EffectLog& effects,
                                   std::function<void()> save)
    : state_(state), effects_(effects), save_(std::move(save)) {}

std::vector<ProcessInfo> MachineProcesses::list() const {
  std::vector<ProcessInfo> processes;
  for (const MachineProcess& process : state_.processes) {
    processes.push_back({process.id, process.name});
  }
  return processes;
}

bool MachineProcesses::terminate(std::uint32_t id) {
  const auto process = std::find_if(state_.processes.begin(), state_.processes.end(),
                                    [&](const MachineProcess& p) { return p.id == id; });
  if (process == state_.processes.end()) return false;
  effects_.add("terminate", {{"id", std::int64_t{process->id}}, {"name", process->name}});
  state_.processes.erase(process);
  save_();
  return true;
}

}  // namespace quillvane
