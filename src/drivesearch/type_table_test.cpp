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
std::string record(std::string description, std::string pattern) {
  description.resize(50, ' ');
  pattern.resize(50, ' ');
  return description + pattern + "1";
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

}  // namespace
}  // namespace quillvane
