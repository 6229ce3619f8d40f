#include "cleaning/thumbnail_policy.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "support/registry_values.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

constexpr const char* kPolicies =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
constexpr const char* kWindowsPolicies = "Software\\Policies\\Microsoft\\Windows\\Explorer";
constexpr const char* kAdvanced =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced";

struct Policy {
  Hive hive;
  const char* key;
  const char* name;
};

constexpr Policy kAll[] = {
    {Hive::kCurrentUser, kPolicies, "NoThumbnailCache"},
    {Hive::kCurrentUser, kPolicies, "DisableThumbnailCache"},
    {Hive::kCurrentUser, kWindowsPolicies, "DisableThumbsDBOnNetworkFolders"},
    {Hive::kLocalMachine, kPolicies, "NoThumbnailCache"},
    {Hive::kLocalMachine, kPolicies, "DisableThumbnailCache"},
    {Hive::kCurrentUser, kAdvanced, "DisableThumbnailCache"},
    {Hive::kCurrentUser, kAdvanced, "NoThumbnailCache"},
    {Hive::kLocalMachine, kAdvanced, "DisableThumbnailCache"},
    {Hive::kLocalMachine, kAdvanced, "NoThumbnailCache"},
};

TEST(ThumbnailPolicy, SetsAllNineValuesAndTakesThemBack) {
  TempMachine machine;
  Registry& registry = machine.platform().registry;
  for (const Policy& policy : kAll) machine.add_registry_key(policy.hive, policy.key);

  disablethumbcache(registry);
  for (const Policy& policy : kAll) {
    EXPECT_EQ(GetRegistryValue(registry, policy.hive, policy.key, policy.name),
              RegistryContent(std::uint32_t{1}))
        << policy.key << " " << policy.name;
  }
  enablethumbcache(registry);
  for (const Policy& policy : kAll) {
    EXPECT_EQ(GetRegistryValue(registry, policy.hive, policy.key, policy.name),
              RegistryContent(std::uint32_t{0}))
        << policy.key << " " << policy.name;
  }
}

TEST(ThumbnailPolicy, MakesNoKey) {
  TempMachine machine;
  Registry& registry = machine.platform().registry;
  machine.add_registry_key(Hive::kCurrentUser, kAdvanced);

  disablethumbcache(registry);

  EXPECT_FALSE(registry.values(Hive::kCurrentUser, kPolicies).has_value());
  EXPECT_EQ(GetRegistryValue(registry, Hive::kCurrentUser, kAdvanced, "NoThumbnailCache"),
            RegistryContent(std::uint32_t{1}));
}

}  // namespace
}  // namespace quillvane
