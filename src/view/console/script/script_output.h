// What a script prints: one JSON value a line.
#pragma once

#include <functional>
#include <ostream>

#include "view/console/json_text.h"

namespace quillvane {

class ScriptOutput {
 public:
  // `out` must outlive it.
  explicit ScriptOutput(std::ostream& out) : out_(out) {}

  void print(const Json& value);
  // A list of `count` items, numbered from 1. They are written one by one: a list of millions of
  // rows is never held as a whole.
  void print_list(int count, const std::function<Json(int number)>& item);

 private:
  std::ostream& out_;
};

}  // namespace quillvane
