// The policy that keeps Explorer from writing thumbnail databases while they are removed.
#pragma once

#include "platform/registry.h"

namespace quillvane {

// Set nine values, in every place that a version of Windows might honour, to 1 and to 0. A value
// whose key is not there is left out. What was set before is not kept: after a run all of them are
// 0, whatever an administrator had set. Meant so.
void disablethumbcache(Registry& registry);
void enablethumbcache(Registry& registry);

}  // namespace quillvane
