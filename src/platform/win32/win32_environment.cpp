#include "platform/win32/win32_environment.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <memory>

#include "platform/unicode_case.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

// Calls `write(buffer, room)` with growing room until its result, the length that is needed or was
// written, is below the room. Empty when it is 0.
template <typename Write>
std::wstring written_text(Write write) {
  std::wstring text(256, L'\0');
  for (;;) {
    const auto room = static_cast<DWORD>(text.size());
    const DWORD length = write(text.data(), room);
    if (length < room) {
      text.resize(length);
      return text;
    }
    text.resize(std::size_t{length} + 1);
  }
}

struct FreeEnvironment {
  void operator()(wchar_t* block) const { FreeEnvironmentStringsW(block); }
};

}  // namespace

std::string Win32Environment::get(const std::string& name) const {
  const std::wstring wide = widen(name);
  return narrow(written_text([&](wchar_t* buffer, DWORD room) {
    return GetEnvironmentVariableW(wide.c_str(), buffer, room);
  }));
}

std::string Win32Environment::expand(const std::string& text) const {
  const std::wstring wide = widen(text);
  std::wstring expanded = written_text([&](wchar_t* buffer, DWORD room) {
    return ExpandEnvironmentStringsW(wide.c_str(), buffer, room);
  });
  if (!expanded.empty()) expanded.pop_back();  // this length counts the terminator
  return narrow(expanded);
}

std::vector<std::pair<std::string, std::string>> Win32Environment::all() const {
  std::vector<std::pair<std::string, std::string>> variables;
  const std::unique_ptr<wchar_t, FreeEnvironment> block(GetEnvironmentStringsW());
  for (const wchar_t* at = block.get(); at != nullptr && *at != L'\0'; at += std::wcslen(at) + 1) {
    const std::wstring_view variable = at;
    // Names that begin with "=" are Windows' own notes on the current folder of each drive.
    const std::size_t equals = variable.find(L'=', 1);
    if (variable[0] == L'=' || equals == std::wstring_view::npos) continue;
    variables.emplace_back(narrow(variable.substr(0, equals)), narrow(variable.substr(equals + 1)));
  }
  std::sort(variables.begin(), variables.end(), [](const auto& left, const auto& right) {
    return compare_names(left.first, right.first) < 0;
  });
  return variables;
}

}  // namespace quillvane
