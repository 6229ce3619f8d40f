#include "machine/registry_setup.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <variant>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

class RegistrySetupTest : public testing::Test {
 protected:
  RegistrySetupTest() {
    auto opened = FolderRegistry::open(folder_.path_of("registry.db"), effects_);
    registry_ = std::get<std::unique_ptr<FolderRegistry>>(std::move(opened));
  }

  TempFolder folder_;
  EffectLog effects_;
  std::unique_ptr<FolderRegistry> registry_;
};

TEST_F(RegistrySetupTest, EachRowIsAKeyOrAValue) {
  constexpr RegistrySetup kRows[] = {
      {Hive::kUsers, RegistryType::kNone, "Bare"},
      {Hive::kCurrentUser, RegistryType::kSz, "A\\B", "", "text"},
      {Hive::kCurrentUser, RegistryType::kExpandSz, "A", "expand", "%X%"},
      {Hive::kCurrentUser, RegistryType::kMultiSz, "A", "list", "one"},
      {Hive::kCurrentUser, RegistryType::kDword, "A", "number", "16909060"},
  };
  ASSERT_TRUE(set_up_registry(*registry_, kRows));
  EXPECT_TRUE(registry_->values(Hive::kUsers, "Bare").has_value());
  EXPECT_EQ(registry_->value(Hive::kCurrentUser, "A\\B", ""),
            (RegistryValue{RegistryType::kSz, "text\0"s}));
  EXPECT_EQ(registry_->value(Hive::kCurrentUser, "A", "expand"),
            (RegistryValue{RegistryType::kExpandSz, "%X%\0"s}));
  EXPECT_EQ(registry_->value(Hive::kCurrentUser, "A", "list"),
            (RegistryValue{RegistryType::kMultiSz, "one\0\0"s}));
  EXPECT_EQ(registry_->value(Hive::kCurrentUser, "A", "number"),
            (RegistryValue{RegistryType::kDword, "\4\3\2\1"}));
}

TEST_F(RegistrySetupTest, ARowThatFailsLeavesNone) {
  constexpr RegistrySetup kRows[] = {{Hive::kUsers, RegistryType::kNone, "Good"},
                                     {Hive::kUsers, RegistryType::kNone, "B\\\\ad"}};
  EXPECT_FALSE(set_up_registry(*registry_, kRows));
  EXPECT_FALSE(registry_->values(Hive::kUsers, "Good").has_value());
}

}  // namespace
}  // namespace quillvane
