// Byte counts as text.
#pragma once

#include <string>
#include <string_view>

namespace quillvane {

// Bytes with " B", " KB", " MB" or " GB" behind the number: "1023 B", "1.5 KB", "3.41 MB". KB have
// at most 1 decimal, MB and GB at most 2, rounded to the nearest with ties to the even digit. Empty
// from 1024 GB on: there is no unit above. A negative count gives bytes. `decimal_separator` is
// the system's.
[[nodiscard]] std::string NumberInKB(double bytes, std::string_view decimal_separator);

// Bytes as the drive search shows them: with " Byte", from 1024 on in " KB", above 1024 KB in "
// MB", both with at most 2 decimals, rounded to the nearest with ties to the even digit.
[[nodiscard]] std::string search_size_text(double bytes, std::string_view decimal_separator);

}  // namespace quillvane
