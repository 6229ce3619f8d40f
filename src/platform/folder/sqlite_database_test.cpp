#include "platform/folder/sqlite_database.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "platform/folder/registry_schema.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

constexpr std::chrono::milliseconds kNoWait{0};

class SqliteDatabaseTest : public testing::Test {
 protected:
  SqliteDatabase open(SqliteDatabase::Missing missing = SqliteDatabase::Missing::kIsMade) {
    return std::get<SqliteDatabase>(
        SqliteDatabase::open(folder_.path_of("a.db"), missing, kNoWait));
  }

  TempFolder folder_;
};

TEST_F(SqliteDatabaseTest, AMissingFileIsMadeOnlyWhenAskedFor) {
  const auto opened =
      SqliteDatabase::open(folder_.path_of("a.db"), SqliteDatabase::Missing::kFails, kNoWait);
  ASSERT_TRUE(std::holds_alternative<std::string>(opened));
  EXPECT_EQ(std::get<std::string>(opened), "unable to open database file");
  EXPECT_FALSE(folder_.has("a.db"));
}

TEST_F(SqliteDatabaseTest, BytesOfAnyKindComeBackAsTheyWere) {
  SqliteDatabase database = open();
  ASSERT_TRUE(database.run("CREATE TABLE t (n INTEGER, b BLOB NOT NULL)"));
  for (const std::string& bytes : {""s, "a\0b"s, "\xFF\xFE"s}) {
    ASSERT_TRUE(database.query("DELETE FROM t").run());
    ASSERT_TRUE(database.query("INSERT INTO t VALUES (?, ?)").bind(-5).bind(bytes).run());
    SqliteQuery query = database.query("SELECT n, b FROM t");
    ASSERT_TRUE(query.next());
    EXPECT_EQ(query.number(0), -5);
    EXPECT_EQ(query.bytes(1), bytes);
    EXPECT_FALSE(query.next());
    EXPECT_TRUE(query.succeeded());
  }
}

TEST_F(SqliteDatabaseTest, AQueryThatCannotBeRunHasNoRows) {
  SqliteDatabase database = open();
  SqliteQuery query = database.query("SELECT * FROM gone WHERE a = ?");
  EXPECT_FALSE(query.bind(1).next());
  EXPECT_FALSE(query.succeeded());
  EXPECT_FALSE(database.run("DROP TABLE gone"));
  EXPECT_EQ(database.last_error(), "no such table: gone");
  EXPECT_FALSE(database.is_locked());
}

TEST_F(SqliteDatabaseTest, StepsInsideOfStepsShareTheirEnd) {
  SqliteDatabase database = open();
  ASSERT_TRUE(database.run("CREATE TABLE t (n)"));
  EXPECT_FALSE(database.at_one_stroke([&] {
    EXPECT_TRUE(database.at_one_stroke([&] { return database.run("INSERT INTO t VALUES (1)"); }));
    return false;
  }));
  SqliteQuery query = database.query("SELECT count(*) FROM t");
  ASSERT_TRUE(query.next());
  EXPECT_EQ(query.number(0), 0);
}

TEST_F(SqliteDatabaseTest, AnEmptyDatabaseHoldsNothingAndItsTablesMakeItARegistry) {
  SqliteDatabase database = open();
  EXPECT_EQ(std::get<StoreContent>(inspect_store(database)), StoreContent::kNothing);
  ASSERT_TRUE(database.run(kRegistryTables));
  EXPECT_EQ(std::get<StoreContent>(inspect_store(database)), StoreContent::kRegistry);
}

}  // namespace
}  // namespace quillvane
