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

  // A page that was lost would look like keys that are not there.
  SqliteQuery pages = database.query("PRAGMA quick_check(1)");
  if (!pages.next()) return database.problem("read");
  const std::string found = pages.bytes(0);
  if (found != "ok") return "is damaged: " + found.substr(found.rfind('\n') + 1);
  return StoreContent::kRegistry;
}

}  // namespace quillvane
