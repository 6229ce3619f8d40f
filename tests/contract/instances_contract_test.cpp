// What instances of the program tell each other, on every platform. The instances are those of one
// process here: they know each other in the same way.
#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class InstancesContract : public ContractTest {};

TEST_F(InstancesContract, WhileOneCleansNoneIsHeldOff) {
  const Instances::Hold cleaning = platform.instances.announce_cleaning();
  ASSERT_NE(cleaning, nullptr);
  EXPECT_EQ(platform.instances.hold_off_cleaning(), nullptr);
}

TEST_F(InstancesContract, SeveralMayCleanAndTheLastOneCounts) {
  Instances::Hold first = platform.instances.announce_cleaning();
  Instances::Hold second = platform.instances.announce_cleaning();
  ASSERT_NE(second, nullptr);
  first = nullptr;
  EXPECT_EQ(platform.instances.hold_off_cleaning(), nullptr);
  second = nullptr;
  EXPECT_NE(platform.instances.hold_off_cleaning(), nullptr);
}

TEST_F(InstancesContract, HoldingOffEndsWithItsHold) {
  Instances::Hold held = platform.instances.hold_off_cleaning();
  ASSERT_NE(held, nullptr);
  held = nullptr;
  EXPECT_NE(platform.instances.announce_cleaning(), nullptr);
}

}  // namespace
}  // namespace quillvane
