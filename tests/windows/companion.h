// Another process, which does something to this PC while a test looks on. It says in lines what
// happens to it and ends when the test does, however the test ends.
#pragma once

#include <windows.h>

#include <string>

#include "platform/win32/system_handle.h"

namespace quillvane {

// The program that the other process runs.
[[nodiscard]] std::wstring companion_program();

class Companion {
 public:
  // Starts the program, or a copy of it, and waits until it does what it is told:
  //   wait            nothing
  //   hold "PATH"     holds a file open, without letting anybody else open it
  //   suite "TITLE"   owns a window of that title and tells what a text to the suite arrives as
  Companion(const std::wstring& program, const std::wstring& task);
  ~Companion();
  Companion(const Companion&) = delete;
  Companion& operator=(const Companion&) = delete;

  [[nodiscard]] DWORD id() const { return id_; }

  // The next line that it tells; empty when it has ended.
  [[nodiscard]] std::string line();

  // Lets it end, and waits for that.
  void end();
  // Waits until it has ended by itself or by others; false when it does not.
  [[nodiscard]] bool has_ended() const;

 private:
  FileHandle process_;
  FileHandle input_;   // it ends when this is closed
  FileHandle output_;  // of its lines
  DWORD id_ = 0;
};

}  // namespace quillvane
