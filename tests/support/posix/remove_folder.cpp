#include "tests/support/remove_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <system_error>

namespace quillvane {

void remove_test_folder(const std::string& folder) {
  std::error_code failed;
  std::filesystem::remove_all(folder, failed);
  EXPECT_FALSE(failed) << folder << ": " << failed.message();
}

}  // namespace quillvane
