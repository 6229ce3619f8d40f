// Whether a text is like a pattern, by the rule of the program's lists.
//
//   "?"  one character    "*"  any run, the empty one too    "#"  a digit
//   "[a-c]", "[!a-c]"  one character of a set, or none of it; "[]" takes nothing
//
// Exact in case: who folds it folds both sides.
#pragma once

#include <string_view>

namespace quillvane {

enum class Likeness {
  kUnlike,
  kLike,
  kIllFormed,  // a set of the pattern is not closed, or a range in it runs backwards
};

// What Like (support/text.h) tells, with an ill-formed pattern told apart.
[[nodiscard]] Likeness likeness(std::string_view text, std::string_view pattern);

}  // namespace quillvane
