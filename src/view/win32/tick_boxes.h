// The boxes that stand before rows and nodes, drawn by the program: Windows makes them for one
// resolution of the screen and keeps that size on all.
#pragma once

#include "view/win32/control_view.h"
#include "view/win32/gdi_objects.h"

namespace quillvane {

// Pictures of an empty and a ticked box, `height` pixels high. `first` pictures that are never
// shown stand before them: a tree numbers its boxes from 1, a list from 0.
[[nodiscard]] ImageListOwner tick_boxes(const ViewHost& host, int height, int first);

}  // namespace quillvane
