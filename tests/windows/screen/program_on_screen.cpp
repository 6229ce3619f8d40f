#include "tests/windows/screen/program_on_screen.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstddef>

#include "platform/win32/wide_text.h"
#include "tests/windows/screen/hand.h"
#include "view/win32/form_window.h"

namespace quillvane {

namespace {

constexpr DWORD kPatienceMs = 30'000;
constexpr DWORD kGlanceMs = 20;  // between two looks at a state that has to come

struct Windows {
  DWORD process;
  std::vector<HWND> found;
};

BOOL CALLBACK keep_of_process(HWND window, LPARAM l) {
  auto& windows = *reinterpret_cast<Windows*>(l);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == windows.process) windows.found.push_back(window);
  return TRUE;
}

BOOL CALLBACK keep(HWND window, LPARAM l) {
  reinterpret_cast<std::vector<HWND>*>(l)->push_back(window);
  return TRUE;
}

std::vector<HWND> top_windows(DWORD process) {
  Windows windows{process, {}};
  EnumWindows(keep_of_process, reinterpret_cast<LPARAM>(&windows));
  return windows.found;
}

std::wstring class_of(HWND window) {
  wchar_t name[100] = L"";
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return name;
}

}  // namespace

bool eventually(const std::string& what, const std::function<bool()>& holds) {
  const std::uint64_t end = GetTickCount64() + kPatienceMs;
  while (!holds()) {
    if (GetTickCount64() > end) {
      ADD_FAILURE() << "never came: " << what;
      return false;
    }
    Sleep(kGlanceMs);
  }
  return true;
}

std::wstring cleaner_program() { return widen(QUILLVANE_CLEANER); }

POINT middle(const RECT& area) {
  return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

std::string text_of(HWND window) {
  const auto length = static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
  std::wstring text(length + 1, L'\0');
  const LRESULT read =
      SendMessageW(window, WM_GETTEXT, length + 1, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(read));
  return narrow(text);
}

RECT area_of(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return area;
}

std::vector<HWND> controls_in(HWND window) {
  std::vector<HWND> found;
  EnumChildWindows(window, keep, reinterpret_cast<LPARAM>(&found));
  return found;
}

HWND control_in(HWND window, std::string_view text) {
  HWND hidden = nullptr;
  for (const HWND child : controls_in(window)) {
    if (GetParent(child) != window || text_of(child) != text) continue;
    if (IsWindowVisible(child) != 0) return child;
    if (hidden == nullptr) hidden = child;
  }
  return hidden;
}

HWND control_of_class(HWND window, const wchar_t* window_class) {
  for (const HWND child : controls_in(window)) {
    if (_wcsicmp(class_of(child).c_str(), window_class) == 0) return child;
  }
  return nullptr;
}

bool is_enabled_in(HWND window, std::string_view text) {
  const HWND found = control_in(window, text);
  EXPECT_NE(found, nullptr) << text;
  return IsWindowEnabled(found) != 0;
}

void click_in(HWND window, std::string_view text) {
  const HWND found = control_in(window, text);
  ASSERT_NE(found, nullptr) << text;
  click_at(middle(area_of(found)));
}

ProgramOnScreen::ProgramOnScreen(const std::wstring& program, const std::wstring& switches) {
  SetProcessDPIAware();  // else Windows would tell places in another resolution than the program's
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  std::wstring command = L"\"" + program + L"\" " + switches;
  PROCESS_INFORMATION process{};
  const BOOL started = CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0,
                                      nullptr, nullptr, &startup, &process);
  EXPECT_TRUE(started) << narrow(program) << ": " << GetLastError();
  if (!started) return;
  CloseHandle(process.hThread);
  process_ = FileHandle(process.hProcess);
  id_ = process.dwProcessId;
  const bool shown = eventually("the window", [this] {
    for (const HWND window : top_windows(id_)) {
      if (class_of(window) == kFormWindowClass && IsWindowVisible(window) != 0) window_ = window;
    }
    return window_ != nullptr;
  });
  if (shown) WaitForInputIdle(process_.get(), kPatienceMs);
}

ProgramOnScreen::~ProgramOnScreen() {
  if (!process_.is_valid()) return;
  PostMessageW(window_, WM_CLOSE, 0, 0);
  if (WaitForSingleObject(process_.get(), kPatienceMs) == WAIT_OBJECT_0) return;
  ADD_FAILURE() << "the program does not end";
  TerminateProcess(process_.get(), 1);
}

RECT ProgramOnScreen::area() const { return area_of(window_); }

DWORD ProgramOnScreen::exit_code() const {
  WaitForSingleObject(process_.get(), kPatienceMs);
  DWORD code = STILL_ACTIVE;
  GetExitCodeProcess(process_.get(), &code);
  return code;
}

HWND ProgramOnScreen::form(std::string_view title) const {
  for (const HWND window : top_windows(id_)) {
    const bool is_form = class_of(window) == kFormWindowClass && window != window_;
    const bool is_at_work = IsWindowVisible(window) != 0 && IsWindowEnabled(window) != 0;
    if (is_form && is_at_work && text_of(window) == title) return window;
  }
  return nullptr;
}

std::string ProgramOnScreen::text_beginning(std::string_view begin) const {
  for (const HWND child : controls()) {
    const std::string text = text_of(child);
    if (text.starts_with(begin)) return text;
  }
  return {};
}

HWND ProgramOnScreen::box(std::string_view title) const {
  for (const HWND window : top_windows(id_)) {
    const bool is_box = class_of(window) == L"#32770" && IsWindowVisible(window) != 0;
    if (is_box && text_of(window) == title) return window;
  }
  return nullptr;
}

std::string ProgramOnScreen::box_text(HWND box) const {
  std::string longest;
  for (const HWND part : controls_in(box)) {
    const std::string text = text_of(part);
    if (class_of(part) == L"Static" && text.size() > longest.size()) longest = text;
  }
  return longest;
}

HWND await_box(const ProgramOnScreen& program, const std::string& title) {
  HWND box = nullptr;
  EXPECT_TRUE(eventually("the box " + title, [&] {
    box = program.box(title);
    return box != nullptr;
  }));
  return box;
}

void answer_box(HWND box, const std::string& button) {
  HWND found = nullptr;
  for (const HWND child : controls_in(box)) {
    std::string text = text_of(child);
    std::erase(text, '&');
    if (text == button) found = child;
  }
  ASSERT_NE(found, nullptr) << button;
  click_at(middle(area_of(found)));
  ASSERT_TRUE(eventually("the end of the box", [box] { return IsWindow(box) == 0; }));
}

}  // namespace quillvane
