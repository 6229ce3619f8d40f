#include "machine/demo_folder.h"

#include <gtest/gtest.h>

#include <map>

namespace quillvane {
namespace {

std::optional<std::string> folder_with(const std::map<std::string, std::string>& environment) {
  return demo_folder([&](const char* name) -> std::optional<std::string> {
    const auto found = environment.find(name);
    if (found == environment.end()) return std::nullopt;
    return found->second;
  });
}

TEST(DemoFolder, LiesInTheUsersDataFolder) {
  EXPECT_EQ(folder_with({{"XDG_DATA_HOME", "/data"}, {"HOME", "/home/u"}}), "/data/quillvane/demo");
  EXPECT_EQ(folder_with({{"HOME", "/home/u"}}), "/home/u/.local/share/quillvane/demo");
}

TEST(DemoFolder, ADataFolderThatIsNotAbsoluteIsPassedOver) {
  for (const char* data : {"", "data"}) {
    EXPECT_EQ(folder_with({{"XDG_DATA_HOME", data}, {"HOME", "/home/u"}}),
              "/home/u/.local/share/quillvane/demo");
  }
}

TEST(DemoFolder, IsNowhereForAUserWithoutAHome) {
  EXPECT_EQ(folder_with({}), std::nullopt);
  EXPECT_EQ(folder_with({{"HOME", ""}}), std::nullopt);
}

}  // namespace
}  // namespace quillvane
