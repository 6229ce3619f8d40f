// An SQLite database and its queries, as far as the registry of a machine folder needs them.
// Nothing throws; a query that fails has no rows and answers false.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

struct sqlite3;
struct sqlite3_stmt;

namespace quillvane {

class SqliteQuery;

class SqliteDatabase {
 public:
  enum class Missing { kFails, kIsMade };

  // The text is the reason why the file cannot be opened. A file that is no database is noticed by
  // the first query only. A call waits up to `lock_wait` for another program's lock; once that was
  // in vain the next ones wait no more, until one has succeeded.
  [[nodiscard]] static std::variant<SqliteDatabase, std::string> open(
      const std::string& file, Missing missing, std::chrono::milliseconds lock_wait);

  // A statement that was used before is not compiled again. One query of the same text at a time;
  // `sql` is a literal.
  [[nodiscard]] SqliteQuery query(const char* sql);

  // Runs a statement without rows.
  [[nodiscard]] bool run(const char* sql);

  // Runs `steps`, whose changes are kept together when it answers true and the file takes them, and
  // dropped together otherwise. Inside of other steps it is a part of those. True when kept.
  [[nodiscard]] bool at_one_stroke(const std::function<bool()>& steps);

  // Lets all `questions` be answered by one state of the file, whatever other programs write
  // meanwhile. What cannot be read is seen by the questions.
  void at_one_moment(const std::function<void()>& questions);

  [[nodiscard]] bool is_locked() const;          // the last failure: another program holds the file
  [[nodiscard]] std::string last_error() const;  // the last failure in words
  // Why the last steps at one stroke were not kept; empty when they themselves answered false.
  [[nodiscard]] const std::string& stroke_problem() const { return stroke_problem_; }
  // The last failure, said of the file: "is locked by another program", "cannot be VERB: REASON".
  [[nodiscard]] std::string problem(const char* verb) const;

  // How long is waited for a lock, and whether that was in vain.
  struct Patience {
    std::chrono::milliseconds limit;
    bool spent = false;
  };

 private:
  struct CloseDatabase {
    void operator()(sqlite3* database) const;
  };
  struct EndStatement {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Database = std::unique_ptr<sqlite3, CloseDatabase>;
  using Statement = std::unique_ptr<sqlite3_stmt, EndStatement>;

  SqliteDatabase(Database database, std::chrono::milliseconds lock_wait);
  [[nodiscard]] bool succeeded() const;  // the last call

  std::unique_ptr<Patience> patience_;  // the database points to it, so it is closed before
  Database database_;
  std::string stroke_problem_;
  std::map<const char*, Statement> statements_;  // by the place of the literal
};

// One use of a statement: bind its parameters in order, then step through its rows.
class SqliteQuery {
 public:
  // The statement is null when it could not be compiled.
  SqliteQuery(sqlite3_stmt* statement, SqliteDatabase::Patience& patience)
      : statement_(statement), patience_(patience) {}
  ~SqliteQuery();
  SqliteQuery(const SqliteQuery&) = delete;
  SqliteQuery& operator=(const SqliteQuery&) = delete;

  SqliteQuery& bind(std::int64_t number);
  // The bytes must outlive the query.
  SqliteQuery& bind(std::string_view bytes);

  // True when there is a row to read.
  [[nodiscard]] bool next();
  // Whether everything went well so far; asked behind the last row.
  [[nodiscard]] bool succeeded() const { return succeeded_; }
  // Runs a statement that gives no rows.
  [[nodiscard]] bool run();

  [[nodiscard]] std::int64_t number(int column) const;
  [[nodiscard]] std::string bytes(int column) const;

 private:
  sqlite3_stmt* statement_;
  SqliteDatabase::Patience& patience_;
  int bound_ = 0;
  bool succeeded_ = true;
};

}  // namespace quillvane
