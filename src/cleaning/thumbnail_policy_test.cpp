#include "cleaning/thumbnail_policy.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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
  const Platform platform = machine.platform();
  Registry& registry = platform.registry;
  ThumbnailPolicy thumbnails(platform);
  for (const Policy& policy : kAll) machine.add_registry_key(policy.hive, policy.key);

  thumbnails.disablethumbcache();
  for (const Policy& policy : kAll) {
    EXPECT_EQ(GetRegistryValue(registry, policy.hive, policy.key, policy.name),
              RegistryContent(std::uint32_t{1}))
        << policy.key << " " << policy.name;
  }
  thumbnails.enablethumbcache();
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

  const Platform platform = machine.platform();
  ThumbnailPolicy(platform).disablethumbcache();

  EXPECT_FALSE(registry.values(Hive::kCurrentUser, kPolicies).has_value());
  EXPECT_EQ(GetRegistryValue(registry, Hive::kCurrentUser, kAdvanced, "NoThumbnailCache"),
            RegistryContent(std::uint32_t{1}));
}

// Writing below HKEY_LOCAL_MACHINE is refused, as to a user without an administrator's rights.
class UsersRegistry final : public Registry {
 public:
  explicit UsersRegistry(Registry& next) : next_(next) {}
  [[nodiscard]] RegistryRead<std::vector<std::string>> sub_keys(Hive hive, const std::string& key,
                                                                KeyAccess access) const override {
    return next_.sub_keys(hive, key, access);
  }
  [[nodiscard]] RegistryRead<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access) const override {
    return next_.values(hive, key, access);
  }
  [[nodiscard]] RegistryRead<RegistryValue> value(Hive hive, const std::string& key,
                                                  const std::string& name,
                                                  KeyAccess access) const override {
    return next_.value(hive, key, name, access);
  }
  RegistryWrite create_key(Hive hive, const std::string& key) override {
    if (hive == Hive::kLocalMachine) return RegistryWrite::failure("the rights are missing");
    return next_.create_key(hive, key);
  }
  RegistryWrite set_value(Hive hive, const std::string& key, const std::string& name,
                          const RegistryValue& value) override {
    if (hive == Hive::kLocalMachine) return RegistryWrite::failure("the rights are missing");
    return next_.set_value(hive, key, name, value);
  }
  RegistryWrite remove_value(Hive hive, const std::string& key, const std::string& name) override {
    if (hive == Hive::kLocalMachine) return RegistryWrite::failure("the rights are missing");
    return next_.remove_value(hive, key, name);
  }

 private:
  Registry& next_;
};

TEST(ThumbnailPolicy, ValuesThatAreRefusedDoNotStopTheOthers) {
  TempMachine machine;
  Registry& registry = machine.platform().registry;
  for (const Policy& policy : kAll) machine.add_registry_key(policy.hive, policy.key);
  machine.set_registry_number(Hive::kLocalMachine, kPolicies, "NoThumbnailCache", 7);

  UsersRegistry users(registry);
  const Platform platform = machine.platform().with({.registry = &users});
  ThumbnailPolicy(platform).disablethumbcache();

  for (const Policy& policy : kAll) {
    const auto value = GetRegistryValue(registry, policy.hive, policy.key, policy.name);
    if (policy.hive == Hive::kCurrentUser) {
      EXPECT_EQ(value, RegistryContent(std::uint32_t{1})) << policy.key << " " << policy.name;
    } else if (policy.key == kPolicies && policy.name == std::string("NoThumbnailCache")) {
      EXPECT_EQ(value, RegistryContent(std::uint32_t{7}));
    } else {
      EXPECT_EQ(value, std::nullopt) << policy.key << " " << policy.name;
    }
  }
}

// --- What a run that died has left.

constexpr const char* kMarkKey = "software\\Quillvane\\Tidewrack Deluxe";

class DeadRun : public testing::Test {
 protected:
  DeadRun() { machine.add_registry_key(Hive::kLocalMachine, kPolicies); }

  std::optional<RegistryContent> value() {
    return GetRegistryValue(platform.registry, Hive::kLocalMachine, kPolicies, "NoThumbnailCache");
  }
  std::optional<std::string> mark() {
    return machine.registry_text(Hive::kCurrentUser, kMarkKey, "thumbcache");
  }

  TempMachine machine;
  Platform platform = machine.platform();
};

TEST_F(DeadRun, HasItsValuesPutBackOnce) {
  {
    ThumbnailPolicy dying(platform);
    dying.disablethumbcache();
  }
  ASSERT_EQ(value(), RegistryContent(std::uint32_t{1}));
  EXPECT_EQ(mark(), "1");

  ThumbnailPolicy next(platform);
  next.put_back();
  EXPECT_EQ(value(), RegistryContent(std::uint32_t{0}));
  EXPECT_EQ(mark(), std::nullopt);

  // Set by somebody else afterwards: no longer the program's own.
  machine.set_registry_number(Hive::kLocalMachine, kPolicies, "NoThumbnailCache", 1);
  next.put_back();
  EXPECT_EQ(value(), RegistryContent(std::uint32_t{1}));
}

TEST_F(DeadRun, LeavesNoMarkWhenItEndedWell) {
  ThumbnailPolicy thumbnails(platform);
  thumbnails.disablethumbcache();
  thumbnails.enablethumbcache();
  EXPECT_EQ(mark(), std::nullopt);
}

TEST_F(DeadRun, IsNoneWhileItLives) {
  ThumbnailPolicy living(platform);
  living.disablethumbcache();

  ThumbnailPolicy(platform).put_back();
  EXPECT_EQ(value(), RegistryContent(std::uint32_t{1}));
  EXPECT_EQ(mark(), "1");

  living.enablethumbcache();
  EXPECT_EQ(value(), RegistryContent(std::uint32_t{0}));
}

TEST_F(DeadRun, IsNoneWhileAnotherCleans) {
  {
    ThumbnailPolicy dying(platform);
    dying.disablethumbcache();
  }
  const Instances::Hold other = platform.instances.announce_cleaning();
  ThumbnailPolicy(platform).put_back();
  EXPECT_EQ(value(), RegistryContent(std::uint32_t{1}));
}

}  // namespace
}  // namespace quillvane
