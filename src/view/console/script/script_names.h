// Names and numbers of a script, looked up. Case does not matter in names. All of these throw
// ScriptError when there is nothing of that name, or the number is out of range.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/window.h"
#include "view/console/script/driven_program.h"
#include "view/console/script/script_error.h"

namespace quillvane {

// The parts between the dots: "Form7.view1.Count" has three.
[[nodiscard]] std::vector<std::string> name_parts(std::string_view name);

[[nodiscard]] Window& window_named(const DrivenProgram& program, std::string_view name);

// A control by window and control ("Form7.cmd_start").
[[nodiscard]] Control& control_named(const DrivenProgram& program, std::string_view name);

// The same where the control must be of one kind. `wanted` completes "NAME: this ...".
template <typename Kind>
[[nodiscard]] Kind& control_of_kind(const DrivenProgram& program, std::string_view name,
                                    std::string_view wanted) {
  auto* control = dynamic_cast<Kind*>(&control_named(program, name));
  if (control == nullptr) throw ScriptError(std::string(name) + ": " + std::string(wanted));
  return *control;
}

// A whole number from `least` to `most`.
[[nodiscard]] int number_in_range(std::string_view word, int least, int most);

// "on" or "off".
[[nodiscard]] bool on_or_off(std::string_view word);

}  // namespace quillvane
