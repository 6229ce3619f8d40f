// The instances of the program on this PC, of all its users.
#pragma once

#include <string>
#include <utility>

#include "platform/instances.h"

namespace quillvane {

class Win32Instances final : public Instances {
 public:
  // Instances that give the same name know of each other. A name holds no backslash.
  explicit Win32Instances(std::wstring name = L"Quillvane") : name_(std::move(name)) {}

  [[nodiscard]] Hold announce_cleaning() override;
  [[nodiscard]] Hold hold_off_cleaning() override;

 private:
  std::wstring name_;
};

}  // namespace quillvane
