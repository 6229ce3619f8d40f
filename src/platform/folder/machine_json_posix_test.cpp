// What only a Linux host has in the place of a machine's description.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <variant>

#include "platform/folder/machine_json.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

std::string refusal_of(const TempFolder& folder) {
  const auto result = load_machine_json(folder.path());
  const auto* error = std::get_if<std::string>(&result);
  return error == nullptr ? "accepted" : *error;
}

TEST(MachineJsonFile, ADeviceIsNoDescription) {
  const TempFolder folder;
  folder.make_link("machine.json", "/dev/zero");
  EXPECT_EQ(refusal_of(folder), "machine.json: cannot be read: is no file");
}

TEST(MachineJsonFile, APipeIsNoDescription) {
  const TempFolder folder;
  ASSERT_EQ(::mkfifo(folder.path_of("machine.json").c_str(), 0600), 0);
  EXPECT_EQ(refusal_of(folder), "machine.json: cannot be read: is no file");
}

}  // namespace
}  // namespace quillvane
