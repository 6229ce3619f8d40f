// The controls and fields as the headers of the windows and of their pages declare them.
//
//   Button cmd_start{window, "cmd_start", {.caption = "Start"}};  // starts a scan
//
// What it is stands behind the declaration, or in the line before it.
#pragma once

#include <string>
#include <vector>

namespace quillvane {

struct DeclaredName {
  std::string kind;     // "Button", "Field<int>"
  std::string member;   // as C++ reads it: "Label12_0"
  std::string name;     // as scripts read it: "Label12(0)"
  std::string meaning;  // "starts a scan"; empty when nothing is said

  [[nodiscard]] bool is_field() const { return kind.starts_with("Field<"); }
};

// In the order of the header's content.
[[nodiscard]] std::vector<DeclaredName> declared_names(const std::string& content);

}  // namespace quillvane
