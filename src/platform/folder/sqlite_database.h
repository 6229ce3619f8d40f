// An SQLite database and its queries, as far as the registry of a machine folder needs them.
// Nothing throws; a query that fails has no rows and answers false.
#pragma once

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
  // the first query only.
  [[nodiscard]] static std::variant<SqliteDatabase, std::string> open(const std::string& file,
                                                                      Missing missing);

  // A statement that was used before is not compiled again. One query of the same text at a time;
  // `sql` is a literal.
  [[nodiscard]] SqliteQuery query(const char* sql);

  // Runs a statement without rows.
  [[nodiscard]] bool run(const char* sql);

  // Runs `steps`, whose changes are kept together when it answers true and the file takes them, and
  // dropped together otherwise. Inside of other steps it is a part of those. True when kept.
  [[nodiscard]] bool at_one_stroke(const std::function<bool()>& steps);

  [[nodiscard]] bool is_locked() const;          // the last failure: another program holds the file
  [[nodiscard]] std::string last_error() const;  // the last failure in words

 private:
  struct CloseDatabase {
    void operator()(sqlite3* database) const;
  };
  struct EndStatement {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Database = std::unique_ptr<sqlite3, CloseDatabase>;
  using Statement = std::unique_ptr<sqlite3_stmt, EndStatement>;

  explicit SqliteDatabase(Database database) : database_(std::move(database)) {}

  Database database_;
  std::map<const char*, Statement> statements_;  // by the place of the literal
};

// One use of a statement: bind its parameters in order, then step through its rows.
class SqliteQuery {
 public:
  // Null for a statement that could not be compiled.
  explicit SqliteQuery(sqlite3_stmt* statement) : statement_(statement) {}
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
  int bound_ = 0;
  bool succeeded_ = true;
};

}  // namespace quillvane
