// The processes of the machine.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillvane {

struct ProcessInfo {
  std::uint32_t id = 0;
  std::string name;  // of the executable, without folder
};

class Processes {
 public:
  virtual ~Processes() = default;

  // In the system's order; empty when they cannot be listed.
  [[nodiscard]] virtual std::vector<ProcessInfo> list() const = 0;

  // Ends a process at once. False when it is gone already or may not be ended.
  [[nodiscard]] virtual bool terminate(std::uint32_t id) = 0;
};

}  // namespace quillvane
