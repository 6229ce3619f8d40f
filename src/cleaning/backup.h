// Copying the ticked files aside before they go.
#pragma once

namespace quillvane {

class JunkPage;

// Copies the ticked rows of view1 into a folder of its own under the program's, and writes what was
// copied into an index, the registry's history and the fields of count and size.
void back_up(JunkPage& page);

}  // namespace quillvane
