#include "cleaning/pending_queue.h"

#include <gtest/gtest.h>

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
  queue.savepending();
  EXPECT_EQ(stored(), (Texts{"\\??\\C:\\one", "", "\\??\\C:\\two", "\\??\\C:\\three",
                             "\\??\\C:\\four", "", ""}));
}

TEST_F(PendingQueueTest, ReadsAfreshForEachRun) {
  queue.loadpending();
  queue.add("C:\\one");
  queue.savepending();
  queue.loadpending();
  EXPECT_EQ(queue.PendingCount(), 3U);  // the pair and the empty text that was written with it
  queue.add("C:\\two");
  EXPECT_EQ(queue.PendingOperations(), (Texts{"\\??\\C:\\one", "", "", "\\??\\C:\\two", "", ""}));
}

TEST_F(PendingQueueTest, GoesOnFromTheOldCountWhenNothingCanBeRead) {
  queue.loadpending();
  queue.add("C:\\one");
  queue.loadpending();  // nothing was written, so there is no value
  queue.add("C:\\two");
  EXPECT_EQ(queue.PendingOperations(), (Texts{"\\??\\C:\\one", "", "\\??\\C:\\two", "", ""}));
}

TEST_F(PendingQueueTest, AsksForAccessToTheKeyEachTime) {
  queue.loadpending();
  queue.savepending();
  const auto effects = machine.effects().take();
  ASSERT_EQ(effects.size(), 3U);
  EXPECT_EQ(effects[0].kind, "key-access");
  EXPECT_EQ(effects[1].kind, "key-access");
  EXPECT_EQ(effects[2].kind, "queue-write");
}

}  // namespace
}  // namespace quillvane
