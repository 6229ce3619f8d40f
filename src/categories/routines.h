// Which routine scans which node.
#pragma once

namespace quillvane {

class JunkPage;

// Runs the routine of a leaf of the groups "Windows" and "Browsers", without any question. Other
// nodes are passed over.
void run_category(JunkPage& page, int node);

}  // namespace quillvane
