// What the progress line says of a scan: how much was found until now, and where it is.
#pragma once

#include <string>
#include <string_view>

namespace quillvane {

class Form7;

// "12 files, 3.41 MB  C:\Windows\Temp": what the scan of `form` has listed until now, then
// the file or folder in hand.
[[nodiscard]] std::string scan_progress(const Form7& form, std::string_view place);

}  // namespace quillvane
