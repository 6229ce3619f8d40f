// The shadow that a window without an edge throws.
#pragma once

#include "forms/control.h"

namespace quillvane {

// A depth of 0 is none.
struct Shadow {
  Color color = 0;
  int depth = 0;  // pixels
};

}  // namespace quillvane
