#include "platform/folder/host_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <variant>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

TEST(HostFileOnWindows, ReadsTheWholeContent) {
  const TempFolder folder;
  const std::string content = std::string(200'000, 'a') + '\0' + "\r\nend";
  folder.write("a", content);
  EXPECT_EQ(std::get<std::string>(read_host_file(folder.path_of("a"))), content);
}

TEST(HostFileOnWindows, TellsThatAFileIsNotThere) {
  const TempFolder folder;
  for (const char* name : {"none", "none/deeper"}) {
    const auto result = read_host_file(folder.path_of(name));
    const auto* error = std::get_if<std::error_code>(&result);
    ASSERT_NE(error, nullptr) << name;
    EXPECT_EQ(*error, std::errc::no_such_file_or_directory) << name << ": " << error->message();
  }
}

TEST(HostFileOnWindows, ReplacesTheContentAndLeavesNothingBeside) {
  const TempFolder folder;
  folder.write("a", "old and long");
  folder.make_folder("b");
  EXPECT_EQ(replace_host_file(folder.path_of("a"), "new"), std::error_code());
  EXPECT_TRUE(replace_host_file(folder.path_of("b"), "x"));
  EXPECT_EQ(folder.read("a"), "new");
  const std::filesystem::directory_iterator entries(folder.path());
  EXPECT_EQ(std::distance(begin(entries), end(entries)), 2);
}

}  // namespace
}  // namespace quillvane
