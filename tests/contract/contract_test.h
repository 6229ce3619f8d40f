// What every contract test begins with: a machine, and shorthands to look at it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/contract/contract_machine.h"

namespace quillvane {

class ContractTest : public testing::Test {
 protected:
  [[nodiscard]] std::string path_of(std::string_view name) const { return machine->path_of(name); }

  const std::unique_ptr<ContractMachine> machine = ContractMachine::make();
  const Platform platform = machine->platform();
};

using Names = std::vector<std::string>;

[[nodiscard]] inline Names names_of(const std::vector<FolderEntry>& entries) {
  Names names;
  for (const FolderEntry& entry : entries) names.push_back(entry.name);
  return names;
}

}  // namespace quillvane
