#include <gtest/gtest.h>

#include <filesystem>
#include <system_error>

#include "tests/contract/contract_host.h"

namespace quillvane {

// A link is removed with the folder it lies in.
HostLinks::~HostLinks() = default;

void HostLinks::add(const std::string& link, const std::string& target) {
  std::error_code failed;
  std::filesystem::create_symlink(target, link, failed);
  EXPECT_FALSE(failed) << link << ": " << failed.message();
}

std::uint32_t constant_attributes_of_host() { return 0; }

}  // namespace quillvane
