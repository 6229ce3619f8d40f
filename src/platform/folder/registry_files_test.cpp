#include "platform/folder/registry_files.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/folder/host_path.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

class RegistryFiles : public testing::Test {
 protected:
  [[nodiscard]] std::optional<std::string> problem() const {
    return registry_files_problem(folder_.path_of("registry.db"));
  }

  TempFolder folder_;
};

TEST_F(RegistryFiles, MayBeMissing) { EXPECT_EQ(problem(), std::nullopt); }

TEST_F(RegistryFiles, MayHaveAJournalOfTheirOwn) {
  folder_.write("registry.db", "x");
  folder_.write("registry.db-journal", std::string(600, 'j'));
  folder_.write("registry.db-wal");
  EXPECT_EQ(problem(), std::nullopt);
}

TEST_F(RegistryFiles, AFolderIsNoStore) {
  folder_.make_folder("registry.db");
  EXPECT_EQ(problem(), "is no file");
}

TEST_F(RegistryFiles, AJournalThatIsAFileElsewhereTooIsRefused) {
  folder_.write("registry.db", "x");
  folder_.write("precious", "x");
  for (const char* name : {"registry.db-journal", "registry.db-wal", "registry.db-shm"}) {
    std::filesystem::create_hard_link(host_path(folder_.path_of("precious")),
                                      host_path(folder_.path_of(name)));
    EXPECT_EQ(problem(), std::string(name).substr(11) + " beside it is no file of its own");
    std::filesystem::remove(host_path(folder_.path_of(name)));

    folder_.make_folder(name);
    EXPECT_EQ(problem(), std::string(name).substr(11) + " beside it is no file of its own");
    std::filesystem::remove(host_path(folder_.path_of(name)));
  }
}

// The database would open that file as a list of others, find none of them and remove it.
TEST_F(RegistryFiles, AJournalThatNamesAnotherFileIsRefused) {
  folder_.write("registry.db", "x");
  folder_.write("registry.db-journal",
                "journal ... /home/user/precious\xd9\xd5\x05\xf9\x20\xa1\x63\xd7");
  EXPECT_EQ(problem(), "-journal beside it names other files");
}

}  // namespace
}  // namespace quillvane
