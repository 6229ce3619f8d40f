#include "tests/windows/screen/console_result.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/system_handle.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

std::string console_output(const std::wstring& words) {
  HANDLE read = nullptr;
  HANDLE write = nullptr;
  SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
  EXPECT_TRUE(CreatePipe(&read, &write, &inherited, 0));
  const FileHandle output(read);
  FileHandle input(write);
  SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = write;
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  std::wstring command = L"\"" + widen(QUILLVANE_CONSOLE) + L"\" " + words;
  PROCESS_INFORMATION process{};
  const BOOL started =
      CreateProcessW(widen(QUILLVANE_CONSOLE).c_str(), command.data(), nullptr, nullptr, TRUE,
                     CREATE_NO_WINDOW, nullptr, nullptr, &startup, &process);
  EXPECT_TRUE(started) << GetLastError();
  if (!started) return {};
  CloseHandle(process.hThread);
  const FileHandle owner(process.hProcess);
  input = FileHandle();  // else its end would not be seen here
  std::string text;
  char part[4096];
  DWORD bytes = 0;
  while (ReadFile(output.get(), part, sizeof(part), &bytes, nullptr) && bytes > 0) {
    text.append(part, bytes);
  }
  return text;
}

}  // namespace quillvane
