#include "platform/folder/registry_store.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/folder/host_path.h"
#include "platform/folder/registry_files.h"
#include "platform/folder/registry_schema.h"
#include "platform/multi_string.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

constexpr std::size_t kLongestName = 255;

std::int64_t hive_id(Hive hive) { return -1 - static_cast<std::int64_t>(hive); }

// The names of a path, the topmost first; none for the hive itself.
std::vector<std::string_view> path_names(std::string_view path) {
  if (path.ends_with('\\')) path.remove_suffix(1);
  std::vector<std::string_view> names;
  if (path.empty()) return names;
  for (;;) {
    const std::size_t end = path.find('\\');
    names.push_back(path.substr(0, end));
    if (end == std::string_view::npos) return names;
    path.remove_prefix(end + 1);
  }
}

bool is_key_name(std::string_view name) {
  const bool printable = std::none_of(name.begin(), name.end(),
                                      [](char c) { return static_cast<unsigned char>(c) < 0x20; });
  return printable && !name.empty() && utf16_length(name) <= kLongestName;
}

bool is_pending_renames(Hive hive, std::string_view key, std::string_view name) {
  constexpr std::string_view kKey = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
  if (key.ends_with('\\')) key.remove_suffix(1);
  return hive == Hive::kLocalMachine && same_name(key, kKey) &&
         same_name(name, "PendingFileRenameOperations");
}

}  // namespace

std::variant<std::unique_ptr<FolderRegistry>, std::string> FolderRegistry::open(
    const std::string& file, EffectLog& effects) {
  std::unique_ptr<FolderRegistry> registry(new FolderRegistry(file, effects));
  if (auto problem = registry->connect()) return "registry.db: " + *problem;
  return registry;
}

std::optional<std::string> FolderRegistry::connect() const {
  if (auto problem = registry_files_problem(file_)) return problem;
  std::error_code failed;
  if (!std::filesystem::exists(host_path(file_), failed)) return std::nullopt;
  auto opened = SqliteDatabase::open(file_, SqliteDatabase::Missing::kFails);
  if (const auto* reason = std::get_if<std::string>(&opened)) return "cannot be opened: " + *reason;
  auto& database = std::get<SqliteDatabase>(opened);
  const auto content = inspect_store(database);
  if (const auto* problem = std::get_if<std::string>(&content)) return *problem;
  if (std::get<StoreContent>(content) == StoreContent::kRegistry) database_ = std::move(database);
  return std::nullopt;
}

bool FolderRegistry::connected() const { return database_ || (!connect() && database_); }

bool FolderRegistry::make_store() {
  if (connected()) return true;
  if (registry_files_problem(file_)) return false;
  auto opened = SqliteDatabase::open(file_, SqliteDatabase::Missing::kIsMade);
  auto* database = std::get_if<SqliteDatabase>(&opened);
  if (database == nullptr) return false;
  const auto content = inspect_store(*database);
  const auto* nothing = std::get_if<StoreContent>(&content);
  if (nothing == nullptr || *nothing != StoreContent::kNothing) return false;
  if (!database->at_one_stroke([&] { return database->run(kRegistryTables); })) return false;
  database_ = std::move(*database);
  return true;
}

std::optional<std::vector<std::string>> FolderRegistry::sub_keys(Hive hive, const std::string& key,
                                                                 KeyAccess) const {
  std::vector<std::string> names;
  if (!connected()) return is_hive(key) ? std::optional(names) : std::nullopt;
  const auto id = find_key(hive, key);
  if (!id) return std::nullopt;
  SqliteQuery query = database_->query("SELECT name FROM reg_key WHERE parent = ?");
  query.bind(*id);
  while (query.next()) names.push_back(query.bytes(0));
  if (!query.succeeded()) return std::nullopt;
  std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
    return compare_names(left, right) < 0;
  });
  return names;
}

std::optional<std::vector<NamedRegistryValue>> FolderRegistry::values(Hive hive,
                                                                      const std::string& key,
                                                                      KeyAccess) const {
  std::vector<NamedRegistryValue> list;
  if (!connected()) return is_hive(key) ? std::optional(list) : std::nullopt;
  const auto id = find_key(hive, key);
  if (!id) return std::nullopt;
  SqliteQuery query =
      database_->query("SELECT name, type, data FROM reg_value WHERE key = ? ORDER BY id");
  query.bind(*id);
  while (query.next()) {
    list.push_back({query.bytes(0), {static_cast<RegistryType>(query.number(1)), query.bytes(2)}});
  }
  if (!query.succeeded()) return std::nullopt;
  return list;
}

std::optional<RegistryValue> FolderRegistry::value(Hive hive, const std::string& key,
                                                   const std::string& name, KeyAccess) const {
  if (!connected()) return std::nullopt;
  const auto id = find_key(hive, key);
  if (!id) return std::nullopt;
  const std::string folded = upper_case(name);
  SqliteQuery query =
      database_->query("SELECT type, data FROM reg_value WHERE key = ? AND folded = ?");
  if (!query.bind(*id).bind(folded).next()) return std::nullopt;
  return RegistryValue{static_cast<RegistryType>(query.number(0)), query.bytes(1)};
}

bool FolderRegistry::create_key(Hive hive, const std::string& key) {
  return at_one_stroke([&] { return make_key(hive, key).has_value(); });
}

bool FolderRegistry::set_value(Hive hive, const std::string& key, const std::string& name,
                               const RegistryValue& value) {
  if (!connected()) {
    // Only the hives are keys of a registry that isn't there yet.
    if (!is_hive(key) || !make_store()) return false;
  }
  const auto id = find_key(hive, key);
  if (!id || !write_value(*id, name, value)) return false;
  if (is_pending_renames(hive, key, name)) {
    effects_.add("queue-write", {{"value", multi_string_list(value.data)}});
  }
  return true;
}

bool FolderRegistry::store_value(Hive hive, const std::string& key, const std::string& name,
                                 const RegistryValue& value) {
  return at_one_stroke([&] {
    const auto id = make_key(hive, key);
    return id && write_value(*id, name, value);
  });
}

bool FolderRegistry::remove_key(Hive hive, const std::string& key) {
  if (is_hive(key)) return false;
  return at_one_stroke([&] {
    const auto id = find_key(hive, key);
    if (!id) return true;
    constexpr const char* kRemoveValues = R"(
      WITH RECURSIVE below (id) AS (
        SELECT ?1 UNION SELECT reg_key.id FROM reg_key JOIN below ON reg_key.parent = below.id)
      DELETE FROM reg_value WHERE key IN below)";
    constexpr const char* kRemoveKeys = R"(
      WITH RECURSIVE below (id) AS (
        SELECT ?1 UNION SELECT reg_key.id FROM reg_key JOIN below ON reg_key.parent = below.id)
      DELETE FROM reg_key WHERE id IN below)";
    return database_->query(kRemoveValues).bind(*id).run() &&
           database_->query(kRemoveKeys).bind(*id).run();
  });
}

bool FolderRegistry::remove_value(Hive hive, const std::string& key, const std::string& name) {
  return at_one_stroke([&] {
    const auto id = find_key(hive, key);
    if (!id) return true;
    const std::string folded = upper_case(name);
    return database_->query("DELETE FROM reg_value WHERE key = ? AND folded = ?")
        .bind(*id)
        .bind(folded)
        .run();
  });
}

bool FolderRegistry::at_one_stroke(const std::function<bool()>& steps) {
  return make_store() && database_->at_one_stroke(steps);
}

bool FolderRegistry::is_hive(std::string_view key) { return path_names(key).empty(); }

std::optional<FolderRegistry::KeyId> FolderRegistry::find_key(Hive hive,
                                                              std::string_view key) const {
  std::optional<KeyId> id = hive_id(hive);
  for (const std::string_view name : path_names(key)) {
    id = find_sub_key(*id, name);
    if (!id) return std::nullopt;
  }
  return id;
}

std::optional<FolderRegistry::KeyId> FolderRegistry::find_sub_key(KeyId parent,
                                                                  std::string_view name) const {
  const std::string folded = upper_case(name);
  SqliteQuery query = database_->query("SELECT id FROM reg_key WHERE parent = ? AND folded = ?");
  if (!query.bind(parent).bind(folded).next()) return std::nullopt;
  return query.number(0);
}

std::optional<FolderRegistry::KeyId> FolderRegistry::make_key(Hive hive, std::string_view key) {
  const std::vector<std::string_view> names = path_names(key);
  if (names.size() > kDeepestKey || !std::all_of(names.begin(), names.end(), is_key_name)) {
    return std::nullopt;
  }
  std::optional<KeyId> id = hive_id(hive);
  for (const std::string_view name : names) {
    const KeyId parent = *id;
    id = find_sub_key(parent, name);
    if (!id) id = make_sub_key(parent, name);
    if (!id) return std::nullopt;
  }
  return id;
}

std::optional<FolderRegistry::KeyId> FolderRegistry::make_sub_key(KeyId parent,
                                                                  std::string_view name) {
  const std::string folded = upper_case(name);
  SqliteQuery query =
      database_->query("INSERT INTO reg_key (parent, name, folded) VALUES (?, ?, ?) RETURNING id");
  query.bind(parent).bind(name).bind(folded);
  std::optional<KeyId> id;
  while (query.next()) id = query.number(0);
  return query.succeeded() ? id : std::nullopt;
}

bool FolderRegistry::write_value(KeyId key, const std::string& name, const RegistryValue& value) {
  const std::string folded = upper_case(name);
  SqliteQuery query = database_->query(R"(
      INSERT INTO reg_value (key, name, folded, type, data) VALUES (?, ?, ?, ?, ?)
      ON CONFLICT (key, folded) DO UPDATE SET type = excluded.type, data = excluded.data)");
  return query.bind(key)
      .bind(name)
      .bind(folded)
      .bind(static_cast<std::int64_t>(value.type))
      .bind(value.data)
      .run();
}

}  // namespace quillvane
