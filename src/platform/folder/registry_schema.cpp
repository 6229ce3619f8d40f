#include "platform/folder/registry_schema.h"

#include <cstdint>
#include <optional>

namespace quillvane {

namespace {

// "QvRg", which tells this store from databases of other programs.
constexpr std::int64_t kApplicationId = 0x51765267;
constexpr std::int64_t kFormatVersion = 1;

std::optional<std::int64_t> number(SqliteDatabase& database, const char* sql) {
  SqliteQuery query = database.query(sql);
  if (!query.next()) return std::nullopt;
  return query.number(0);
}

// What the database is made of, however its text is laid out; nothing when it cannot be told.
std::optional<std::string> structure(SqliteDatabase& database) {
  SqliteQuery query = database.query(R"(
    SELECT type || name || ifnull(replace(replace(replace(sql, ' ', ''), char(10), ''), char(13), ''), '')
    FROM sqlite_master ORDER BY name)");
  std::string all;
  while (query.next()) all += query.bytes(0) + "\n";
  if (!query.succeeded()) return std::nullopt;
  return all;
}

// Tables of another kind, or others beside them, could answer anything.
bool has_told_structure(SqliteDatabase& database) {
  auto opened = SqliteDatabase::open(":memory:", SqliteDatabase::Missing::kIsMade, {});
  auto* fresh = std::get_if<SqliteDatabase>(&opened);
  return fresh != nullptr && fresh->run(kRegistryTables) &&
         structure(database) == structure(*fresh);
}

}  // namespace

std::variant<StoreContent, std::string> inspect_store(SqliteDatabase& database) {
  const auto application = number(database, "PRAGMA application_id");
  if (!application) return database.problem("read");
  const auto tables = number(database, "SELECT count(*) FROM sqlite_master");
  if (!tables) return database.problem("read");
  if (*application == 0 && *tables == 0) return StoreContent::kNothing;
  if (*application != kApplicationId) return std::string("is the database of another program");

  const auto version = number(database, "PRAGMA user_version");
  if (!version) return database.problem("read");
  if (*version != kFormatVersion) {
    return std::string("has a format that this version of the program cannot read");
  }

  if (!has_told_structure(database)) return std::string("is damaged: its tables are others");

  // A page that was lost would look like keys that are not there, and an index that fits its table
  // not would find keys below themselves.
  SqliteQuery pages = database.query("PRAGMA integrity_check(1)");
  if (!pages.next()) return database.problem("read");
  const std::string found = pages.bytes(0);
  if (found != "ok") return "is damaged: " + found.substr(found.rfind('\n') + 1);

  // Those numbers are the hives', so such a key would lie above the hive that it lies in.
  const auto like_hives = number(database, "SELECT count(*) FROM reg_key WHERE id < 0");
  if (!like_hives) return database.problem("read");
  if (*like_hives != 0) return std::string("is damaged: a key lies within itself");
  return StoreContent::kRegistry;
}

}  // namespace quillvane
