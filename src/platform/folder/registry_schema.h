// The tables of the registry's store, and whether a database holds them.
#pragma once

#include <string>
#include <variant>

#include "platform/folder/sqlite_database.h"

namespace quillvane {

// Names are bytes: `name` as first written, `folded` for finding it again. A key's `parent` is
// another key or a hive, whose numbers are below zero. A value's number grows with each new one, so
// their order is that of the first writing.
inline constexpr const char* kRegistryTables = R"(
  CREATE TABLE reg_key (
    id INTEGER PRIMARY KEY,
    parent INTEGER NOT NULL,
    name BLOB NOT NULL,
    folded BLOB NOT NULL,
    UNIQUE (parent, folded));
  CREATE TABLE reg_value (
    id INTEGER PRIMARY KEY,
    key INTEGER NOT NULL,
    name BLOB NOT NULL,
    folded BLOB NOT NULL,
    type INTEGER NOT NULL,
    data BLOB NOT NULL,
    UNIQUE (key, folded));
  PRAGMA application_id = 0x51765267;
  PRAGMA user_version = 1;
)";

enum class StoreContent { kNothing, kRegistry };

// What the database holds; a text tells what is wrong with it.
[[nodiscard]] std::variant<StoreContent, std::string> inspect_store(SqliteDatabase& database);

}  // namespace quillvane
