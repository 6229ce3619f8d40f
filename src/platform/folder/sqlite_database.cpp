#include "platform/folder/sqlite_database.h"

#include <sqlite3.h>

#include <array>
#include <cstddef>
#include <utility>

namespace quillvane {

namespace {

constexpr std::array kDelaysMs = {1, 2, 5, 10, 15, 20, 25, 25, 25, 50, 50};
constexpr int kLongestDelayMs = 100;

int delay_ms(int attempt) {
  const auto index = static_cast<std::size_t>(attempt);
  return index < kDelaysMs.size() ? kDelaysMs[index] : kLongestDelayMs;
}

// Called by the library while another program holds the file; 0 gives up. A scan asks dozens of
// questions: if each waited anew for a lock that is never let go, it would look like a hang.
int wait_for_lock(void* data, int attempt) {
  auto& patience = *static_cast<SqliteDatabase::Patience*>(data);
  std::chrono::milliseconds waited{0};
  for (int i = 0; i <= attempt; ++i) waited += std::chrono::milliseconds(delay_ms(i));
  if (waited > patience.limit) patience.spent = true;
  if (patience.spent) return 0;
  sqlite3_sleep(delay_ms(attempt));
  return 1;
}

constexpr int kLongestValue = 256 << 20;  // bytes

}  // namespace

void SqliteDatabase::CloseDatabase::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

void SqliteDatabase::EndStatement::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

std::variant<SqliteDatabase, std::string> SqliteDatabase::open(
    const std::string& file, Missing missing, std::chrono::milliseconds lock_wait) {
  int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  if (missing == Missing::kIsMade) flags |= SQLITE_OPEN_CREATE;
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &opened, flags, nullptr);
  Database database(opened);
  if (result != SQLITE_OK) return std::string(sqlite3_errstr(result & 0xFF));
  // A file may come from anybody: nothing that it brings along is run, and no value of it is larger
  // than those of registries are.
  sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, kLongestValue);
  return SqliteDatabase(std::move(database), lock_wait);
}

SqliteDatabase::SqliteDatabase(Database database, std::chrono::milliseconds lock_wait)
    : patience_(std::make_unique<Patience>(Patience{lock_wait})), database_(std::move(database)) {
  sqlite3_busy_handler(database_.get(), wait_for_lock, patience_.get());
}

SqliteQuery SqliteDatabase::query(const char* sql) {
  Statement& statement = statements_[sql];
  if (!statement) {
    sqlite3_stmt* compiled = nullptr;
    // Left empty by a failure, so that the next query tries again.
    sqlite3_prepare_v3(database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &compiled, nullptr);
    statement.reset(compiled);
  }
  return SqliteQuery(statement.get(), *patience_);
}

bool SqliteDatabase::run(const char* sql) {
  const bool done = sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
  if (done) patience_->spent = false;
  return done;
}

bool SqliteDatabase::at_one_stroke(const std::function<bool()>& steps) {
  const bool inside = sqlite3_get_autocommit(database_.get()) == 0;
  if (inside) return steps();
  stroke_problem_.clear();
  if (run("BEGIN IMMEDIATE") && steps() && run("COMMIT")) return true;
  if (!succeeded()) stroke_problem_ = problem("written");
  // A failed statement may have ended the transaction already, then this changes nothing.
  sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  return false;
}

void SqliteDatabase::at_one_moment(const std::function<void()>& questions) {
  const bool begun = run("BEGIN");
  questions();
  if (begun) sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

bool SqliteDatabase::is_locked() const {
  const int code = sqlite3_errcode(database_.get()) & 0xFF;
  return code == SQLITE_BUSY || code == SQLITE_LOCKED;
}

bool SqliteDatabase::succeeded() const {
  const int code = sqlite3_errcode(database_.get());
  return code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE;
}

std::string SqliteDatabase::last_error() const { return sqlite3_errmsg(database_.get()); }

std::string SqliteDatabase::problem(const char* verb) const {
  if (is_locked()) return "is locked by another program";
  return std::string("cannot be ") + verb + ": " + last_error();
}

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
  if (succeeded_) patience_.spent = false;
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
