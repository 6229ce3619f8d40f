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
    const std::string& file, EffectLog& effects, std::chrono::milliseconds lock_wait) {
  std::unique_ptr<FolderRegistry> registry(new FolderRegistry(file, effects, lock_wait));
  if (auto problem = registry->connect()) return "registry.db: " + *problem;
  return registry;
}

std::optional<std::string> FolderRegistry::connect() const {
  if (database_) return std::nullopt;
  if (auto problem = registry_files_problem(file_)) return problem;
  std::error_code failed;
  const bool exists = std::filesystem::exists(host_path(file_), failed);
  if (failed) return "cannot be read: " + failed.message();
  if (!exists) return std::nullopt;
  auto opened = SqliteDatabase::open(file_, SqliteDatabase::Missing::kFails, lock_wait_);
  if (const auto* reason = std::get_if<std::string>(&opened)) return "cannot be opened: " + *reason;
  auto& database = std::get<SqliteDatabase>(opened);
  // Another program may be making it just now.
  std::variant<StoreContent, std::string> content = StoreContent::kNothing;
  database.at_one_moment([&] { content = inspect_store(database); });
  if (const auto* problem = std::get_if<std::string>(&content)) return *problem;
  if (std::get<StoreContent>(content) == StoreContent::kRegistry) database_ = std::move(database);
  return std::nullopt;
}

std::string FolderRegistry::read_problem() const {
  return "the registry " + database_->problem("read");
}

RegistryWrite FolderRegistry::write_failure() const {
  return RegistryWrite::failure("the registry " + database_->problem("written"));
}

RegistryWrite FolderRegistry::make_store() {
  if (const auto problem = connect()) return RegistryWrite::failure("the registry " + *problem);
  if (database_) return {};
  auto opened = SqliteDatabase::open(file_, SqliteDatabase::Missing::kIsMade, lock_wait_);
  if (const auto* reason = std::get_if<std::string>(&opened)) {
    return RegistryWrite::failure("the registry cannot be made: " + *reason);
  }
  auto& database = std::get<SqliteDatabase>(opened);
  // Another program may have made it in the meantime.
  const bool is_registry = database.at_one_stroke([&] {
    const auto content = inspect_store(database);
    const auto* found = std::get_if<StoreContent>(&content);
    if (found == nullptr) return false;
    return *found == StoreContent::kRegistry || database.run(kRegistryTables);
  });
  if (!is_registry) return RegistryWrite::failure("the registry cannot be made");
  database_ = std::move(database);
  return {};
}

RegistryRead<std::vector<std::string>> FolderRegistry::sub_keys(Hive hive, const std::string& key,
                                                                KeyAccess) const {
  using Read = RegistryRead<std::vector<std::string>>;
  std::vector<std::string> names;
  const auto id = find_key(hive, key);
  if (id.failed()) return Read::failure(id.problem());
  if (!id) return std::nullopt;
  if (!database_) return names;
  SqliteQuery query = database_->query("SELECT name FROM reg_key WHERE parent = ?");
  query.bind(*id);
  while (query.next()) names.push_back(query.bytes(0));
  if (!query.succeeded()) return Read::failure(read_problem());
  std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
    return compare_names(left, right) < 0;
  });
  return names;
}

RegistryRead<std::vector<NamedRegistryValue>> FolderRegistry::values(Hive hive,
                                                                     const std::string& key,
                                                                     KeyAccess) const {
  using Read = RegistryRead<std::vector<NamedRegistryValue>>;
  std::vector<NamedRegistryValue> list;
  const auto id = find_key(hive, key);
  if (id.failed()) return Read::failure(id.problem());
  if (!id) return std::nullopt;
  if (!database_) return list;
  SqliteQuery query =
      database_->query("SELECT name, type, data FROM reg_value WHERE key = ? ORDER BY id");
  query.bind(*id);
  while (query.next()) {
    list.push_back({query.bytes(0), {static_cast<RegistryType>(query.number(1)), query.bytes(2)}});
  }
  if (!query.succeeded()) return Read::failure(read_problem());
  return list;
}

RegistryRead<RegistryValue> FolderRegistry::value(Hive hive, const std::string& key,
                                                  const std::string& name, KeyAccess) const {
  using Read = RegistryRead<RegistryValue>;
  const auto id = find_key(hive, key);
  if (id.failed()) return Read::failure(id.problem());
  if (!id || !database_) return std::nullopt;
  const std::string folded = upper_case(name);
  SqliteQuery query =
      database_->query("SELECT type, data FROM reg_value WHERE key = ? AND folded = ?");
  if (query.bind(*id).bind(folded).next()) {
    return RegistryValue{static_cast<RegistryType>(query.number(0)), query.bytes(1)};
  }
  return query.succeeded() ? Read(std::nullopt) : Read::failure(read_problem());
}

RegistryWrite FolderRegistry::create_key(Hive hive, const std::string& key) {
  const RegistryWrite store = make_store();
  if (!store) return store;
  if (database_->at_one_stroke([&] { return make_key(hive, key).has_value(); })) return {};
  const std::string& problem = database_->stroke_problem();
  return RegistryWrite::failure(problem.empty() ? "no key can have this name"
                                                : "the registry " + problem);
}

RegistryWrite FolderRegistry::set_value(Hive hive, const std::string& key, const std::string& name,
                                        const RegistryValue& value) {
  const auto id = find_key(hive, key);
  if (id.failed()) return RegistryWrite::failure(id.problem());
  if (!id) return RegistryWrite::failure("the key is not there");
  const RegistryWrite store = make_store();
  if (!store) return store;
  if (!write_value(*id, name, value)) return write_failure();
  if (is_pending_renames(hive, key, name)) {
    effects_.add("queue-write", {{"value", multi_string_list(value.data)}});
  }
  return {};
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
    if (!id) return !id.failed();
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

RegistryWrite FolderRegistry::remove_value(Hive hive, const std::string& key,
                                           const std::string& name) {
  const auto id = find_key(hive, key);
  if (id.failed()) return RegistryWrite::failure(id.problem());
  if (!id || !database_) return {};
  const std::string folded = upper_case(name);
  SqliteQuery query = database_->query("DELETE FROM reg_value WHERE key = ? AND folded = ?");
  return query.bind(*id).bind(folded).run() ? RegistryWrite() : write_failure();
}

bool FolderRegistry::at_one_stroke(const std::function<bool()>& steps) {
  return make_store() && database_->at_one_stroke(steps);
}

bool FolderRegistry::is_hive(std::string_view key) { return path_names(key).empty(); }

// Where there is no store yet, the hives are the only keys.
RegistryRead<FolderRegistry::KeyId> FolderRegistry::find_key(Hive hive,
                                                             std::string_view key) const {
  using Read = RegistryRead<KeyId>;
  if (const auto problem = connect()) return Read::failure("the registry " + *problem);
  if (!database_) return is_hive(key) ? Read(hive_id(hive)) : Read(std::nullopt);
  Read id = hive_id(hive);
  for (const std::string_view name : path_names(key)) {
    id = find_sub_key(*id, name);
    if (!id) break;
  }
  return id;
}

RegistryRead<FolderRegistry::KeyId> FolderRegistry::find_sub_key(KeyId parent,
                                                                 std::string_view name) const {
  using Read = RegistryRead<KeyId>;
  const std::string folded = upper_case(name);
  SqliteQuery query = database_->query("SELECT id FROM reg_key WHERE parent = ? AND folded = ?");
  if (query.bind(parent).bind(folded).next()) return query.number(0);
  return query.succeeded() ? Read(std::nullopt) : Read::failure(read_problem());
}

std::optional<FolderRegistry::KeyId> FolderRegistry::make_key(Hive hive, std::string_view key) {
  const std::vector<std::string_view> names = path_names(key);
  if (names.size() > kDeepestKey || !std::all_of(names.begin(), names.end(), is_key_name)) {
    return std::nullopt;
  }
  std::optional<KeyId> id = hive_id(hive);
  for (const std::string_view name : names) {
    const auto found = find_sub_key(*id, name);
    if (found.failed()) return std::nullopt;
    id = found ? std::optional(*found) : make_sub_key(*id, name);
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
