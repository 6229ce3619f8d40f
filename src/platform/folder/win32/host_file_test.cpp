#include "platform/folder/host_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <variant>

#include "platform/folder/host_path.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

TEST(HostFileOnWindows, ReadsTheWholeContent) {
  const TempFolder folder;
  const std::string content = std::string(200'000, 'a') + '\0' + "\r\nend";
  folder.write("a", content);
  EXPECT_EQ(std::get<std::string>(read_host_file(folder.path_of("a"), content.size())), content);
}

TEST(HostFileOnWindows, TellsThatAFileIsNotThere) {
  const TempFolder folder;
  for (const char* name : {"none", "none/deeper"}) {
    const auto result = read_host_file(folder.path_of(name), 1000);
    const auto* error = std::get_if<std::error_code>(&result);
    ASSERT_NE(error, nullptr) << name;
    EXPECT_EQ(*error, std::errc::no_such_file_or_directory) << name << ": " << error->message();
  }
}

TEST(HostFileOnWindows, ReadsNoMoreThanIsAskedFor) {
  const TempFolder folder;
  folder.write("a", std::string(1001, 'a'));
  const auto result = read_host_file(folder.path_of("a"), 1000);
  const auto* error = std::get_if<std::error_code>(&result);
  ASSERT_NE(error, nullptr);
  EXPECT_EQ(*error, std::errc::file_too_large);
}

// Of a program that was killed a file may be left.
TEST(HostFileOnWindows, TakesAwayWhatAnEarlierWritingLeftBehind) {
  const TempFolder folder;
  folder.write("a", "old");
  folder.write(".quillvane-1.new", "half of");
  EXPECT_EQ(replace_host_file(folder.path_of("a"), "new"), std::error_code());
  EXPECT_EQ(folder.read("a"), "new");
  EXPECT_FALSE(folder.has(".quillvane-1.new"));
}

TEST(HostFileOnWindows, NeverWritesIntoAFileWithASecondName) {
  const TempFolder folder;
  folder.write("precious", "precious");
  std::filesystem::create_hard_link(host_path(folder.path_of("precious")),
                                    host_path(folder.path_of(".quillvane-1.new")));
  EXPECT_EQ(replace_host_file(folder.path_of("a"), "new"), std::error_code());
  EXPECT_EQ(folder.read("precious"), "precious");
  EXPECT_EQ(folder.read("a"), "new");
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
