// The registry of a machine folder, kept in an SQLite file. Both views of it are one, and
// HKEY_CLASSES_ROOT and HKEY_USERS are hives of their own, merged with nothing.
//
// Keys are listed by name without regard to case, values in the order of their first writing. Names
// keep the case of their first writing. As on Windows a key's name has 1 to 255 characters and no
// control characters, and keys lie at most 512 deep.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/folder/sqlite_database.h"
#include "platform/registry.h"
#include "platform/virtual/effect_log.h"

namespace quillvane {

inline constexpr std::size_t kDeepestKey = 512;  // names of a key's path at most

class FolderRegistry final : public Registry {
 public:
  // Opens the store in `file`; the text is one line of what is wrong with it. A missing file is an
  // empty registry, and is made when something is first written. A list of pending renames that is
  // written is noted in `effects`, which must outlive the registry.
  // Each call waits up to `lock_wait` while another program holds the store locked, and fails then.
  [[nodiscard]] static std::variant<std::unique_ptr<FolderRegistry>, std::string> open(
      const std::string& file, EffectLog& effects,
      std::chrono::milliseconds lock_wait = std::chrono::seconds(5));

  [[nodiscard]] RegistryRead<std::vector<std::string>> sub_keys(
      Hive hive, const std::string& key, KeyAccess access = KeyAccess::kRead) const override;
  [[nodiscard]] RegistryRead<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access = KeyAccess::kRead) const override;
  [[nodiscard]] RegistryRead<RegistryValue> value(
      Hive hive, const std::string& key, const std::string& name,
      KeyAccess access = KeyAccess::kRead) const override;
  RegistryWrite create_key(Hive hive, const std::string& key) override;
  RegistryWrite set_value(Hive hive, const std::string& key, const std::string& name,
                          const RegistryValue& value) override;
  RegistryWrite remove_value(Hive hive, const std::string& key, const std::string& name) override;

  // What sets a machine up, from outside of the program that works on it.

  // Writes a value, making its key; no effect is noted.
  [[nodiscard]] bool store_value(Hive hive, const std::string& key, const std::string& name,
                                 const RegistryValue& value);
  // Removes a key with all below it. True when it is not there afterwards; a hive itself cannot be
  // removed.
  [[nodiscard]] bool remove_key(Hive hive, const std::string& key);

  // Runs `steps`, whose writes are kept together when it answers true, and dropped together
  // otherwise. True when they were kept.
  [[nodiscard]] bool at_one_stroke(const std::function<bool()>& steps);

 private:
  // Number of a key in the store; those of the hives are below zero.
  using KeyId = std::int64_t;

  FolderRegistry(std::string file, EffectLog& effects, std::chrono::milliseconds lock_wait)
      : file_(std::move(file)), effects_(effects), lock_wait_(lock_wait) {}

  // Connects to the store if there is one; the text is what is wrong with it. It may have come into
  // being since the last question.
  [[nodiscard]] std::optional<std::string> connect() const;
  [[nodiscard]] RegistryWrite make_store();
  // What the last query of the store has failed of.
  [[nodiscard]] std::string read_problem() const;
  [[nodiscard]] RegistryWrite write_failure() const;

  [[nodiscard]] static bool is_hive(std::string_view key);
  [[nodiscard]] RegistryRead<KeyId> find_key(Hive hive, std::string_view key) const;
  [[nodiscard]] RegistryRead<KeyId> find_sub_key(KeyId parent, std::string_view name) const;
  [[nodiscard]] std::optional<KeyId> make_key(Hive hive, std::string_view key);
  [[nodiscard]] std::optional<KeyId> make_sub_key(KeyId parent, std::string_view name);
  [[nodiscard]] bool write_value(KeyId key, const std::string& name, const RegistryValue& value);

  std::string file_;
  EffectLog& effects_;
  std::chrono::milliseconds lock_wait_;
  mutable std::optional<SqliteDatabase> database_;
};

}  // namespace quillvane
