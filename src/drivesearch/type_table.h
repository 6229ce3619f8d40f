// The table of junk file types, beside the program's executable.
#pragma once

#include "support/session.h"

namespace quillvane {

// At the first start the factory table tmptype.orv becomes the user's tmptype.txt; from then on
// the user's is the only copy. A failed step is passed over.
void put_type_table_in_place(const Session& session);

}  // namespace quillvane
