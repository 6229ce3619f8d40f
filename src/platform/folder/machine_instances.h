// The instances of the program that work on one machine folder.
#pragma once

#include <string>
#include <utility>

#include "platform/instances.h"

namespace quillvane {

class MachineInstances final : public Instances {
 public:
  // `dir` is the machine's folder. Nothing is written into it.
  explicit MachineInstances(std::string dir) : dir_(std::move(dir)) {}

  [[nodiscard]] Hold announce_cleaning() override;
  [[nodiscard]] Hold hold_off_cleaning() override;

 private:
  std::string dir_;
};

}  // namespace quillvane
