// The report of the broken links.
#pragma once

#include <string>

#include "shortcuts/result_page.h"

namespace quillvane {

// The text of the report: a line of each row of `results`, ended by CR LF.
[[nodiscard]] std::string shortcut_report(const ResultPage& results);

// Asks for a file, writes the report into it and opens it. Nothing happens without rows.
void write_shortcut_report(const ResultPage& results);

}  // namespace quillvane
