// The cleaning run: every row of the hit list goes, whatever its tick. A file that stays is queued
// for the next restart.
#pragma once

namespace quillvane {

class JunkPage;
class PendingQueue;

// The title of the question before a run, by which a view that answers in advance knows it.
inline constexpr const char* kRemoveFilesTitle = "Please Confirm";

// Asks whether the files shall go. Nobody is asked in a run of the suite that cleans.
[[nodiscard]] bool confirm_cleaning(const JunkPage& page);

// Removes every row of view1. `pending` is the mirror of the queue, which goes on from the run
// before.
void run_cleaning(JunkPage& page, PendingQueue& pending);

}  // namespace quillvane
