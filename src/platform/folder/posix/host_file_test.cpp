#include "platform/folder/host_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <variant>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

std::error_code read_error(const std::string& path) {
  const auto result = read_host_file(path, 1000);
  const auto* error = std::get_if<std::error_code>(&result);
  return error == nullptr ? std::error_code() : *error;
}

TEST(HostFile, ReadsTheWholeContent) {
  const TempFolder folder;
  const std::string content = std::string(200'000, 'a') + '\0' + "end";
  folder.write("a", content);
  EXPECT_EQ(std::get<std::string>(read_host_file(folder.path_of("a"), content.size())), content);
}

TEST(HostFile, TellsWhyAFileCannotBeRead) {
  const TempFolder folder;
  EXPECT_EQ(read_error(folder.path_of("none")), std::errc::no_such_file_or_directory);
  EXPECT_EQ(read_error(folder.path()), std::errc::is_a_directory);
}

// A pipe that nobody writes to would be waited for, and a device need not come to an end.
TEST(HostFile, ReadsNothingButFiles) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo(folder.path_of("pipe").c_str(), 0600), 0);
  folder.make_link("zero", "/dev/zero");
  EXPECT_EQ(read_error(folder.path_of("pipe")), std::errc::no_such_device);
  EXPECT_EQ(read_error(folder.path_of("zero")), std::errc::no_such_device);
}

TEST(HostFile, ReadsNoMoreThanIsAskedFor) {
  const TempFolder folder;
  folder.write("a", std::string(1000, 'a'));
  folder.write("b", std::string(1001, 'b'));
  folder.write_sparse("large", std::uintmax_t{1} << 40U);
  EXPECT_EQ(read_error(folder.path_of("a")), std::error_code());
  EXPECT_EQ(read_error(folder.path_of("b")), std::errc::file_too_large);
  EXPECT_EQ(read_error(folder.path_of("large")), std::errc::file_too_large);
}

TEST(HostFile, ReplacesTheContentAndKeepsThePermissions) {
  const TempFolder folder;
  folder.write("a", "old and long");
  fs::permissions(folder.path_of("a"), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(replace_host_file(folder.path_of("a"), "new"), std::error_code());
  EXPECT_EQ(folder.read("a"), "new");
  EXPECT_EQ(fs::status(folder.path_of("a")).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST(HostFile, LeavesNothingBeside) {
  const TempFolder folder;
  EXPECT_EQ(replace_host_file(folder.path_of("a"), "x"), std::error_code());
  folder.make_folder("b/full");
  EXPECT_EQ(replace_host_file(folder.path_of("b"), "x"), std::errc::is_a_directory);
  int entries = 0;
  for (const auto& entry : fs::directory_iterator(folder.path())) {
    EXPECT_TRUE(entry.path().filename() == "a" || entry.path().filename() == "b") << entry.path();
    ++entries;
  }
  EXPECT_EQ(entries, 2);
}

}  // namespace
}  // namespace quillvane
