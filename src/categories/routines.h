// Which routine scans which node.
#pragma once

namespace quillvane {

class Form7;

// Runs the routine of a leaf of the groups "Windows" and "Browsers", without any question. Other
// nodes are passed over.
void run_category(Form7& form, int node);

}  // namespace quillvane
