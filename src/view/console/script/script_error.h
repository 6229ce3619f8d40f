// Why a script ends before its last line.
#pragma once

#include <stdexcept>

namespace quillvane {

// Thrown while a line is read or its names are looked up, and caught where the line is run; never
// thrown through the program under the script.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace quillvane
