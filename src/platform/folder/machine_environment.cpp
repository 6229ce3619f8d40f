#include "platform/folder/machine_environment.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

// Null when the variable is not set.
const std::string* find_variable(const EnvironmentVariables& variables, std::string_view name) {
  const auto found = std::find_if(variables.begin(), variables.end(), [name](const auto& variable) {
    return same_name(variable.first, name);
  });
  return found == variables.end() ? nullptr : &found->second;
}

}  // namespace

EnvironmentVariables default_environment() {
  return {
      {"WinDir", "C:\\Windows"},
      {"SystemRoot", "C:\\Windows"},
      {"SystemDrive", "C:"},
      {"USERPROFILE", "C:\\Users\\User"},
      {"USERNAME", "User"},
      {"APPDATA", "C:\\Users\\User\\AppData\\Roaming"},
      {"LOCALAPPDATA", "C:\\Users\\User\\AppData\\Local"},
      {"TEMP", "C:\\Users\\User\\AppData\\Local\\Temp"},
      {"TMP", "C:\\Users\\User\\AppData\\Local\\Temp"},
      {"ALLUSERSPROFILE", "C:\\ProgramData"},
      {"ProgramData", "C:\\ProgramData"},
      {"ProgramFiles", "C:\\Program Files"},
      {"ProgramW6432", "C:\\Program Files"},
      {"ProgramFiles(x86)", "C:\\Program Files (x86)"},
      {"OS", "Windows_NT"},
  };
}

void set_variable(EnvironmentVariables& variables, const std::string& name,
                  const std::string& value) {
  const auto found =
      std::find_if(variables.begin(), variables.end(),
                   [&name](const auto& variable) { return same_name(variable.first, name); });
  if (found == variables.end()) {
    variables.emplace_back(name, value);
  } else {
    found->second = value;
  }
}

std::string MachineEnvironment::get(const std::string& name) const {
  const std::string* value = find_variable(state_.environment, name);
  return value == nullptr ? std::string() : *value;
}

std::string MachineEnvironment::expand(const std::string& text) const {
  std::string out;
  std::string_view rest = text;
  for (;;) {
    const std::size_t begin = rest.find('%');
    out += rest.substr(0, begin);
    if (begin == std::string_view::npos) return out;
    rest.remove_prefix(begin);

    const std::size_t end = rest.find('%', 1);
    const std::string* value = nullptr;
    if (end != std::string_view::npos) {
      value = find_variable(state_.environment, rest.substr(1, end - 1));
    }
    if (value != nullptr) {
      out += *value;
      rest.remove_prefix(end + 1);
    } else {
      // The sign stands for itself, and the next one may begin a name.
      out += '%';
      rest.remove_prefix(1);
    }
  }
}

std::vector<std::pair<std::string, std::string>> MachineEnvironment::all() const {
  EnvironmentVariables sorted = state_.environment;
  std::sort(sorted.begin(), sorted.end(), [](const auto& left, const auto& right) {
    return compare_names(left.first, right.first) < 0;
  });
  return sorted;
}

}  // namespace quillvane
