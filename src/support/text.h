// Text rules that all routines share. Case is folded by the caller where a comparison shall not
// see it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

// Without the blanks at both ends (blanks only; tabs stay).
[[nodiscard]] std::string_view Trim(std::string_view text);

// The parts between the separators; one empty part for an empty text.
[[nodiscard]] std::vector<std::string> Split(std::string_view text, std::string_view separator);

// Part `index` of Split, empty when there are fewer.
[[nodiscard]] std::string part(const std::vector<std::string>& parts, std::size_t index);

// Whether `text` is like `pattern`: "?" is one character, "*" any run, "#" a digit, "[a-c]" and
// "[!a-c]" one of a set. Exact in case.
[[nodiscard]] bool Like(std::string_view text, std::string_view pattern);

[[nodiscard]] std::string replace_all(std::string_view text, std::string_view from,
                                      std::string_view to);

// Lines of a text file: ended by CR LF, LF or CR; the end of the text ends the last one.
[[nodiscard]] std::vector<std::string> text_lines(std::string_view content);

// A whole number as the program prints numbers: "12", "-3"; doubles with a fraction in their
// shortest form with a point.
[[nodiscard]] std::string number_text(double number);

}  // namespace quillvane
