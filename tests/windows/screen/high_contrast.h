// A Windows in high contrast, for the length of a test.
//
// Wine has the colours but not the switch: the program's question for it is answered in its place,
// in the program's table of the functions that it takes from Windows.
#pragma once

#include <windows.h>

#include <array>
#include <memory>

#include "tests/windows/screen/program_on_screen.h"
#include "tests/windows/screen/remote_memory.h"

namespace quillvane {

// White on black, as one of Windows' schemes has it.
class HighContrastColors {
 public:
  HighContrastColors();
  ~HighContrastColors();  // as they were before
  HighContrastColors(const HighContrastColors&) = delete;
  HighContrastColors& operator=(const HighContrastColors&) = delete;

 private:
  static constexpr std::array<int, 8> kNumbers = {
      COLOR_WINDOW,   COLOR_WINDOWTEXT, COLOR_BTNFACE,       COLOR_BTNTEXT,
      COLOR_GRAYTEXT, COLOR_HIGHLIGHT,  COLOR_HIGHLIGHTTEXT, COLOR_HOTLIGHT};
  std::array<COLORREF, kNumbers.size()> before_{};
};

class HighContrastSwitch {
 public:
  // The program must outlive it. Tells the program that the user has switched.
  explicit HighContrastSwitch(const ProgramOnScreen& program);
  ~HighContrastSwitch();
  HighContrastSwitch(const HighContrastSwitch&) = delete;
  HighContrastSwitch& operator=(const HighContrastSwitch&) = delete;

 private:
  void call(std::uint64_t function) const;  // where the program calls SystemParametersInfoW

  const ProgramOnScreen& program_;
  FileHandle process_;
  std::unique_ptr<RemoteMemory> answer_;  // the code that answers
  std::byte* slot_ = nullptr;             // in the program's table
  std::uint64_t windows_own_ = 0;
};

}  // namespace quillvane
