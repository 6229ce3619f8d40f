#include "cleaning/thumbnail_policy.h"

#include "support/registry_text.h"
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

// The user's own hive: also who may write no other has set values that must go back.
constexpr Hive kMarkHive = Hive::kCurrentUser;
constexpr const char* kMarkKey = "software\\Quillvane\\Tidewrack Deluxe";
constexpr const char* kMark = "thumbcache";
constexpr const char* kSet = "1";

}  // namespace

void ThumbnailPolicy::disablethumbcache() {
  announced_ = platform_.instances.announce_cleaning();
  // Without a mark nothing can be put back for a run that dies; the values are told all the same.
  static_cast<void>(WriteRegistryString(platform_.registry, kMarkHive, kMarkKey, kMark, kSet));
  write_all(platform_.registry, 1);
}

void ThumbnailPolicy::enablethumbcache() {
  quillvane::enablethumbcache(platform_.registry);
  announced_ = nullptr;
}

void ThumbnailPolicy::put_back() {
  if (ReadRegistryString32(platform_.registry, kMarkHive, kMarkKey, kMark).text != kSet) return;
  const Instances::Hold alone = platform_.instances.hold_off_cleaning();
  if (alone != nullptr) quillvane::enablethumbcache(platform_.registry);
}

void enablethumbcache(Registry& registry) {
  write_all(registry, 0);
  // A mark that stays is taken away at the next start.
  static_cast<void>(registry.remove_value(kMarkHive, kMarkKey, kMark));
}

}  // namespace quillvane
