// What controls hold, as a script prints it.
#pragma once

#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/tree_view.h"
#include "platform/virtual/effect_log.h"
#include "platform/virtual/queued_dialogs.h"
#include "view/console/json_text.h"

namespace quillvane {

[[nodiscard]] Json property_json(const PropertyValue& value);

// Rows count from 1. Requires: the row is there.
[[nodiscard]] Json row_json(const ListView& list, int row);
// A plain list shows its strings in the same form.
[[nodiscard]] Json row_json(const ListBox& list, int row);

[[nodiscard]] Json node_json(const TreeNode& node);

[[nodiscard]] Json box_json(const ShownBox& box);
[[nodiscard]] Json effect_json(const Effect& effect);

}  // namespace quillvane
