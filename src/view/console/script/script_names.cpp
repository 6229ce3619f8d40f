#include "view/console/script/script_names.h"

#include <charconv>

namespace quillvane {

std::vector<std::string> name_parts(std::string_view name) {
  std::vector<std::string> parts;
  while (true) {
    const std::size_t dot = name.find('.');
    parts.emplace_back(name.substr(0, dot));
    if (dot == std::string_view::npos) return parts;
    name.remove_prefix(dot + 1);
  }
}

Window& window_named(const DrivenProgram& program, std::string_view name) {
  Window* window = program.find_window(name);
  if (window == nullptr) throw ScriptError(std::string(name) + ": there is no such window");
  return *window;
}

Control& control_named(const DrivenProgram& program, std::string_view name) {
  const std::vector<std::string> parts = name_parts(name);
  if (parts.size() != 2) {
    throw ScriptError(std::string(name) + ": must be the names of a window and a control");
  }
  Control* control = window_named(program, parts[0]).find(parts[1]);
  if (control == nullptr) throw ScriptError(std::string(name) + ": there is no such control");
  return *control;
}

int number_in_range(std::string_view word, int least, int most) {
  int number = 0;
  const char* end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  if (stop != end || error == std::errc::invalid_argument) {
    throw ScriptError(std::string(word) + ": must be a number");
  }
  if (error == std::errc::result_out_of_range || number < least || number > most) {
    throw ScriptError(std::string(word) + ": out of range");
  }
  return number;
}

bool on_or_off(std::string_view word) {
  if (word == "on") return true;
  if (word == "off") return false;
  throw ScriptError(std::string(word) + ": must be on or off");
}

}  // namespace quillvane
