#include "drivesearch/type_table.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "tests/support/no_files.h"
#include "tests/support/scan_fixture.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

// One record: description and pattern, 50 characters each, and the flag.
std::string record(std::string description, std::string pattern, const std::string& flag = "1") {
  description.resize(50, ' ');
  pattern.resize(50, ' ');
  return description + pattern + flag;
}

const std::string kFactory = record("Temporary files", "*.tmp") + record("Backup files", "*.bak");
const std::string kUsers = record("Old files", "*.old");

TEST(TypeTable, TheFactoryTableBecomesTheUsersAtTheFirstStart) {
  ScanFixture fixture;
  fixture.add_program_file("tmptype.orv", kFactory);
  fixture.start();
  EXPECT_EQ(fixture.program_file("tmptype.txt"), kFactory);
  EXPECT_EQ(fixture.program_file("tmptype.orv"), std::nullopt);
}

TEST(TypeTable, TheUsersTableStaysAsItIs) {
  ScanFixture fixture;
  fixture.add_program_file("tmptype.txt", kUsers);
  fixture.add_program_file("tmptype.orv", kFactory);
  fixture.start();
  EXPECT_EQ(fixture.program_file("tmptype.txt"), kUsers);
  EXPECT_EQ(fixture.program_file("tmptype.orv"), kFactory);
}

TEST(TypeTable, AnEmptyTableOfTheUserIsATableToo) {
  ScanFixture fixture;
  fixture.add_program_file("tmptype.txt", "");
  fixture.add_program_file("tmptype.orv", kFactory);
  fixture.start();
  EXPECT_EQ(fixture.program_file("tmptype.txt"), "");
}

TEST(TypeTable, WithoutAnyTableTheProgramStartsAllTheSame) {
  ScanFixture fixture;
  EXPECT_TRUE(fixture.start().visible());
  EXPECT_EQ(fixture.program_file("tmptype.txt"), std::nullopt);
}

// A disk that has the factory table and takes no new file.
class FullDisk final : public NoFiles {
 public:
  explicit FullDisk(std::string factory_table) : factory_table_(std::move(factory_table)) {}

  [[nodiscard]] FileContent read_file(const std::string& path) const override {
    if (path != factory_table_) return ReadFailure::kMissing;
    return std::string(kFactory);
  }
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override {
    removed.push_back(path);
    return RemoveResult::kRemoved;
  }

  Texts removed;

 private:
  std::string factory_table_;
};

TEST(TypeTable, TheFactoryTableIsKeptWhenItsCopyCannotBeWritten) {
  ScanFixture fixture;
  const Session plain(fixture.machine.platform());
  FullDisk disk(plain.data_file("tmptype.orv"));
  put_type_table_in_place(Session(fixture.machine.platform().with({.files = &disk})));
  EXPECT_EQ(disk.removed, Texts{});
}

TEST(TypeTable, ATableThatCannotBeReadIsNotReplacedByTheFactorys) {
  ScanFixture fixture;
  fixture.add_program_file("tmptype.txt", kUsers);
  fixture.add_program_file("tmptype.orv", kFactory);
  const Session plain(fixture.machine.platform());
  UnreadableFile files(fixture.machine.platform().files, plain.data_file("tmptype.txt"));
  put_type_table_in_place(Session(fixture.machine.platform().with({.files = &files})));
  EXPECT_EQ(fixture.program_file("tmptype.txt"), kUsers);
  EXPECT_EQ(fixture.program_file("tmptype.orv"), kFactory);
}

// What is read from the user's table of these bytes: description, pattern and flag of each row.
Texts rows_read(const std::string& bytes) {
  ScanFixture fixture;
  fixture.add_program_file("tmptype.txt", bytes);
  const TypeTable table = read_type_table(Session(fixture.machine.platform()));
  EXPECT_EQ(table.problem, "");
  Texts rows;
  for (const FileTypeEntry& row : table.rows) {
    rows.push_back(row.description + "|" + row.extension + "|" + row.flag);
  }
  return rows;
}

TEST(TypeTable, HasARowForEach101Bytes) {
  EXPECT_EQ(rows_read(record(" Old files", " *.old ", "0") + record("", "*.x", " ")),
            (Texts{"Old files|*.old|0", "|*.x|"}));
  EXPECT_EQ(rows_read(""), Texts{});
}

TEST(TypeTable, HasATornRowFromItsMiddleOn) {
  const std::string torn = record("Log files", "*.log");
  EXPECT_EQ(rows_read(kUsers + torn.substr(0, 50)), Texts{"Old files|*.old|1"});
  EXPECT_EQ(rows_read(kUsers + torn.substr(0, 51)), (Texts{"Old files|*.old|1", "Log files|*|"}));
}

TEST(TypeTable, IsMadeWhenItIsReadAndMissing) {
  ScanFixture fixture;
  const TypeTable table = read_type_table(Session(fixture.machine.platform()));
  EXPECT_TRUE(table.rows.empty());
  EXPECT_EQ(fixture.program_file("tmptype.txt"), "");
}

TEST(TypeTable, IsWrittenWithEachFieldCutAt50) {
  ScanFixture fixture;
  const std::string fifty(50, 'a');
  EXPECT_TRUE(write_type_table(Session(fixture.machine.platform()),
                               {{" Old files ", fifty + "b", "1"}, {"", "", "0"}}));
  EXPECT_EQ(fixture.program_file("tmptype.txt"),
            record("Old files", fifty, "1") + record("", "", "0"));
}

TEST(TypesToFind, AreThePatternsThatAreOn) {
  const TypesToFind types = types_to_find({{"Temporary files", "*.tmp", "1"},
                                           {"Old files", "*.old", "0"},
                                           {"", "*.bak", "1"},
                                           {"Log files", "*.log", "1"},
                                           {"Odd flag", "*.odd", "5"}});
  EXPECT_EQ(types.patterns, "*.tmp|*.log");
  EXPECT_FALSE(types.all_files_on);
  EXPECT_FALSE(types.all_files_off);
}

TEST(TypesToFind, AreANameThatNoFileBearsWhenNoneIsOn) {
  EXPECT_EQ(types_to_find({}).patterns, "fgrft.gftr");
  EXPECT_EQ(types_to_find({{"Old files", "*.old", "0"}}).patterns, "fgrft.gftr");
  EXPECT_EQ(types_to_find({{"Nothing", "", "1"}}).patterns, "fgrft.gftr");
}

TEST(TypesToFind, KeepTheFirstPatternBehindARowWithoutOne) {
  EXPECT_EQ(types_to_find({{"Nothing", "", "1"}, {"Old files", "*.old", "1"}}).patterns, "*.old");
  EXPECT_EQ(types_to_find({{"Old files", "*.old", "1"}, {"Nothing", "", "1"}}).patterns, "*.old|");
}

TEST(TypesToFind, HaveASwitchForAllFilesThatIsNoPattern) {
  const TypesToFind on = types_to_find({{"File with Zero Size", "*.0", "1"}});
  EXPECT_EQ(on.patterns, "fgrft.gftr");
  EXPECT_TRUE(on.all_files_on);
  EXPECT_FALSE(on.all_files_off);
  const TypesToFind off = types_to_find({{"file with zero size", "", "0"}});
  EXPECT_FALSE(off.all_files_on);
  EXPECT_TRUE(off.all_files_off);
}

}  // namespace
}  // namespace quillvane
