#include "cleaning/pending_queue.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "platform/multi_string.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kKey = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr const char* kValue = "PendingFileRenameOperations";

class PendingQueueTest : public testing::Test {
 protected:
  Texts stored() {
    const auto value = platform.registry.value(Hive::kLocalMachine, kKey, kValue);
    return value ? multi_string_list(value->data) : Texts{"no value"};
  }

  TempMachine machine;
  Platform platform = machine.platform();
  PendingQueue queue{platform};
};

TEST_F(PendingQueueTest, HoldsOneEmptyEntryWhereThereIsNoValue) {
  queue.loadpending();
  EXPECT_EQ(queue.PendingOperations(), Texts{""});
  EXPECT_EQ(queue.PendingCount(), 0U);
}

TEST_F(PendingQueueTest, HoldsThePathAndTwoEmptyTextsAfterOneFile) {
  queue.loadpending();
  queue.add("C:\\Temp\\A.tmp");
  EXPECT_EQ(queue.PendingOperations(), (Texts{"\\??\\C:\\Temp\\A.tmp", "", ""}));
  EXPECT_EQ(queue.PendingCount(), 2U);
}

TEST_F(PendingQueueTest, WritesOldEntriesTheNewPairAndOneEmptyText) {
  machine.set_registry_strings(Hive::kLocalMachine, kKey, kValue,
                               {"\\??\\C:\\one", "", "\\??\\C:\\two", "\\??\\C:\\three"});
  queue.loadpending();
  queue.add("C:\\four");
  EXPECT_TRUE(queue.savepending());
  EXPECT_EQ(stored(), (Texts{"\\??\\C:\\one", "", "\\??\\C:\\two", "\\??\\C:\\three",
                             "\\??\\C:\\four", "", ""}));
}

TEST_F(PendingQueueTest, ReadsAfreshForEachRun) {
  queue.loadpending();
  queue.add("C:\\one");
  EXPECT_TRUE(queue.savepending());
  queue.loadpending();
  EXPECT_EQ(queue.PendingCount(), 2U);  // the pair, without the empty text written behind it
  queue.add("C:\\two");
  EXPECT_EQ(queue.PendingOperations(), (Texts{"\\??\\C:\\one", "", "\\??\\C:\\two", "", ""}));
}

struct StoredList {
  const char* what;
  Texts stored;
  Texts with_one_more;  // the mirror when \??\C:\new was added
};

TEST_F(PendingQueueTest, PairsStayPairs) {
  const std::string added = "\\??\\C:\\new";
  const StoredList lists[] = {
      {"pairs", {"a", "", "b", "c"}, {"a", "", "b", "c", added, "", ""}},
      {"pairs and the empty text behind them", {"a", "", ""}, {"a", "", added, "", ""}},
      {"a renaming and the empty text", {"a", "b", ""}, {"a", "b", added, "", ""}},
      {"the empty text alone", {""}, {added, "", ""}},
      {"two empty texts", {"", ""}, {"", "", added, "", ""}},
      // A list that another program left odd is kept as it is.
      {"an odd list without it", {"a", "", "b"}, {"a", "", "b", added, "", ""}},
  };
  for (const StoredList& list : lists) {
    machine.set_registry_strings(Hive::kLocalMachine, kKey, kValue, list.stored);
    queue.loadpending();
    queue.add("C:\\new");
    EXPECT_EQ(queue.PendingOperations(), list.with_one_more) << list.what;
  }
}

TEST_F(PendingQueueTest, ThreeRunsLeaveThreePairs) {
  for (const char* path : {"C:\\1", "C:\\2", "C:\\3"}) {
    queue.loadpending();
    queue.add(path);
    EXPECT_TRUE(queue.savepending());
  }
  EXPECT_EQ(stored(), (Texts{"\\??\\C:\\1", "", "\\??\\C:\\2", "", "\\??\\C:\\3", "", ""}));
}

TEST_F(PendingQueueTest, AValueOfAnotherTypeIsNoneAndIsReplaced) {
  machine.set_registry_text(Hive::kLocalMachine, kKey, kValue, "C:\\one");
  queue.loadpending();
  queue.add("C:\\two");
  EXPECT_TRUE(queue.savepending());
  EXPECT_EQ(stored(), (Texts{"\\??\\C:\\two", "", ""}));
}

TEST_F(PendingQueueTest, GoesOnFromTheOldCountWhenNothingCanBeRead) {
  queue.loadpending();
  queue.add("C:\\one");
  queue.loadpending();  // nothing was written, so there is no value
  queue.add("C:\\two");
  EXPECT_EQ(queue.PendingOperations(), (Texts{"\\??\\C:\\one", "", "\\??\\C:\\two", "", ""}));
}

TEST_F(PendingQueueTest, ARemovalIsASourceWithoutATarget) {
  machine.set_registry_strings(
      Hive::kLocalMachine, kKey, kValue,
      {"\\??\\C:\\gone", "", "\\??\\C:\\moved", "\\??\\C:\\to", "C:\\odd", "", "\\??\\C:\\last"});
  EXPECT_EQ(removal_requests(platform.registry), (std::set<std::string>{"C:\\gone", "C:\\last"}));
  EXPECT_EQ(machine.effects().take().size(), 0U);
}

TEST_F(PendingQueueTest, WithoutAValueNoRemovalIsAskedFor) {
  EXPECT_EQ(removal_requests(platform.registry), std::set<std::string>{});
  machine.set_registry_text(Hive::kLocalMachine, kKey, kValue, "\\??\\C:\\one");
  EXPECT_EQ(removal_requests(platform.registry), std::set<std::string>{});
}

TEST_F(PendingQueueTest, AsksForAccessToTheKeyEachTime) {
  queue.loadpending();
  EXPECT_TRUE(queue.savepending());
  const auto effects = machine.effects().take();
  ASSERT_EQ(effects.size(), 3U);
  EXPECT_EQ(effects[0].kind, "key-access");
  EXPECT_EQ(effects[1].kind, "key-access");
  EXPECT_EQ(effects[2].kind, "queue-write");
}

}  // namespace
}  // namespace quillvane
