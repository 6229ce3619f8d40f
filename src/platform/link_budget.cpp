#include "platform/link_budget.h"

namespace quillvane {

LinkBudget::Entry LinkBudget::enter(const FolderIdentity& folder, bool is_link) {
  const std::lock_guard lock(entering_);
  if (entered_.insert(folder).second) return Entry::kFirst;
  const bool is_used_up = again_ > kReadInAMoment + kTimesAsMany * first_;
  return is_link && is_used_up ? Entry::kPassedOver : Entry::kAgain;
}

}  // namespace quillvane
