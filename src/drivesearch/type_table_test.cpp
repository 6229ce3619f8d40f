#include "drivesearch/type_table.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tests/support/scan_fixture.h"

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

// A disk that takes no new file.
class FullDisk final : public FileSystem {
 public:
  explicit FullDisk(FileSystem& files) : files_(files) {}

  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree(
      const std::string& folder, const std::string& pattern) const override {
    return files_.read_tree(folder, pattern);
  }
  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string& folder,
                                                     const std::string& pattern) const override {
    return files_.list_folder(folder, pattern);
  }
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override {
    return files_.attributes(path);
  }
  [[nodiscard]] bool set_attributes(const std::string& path, std::uint32_t bits) override {
    return files_.set_attributes(path, bits);
  }
  [[nodiscard]] std::optional<std::uint64_t> file_size(const std::string& path) const override {
    return files_.file_size(path);
  }
  [[nodiscard]] std::optional<std::string> read_file(const std::string& path) const override {
    return files_.read_file(path);
  }
  [[nodiscard]] bool write_file(const std::string&, std::string_view) override { return false; }
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override {
    return files_.remove_file(path);
  }

 private:
  FileSystem& files_;
};

TEST(TypeTable, TheFactoryTableIsKeptWhenItsCopyCannotBeWritten) {
  ScanFixture fixture;
  fixture.add_program_file("tmptype.orv", kFactory);
  const Program program(fixture.machine.platform());
  FullDisk full(program.platform.files);

  put_type_table_in_place(full, program);

  EXPECT_EQ(fixture.program_file("tmptype.orv"), kFactory);
  EXPECT_EQ(fixture.program_file("tmptype.txt"), std::nullopt);
}

}  // namespace
}  // namespace quillvane
