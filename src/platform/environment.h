// The process environment. Names are looked up without regard to case.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace quillvane {

class Environment {
 public:
  virtual ~Environment() = default;

  // Empty when the variable is missing.
  [[nodiscard]] virtual std::string get(const std::string& name) const = 0;

  // Replaces each %NAME% that is set, as ExpandEnvironmentStringsA does; others stay as they are.
  [[nodiscard]] virtual std::string expand(const std::string& text) const = 0;

  // All variables, sorted by name without regard to case.
  [[nodiscard]] virtual std::vector<std::pair<std::string, std::string>> all() const = 0;
};

}  // namespace quillvane
