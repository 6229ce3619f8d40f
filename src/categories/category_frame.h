// What every category routine does around its list of places.
#pragma once

namespace quillvane {

class JunkPage;

// Marks the node as being scanned and sets the running numbers of the category to 0.
void begin_category(JunkPage& page, int node);

// Writes count and size behind the node's caption and colours it: dark red when something was
// found, else black. Adds the numbers to the node's group.
void end_category(JunkPage& page, int node);

// Adds the running numbers of the category to the group of `node`, and notes them for the node.
void add_to_group(JunkPage& page, int node);

}  // namespace quillvane
