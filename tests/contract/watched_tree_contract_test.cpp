// Readings of a tree that somebody looks on at and may end.
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "platform/tree_reading.h"
#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

struct Onlooker : TreeReading {
  explicit Onlooker(bool says_yes) : answer(says_yes) {}
  bool go_on(const TreeProgress& progress) override {
    folders.emplace_back(progress.folder);
    files.push_back(progress.files);
    is_on_one_thread = is_on_one_thread && std::this_thread::get_id() == home;
    return answer;
  }

  bool answer;
  std::thread::id home = std::this_thread::get_id();
  bool is_on_one_thread = true;
  Names folders;
  std::vector<std::uint64_t> files;
};

class WatchedTreeContract : public ContractTest {
 protected:
  void SetUp() override {
    machine->add_folder(path_of("sub"));
    machine->add_file(path_of("sub\\1.tmp"), "1");
    machine->add_file(path_of("2.tmp"), "2");
    machine->add_file(path_of("3.log"), "3");
  }
};

TEST_F(WatchedTreeContract, AnOnlookerChangesNothing) {
  Onlooker onlooker(true);
  const auto tree = platform.files.read_tree_watched(machine->folder(), {"*.tmp"}, &onlooker);
  ASSERT_NE(tree, nullptr);
  EXPECT_FALSE(tree->ended_early());
  ASSERT_EQ(tree->root().file_count(), 1U);
  EXPECT_EQ(tree->root().name_of(0), "2.tmp");
  const ListedFolder* sub = tree->root().first_subfolder();
  ASSERT_NE(sub, nullptr);
  ASSERT_EQ(sub->file_count(), 1U);
  EXPECT_EQ(sub->name_of(0), "1.tmp");
}

TEST_F(WatchedTreeContract, TheOnlookerIsAskedFirstAndOnTheCallersThread) {
  for (const std::string& folder : {machine->folder(), machine->folder() + "\\"}) {
    Onlooker onlooker(true);
    static_cast<void>(platform.files.read_tree_watched(folder, {"*.*"}, &onlooker));
    ASSERT_FALSE(onlooker.folders.empty());
    EXPECT_EQ(onlooker.folders.front(), machine->folder());
    EXPECT_EQ(onlooker.files.front(), 0U);
    EXPECT_TRUE(onlooker.is_on_one_thread);
  }
}

TEST_F(WatchedTreeContract, AReadingThatIsEndedGivesWhatWasReadUntilThen) {
  Onlooker onlooker(false);
  const auto tree = platform.files.read_tree_watched(machine->folder(), {"*.*"}, &onlooker);
  ASSERT_NE(tree, nullptr);
  EXPECT_TRUE(tree->ended_early());
  EXPECT_EQ(tree->root().file_count(), 0U);
  EXPECT_EQ(tree->root().first_subfolder(), nullptr);
}

TEST_F(WatchedTreeContract, AFolderThatCannotBeListedGivesNoTreeToAnOnlookerEither) {
  Onlooker onlooker(true);
  EXPECT_EQ(platform.files.read_tree_watched(path_of("missing"), {"*.*"}, &onlooker), nullptr);
}

}  // namespace
}  // namespace quillvane
