#include "view/console/script/script_output.h"

namespace quillvane {

void ScriptOutput::print(const Json& value) { out_ << json_text(value) << '\n'; }

void ScriptOutput::print_list(int count, const std::function<Json(int number)>& item) {
  out_ << '[';
  for (int number = 1; number <= count && out_; ++number) {
    if (number > 1) out_ << ',';
    out_ << json_text(item(number));
  }
  out_ << "]\n";
}

}  // namespace quillvane
