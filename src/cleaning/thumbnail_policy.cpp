#include "cleaning/thumbnail_policy.h"

#include "support/registry_values.h"

namespace quillvane {

namespace {

struct PolicyValue {
  Hive hive;
  const char* key;
  const char* name;
};

constexpr const char* kPolicies =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
constexpr const char* kWindowsPolicies = "Software\\Policies\\Microsoft\\Windows\\Explorer";
constexpr const char* kAdvanced =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced";
constexpr const char* kMachineAdvanced =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced";

constexpr PolicyValue kPolicyValues[] = {
    {Hive::kCurrentUser, kPolicies, "NoThumbnailCache"},
    {Hive::kCurrentUser, kPolicies, "DisableThumbnailCache"},
    {Hive::kCurrentUser, kWindowsPolicies, "DisableThumbsDBOnNetworkFolders"},
    {Hive::kLocalMachine, kPolicies, "NoThumbnailCache"},
    {Hive::kLocalMachine, kPolicies, "DisableThumbnailCache"},
    {Hive::kCurrentUser, kAdvanced, "DisableThumbnailCache"},
    {Hive::kCurrentUser, kAdvanced, "NoThumbnailCache"},
    {Hive::kLocalMachine, kMachineAdvanced, "DisableThumbnailCache"},
    {Hive::kLocalMachine, kMachineAdvanced, "NoThumbnailCache"},
};

void write_all(Registry& registry, std::uint32_t setting) {
  // One that cannot be written does not stop the others.
  for (const PolicyValue& value : kPolicyValues) {
    SetRegistryValue(registry, value.hive, value.key, value.name, setting);
  }
}

}  // namespace

void disablethumbcache(Registry& registry) { write_all(registry, 1); }
void enablethumbcache(Registry& registry) { write_all(registry, 0); }

}  // namespace quillvane
