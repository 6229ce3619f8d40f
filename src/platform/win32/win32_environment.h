// The environment of this process.
#pragma once

#include "platform/environment.h"

namespace quillvane {

class Win32Environment final : public Environment {
 public:
  [[nodiscard]] std::string get(const std::string& name) const override;
  [[nodiscard]] std::string expand(const std::string& text) const override;
  [[nodiscard]] std::vector<std::pair<std::string, std::string>> all() const override;
};

}  // namespace quillvane
