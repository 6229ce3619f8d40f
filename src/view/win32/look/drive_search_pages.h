// The looks of the drive search, the main window's second job.
#pragma once

#include <span>

#include "view/win32/look/layout_table.h"

namespace quillvane {

[[nodiscard]] const PageSet& drive_search_pages();
// A removal by the result page's button asks nothing of itself.
[[nodiscard]] std::span<const AskedClick> drive_search_questions();

}  // namespace quillvane
