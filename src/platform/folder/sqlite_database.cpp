#include "platform/folder/sqlite_database.h"

#include <sqlite3.h>

#include <cstddef>
#include <utility>

namespace quillvane {

namespace {

// A scan asks a few dozen questions: waiting longer for each would look like a hang.
constexpr int kLockTimeoutMs = 50;

constexpr int kLongestValue = 256 << 20;  // bytes

}  // namespace

void SqliteDatabase::CloseDatabase::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

void SqliteDatabase::EndStatement::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

std::variant<SqliteDatabase, std::string> SqliteDatabase::open(const std::string& file,
                                                               Missing missing) {
  int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  if (missing == Missing::kIsMade) flags |= SQLITE_OPEN_CREATE;
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &opened, flags, nullptr);
  Database database(opened);
  if (result != SQLITE_OK) return std::string(sqlite3_errstr(result & 0xFF));
  sqlite3_busy_timeout(opened, kLockTimeoutMs);
  // A file may come from anybody: nothing that it brings along is run, and no value of it is larger
  // than those of registries are.
  sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, kLongestValue);
  return SqliteDatabase(std::move(database));
}

SqliteQuery SqliteDatabase::query(const char* sql) {
  Statement& statement = statements_[sql];
  if (!statement) {
    sqlite3_stmt* compiled = nullptr;
    // Left empty by a failure, so that the next query tries again.
    sqlite3_prepare_v3(database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &compiled, nullptr);
    statement.reset(compiled);
  }
  return SqliteQuery(statement.get());
}

bool SqliteDatabase::run(const char* sql) {
  return sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool SqliteDatabase::at_one_stroke(const std::function<bool()>& steps) {
  const bool inside = sqlite3_get_autocommit(database_.get()) == 0;
  if (inside) return steps();
  if (!run("BEGIN IMMEDIATE")) return false;
  if (steps() && run("COMMIT")) return true;
  // A failed statement may have ended the transaction already, then this changes nothing.
  sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  return false;
}

bool SqliteDatabase::is_locked() const {
  const int code = sqlite3_errcode(database_.get()) & 0xFF;
  return code == SQLITE_BUSY || code == SQLITE_LOCKED;
}

std::string SqliteDatabase::last_error() const { return sqlite3_errmsg(database_.get()); }

SqliteQuery::~SqliteQuery() {
  // Gives up the lock on the file, and forgets the bytes that were bound.
  if (statement_ == nullptr) return;
  sqlite3_reset(statement_);
  sqlite3_clear_bindings(statement_);
}

SqliteQuery& SqliteQuery::bind(std::int64_t number) {
  succeeded_ = succeeded_ && sqlite3_bind_int64(statement_, ++bound_, number) == SQLITE_OK;
  return *this;
}

SqliteQuery& SqliteQuery::bind(std::string_view bytes) {
  // A null pointer would be bound as NULL.
  const char* data = bytes.data() == nullptr ? "" : bytes.data();
  succeeded_ = succeeded_ && sqlite3_bind_blob64(statement_, ++bound_, data, bytes.size(),
                                                 SQLITE_STATIC) == SQLITE_OK;
  return *this;
}

bool SqliteQuery::next() {
  if (!succeeded_ || statement_ == nullptr) return succeeded_ = false;
  const int result = sqlite3_step(statement_);
  succeeded_ = result == SQLITE_ROW || result == SQLITE_DONE;
  return result == SQLITE_ROW;
}

bool SqliteQuery::run() { return !next() && succeeded_; }

std::int64_t SqliteQuery::number(int column) const {
  return sqlite3_column_int64(statement_, column);
}

std::string SqliteQuery::bytes(int column) const {
  const void* data = sqlite3_column_blob(statement_, column);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
  return data == nullptr ? std::string() : std::string(static_cast<const char*>(data), size);
}

}  // namespace quillvane
