// Removing links for good: with a backup, as the commands do it, and without a user.
#pragma once

#include <string>
#include <vector>

#include "shortcuts/result_page.h"
#include "support/session.h"

namespace quillvane {

inline constexpr int kUnattended = 2;  // runmode of a run without a user

// What became of one link of a removal.
struct RemovedLink {
  std::string path;
  bool copied = false;   // into the backup
  bool removed = false;  // it is not there any more
};

enum class UncopiedLinks {
  kGo,         // a link whose backup failed is removed all the same, as the window does
  kEndTheRun,  // it stays, and all behind it
};

// Copies the ticked links of `results` into a folder of its own under the program's, lists them
// beside it, and removes them, when the user says so; then the list is empty, its rows without a
// tick gone too. Answers what became of the links that it came to.
std::vector<RemovedLink> remove_with_backup(ResultPage& results, UncopiedLinks uncopied);

// Title of the question of remove_with_backup.
inline constexpr const char* kRemoveLinksTitle = "Please Confirm";

// Removes the links of all rows, from the last to the first, without a copy; each row goes whatever
// came of its link. Answers what became of those that it came to.
std::vector<RemovedLink> remove_every_link(ResultPage& results);

// Raises the suite's statistics of removed links. What could not be read is not begun anew.
void add_to_removed_links(Session& session, int count);

}  // namespace quillvane
