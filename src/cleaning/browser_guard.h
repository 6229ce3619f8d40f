// The Browsers group of a whole scan: each browser that runs is asked about before its files are
// looked at, since it holds them open.
#pragma once

namespace quillvane {

class JunkPage;

// The title of the question, by which a view that answers in advance knows it.
inline constexpr const char* kCloseBrowserTitle = "confirmation";

// Scans the browsers in the order of the tree. One that runs is closed or left out, as the user
// says, and then stands in skipped_browsers; nobody is asked in a run of the suite.
void scan_browsers(JunkPage& page);

}  // namespace quillvane
