#include "platform/link_budget.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

using Entry = LinkBudget::Entry;

constexpr FolderIdentity kOne{1, 100};
constexpr FolderIdentity kOther{1, 101};
constexpr FolderIdentity kOnAnotherDisk{2, 100};

TEST(LinkBudget, TellsAFolderThatWasEnteredBefore) {
  LinkBudget budget;
  EXPECT_EQ(budget.enter(kOne, true), Entry::kFirst);
  EXPECT_EQ(budget.enter(kOther, false), Entry::kFirst);
  EXPECT_EQ(budget.enter(kOnAnotherDisk, true), Entry::kFirst);
  EXPECT_EQ(budget.enter(kOne, true), Entry::kAgain);
  EXPECT_EQ(budget.enter(kOther, true), Entry::kAgain);
}

TEST(LinkBudget, PassesLinksOverOnceTooMuchWasReadAgain) {
  LinkBudget budget;
  static_cast<void>(budget.enter(kOne, true));
  budget.note_read(/*again=*/false, 999);  // with the folder 1,000
  // 20,000 and four times 1,000 may be read again.
  budget.note_read(/*again=*/true, 23'999);
  EXPECT_EQ(budget.enter(kOne, true), Entry::kAgain);
  budget.note_read(/*again=*/true, 0);
  EXPECT_EQ(budget.enter(kOne, true), Entry::kPassedOver);
}

TEST(LinkBudget, AlwaysEntersWhatWasNotReadYetAndWhatIsNoLink) {
  LinkBudget budget;
  static_cast<void>(budget.enter(kOne, true));
  budget.note_read(/*again=*/true, 1'000'000);
  EXPECT_EQ(budget.enter(kOther, true), Entry::kFirst);
  EXPECT_EQ(budget.enter(kOne, false), Entry::kAgain);
}

TEST(LinkBudget, AllowsMoreInALargerTree) {
  LinkBudget budget;
  static_cast<void>(budget.enter(kOne, true));
  budget.note_read(/*again=*/true, 1'000'000);
  budget.note_read(/*again=*/false, 250'000);
  EXPECT_EQ(budget.enter(kOne, true), Entry::kAgain);
}

}  // namespace
}  // namespace quillvane
