#include "tests/windows/companion.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillvane {

namespace {

constexpr DWORD kPatienceMs = 30'000;

struct Pipe {
  FileHandle read;
  FileHandle write;
};

// A pipe whose one end the other process inherits.
Pipe make_pipe(FileHandle Pipe::*inherited) {
  HANDLE read = nullptr;
  HANDLE write = nullptr;
  EXPECT_TRUE(CreatePipe(&read, &write, nullptr, 0));
  Pipe pipe{FileHandle(read), FileHandle(write)};
  EXPECT_TRUE(
      SetHandleInformation((pipe.*inherited).get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT));
  return pipe;
}

}  // namespace

std::wstring companion_program() {
  wchar_t own[MAX_PATH];
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  const std::wstring path = own;
  return path.substr(0, path.find_last_of(L'\\') + 1) + L"test_companion.exe";
}

Companion::Companion(const std::wstring& program, const std::wstring& task) {
  Pipe input = make_pipe(&Pipe::read);
  Pipe output = make_pipe(&Pipe::write);
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = input.read.get();
  startup.hStdOutput = output.write.get();
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  std::wstring command = L"\"" + program + L"\" " + task;
  PROCESS_INFORMATION process{};
  const BOOL started = CreateProcessW(program.c_str(), command.data(), nullptr, nullptr,
                                      /*bInheritHandles=*/TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                                      &startup, &process);
  EXPECT_TRUE(started) << GetLastError();
  if (!started) return;
  CloseHandle(process.hThread);
  process_ = FileHandle(process.hProcess);
  id_ = process.dwProcessId;
  input_ = std::move(input.write);
  output_ = std::move(output.read);
  output.write = FileHandle();  // else its end would not be seen here
  EXPECT_EQ(line(), "ready");
}

Companion::~Companion() {
  if (process_.is_valid()) end();
}

std::string Companion::line() {
  std::string text;
  char c = 0;
  DWORD read = 0;
  while (ReadFile(output_.get(), &c, 1, &read, nullptr) && read == 1 && c != '\n') text += c;
  return text;
}

void Companion::end() {
  input_ = FileHandle();
  EXPECT_TRUE(has_ended());
}

bool Companion::has_ended() const {
  return WaitForSingleObject(process_.get(), kPatienceMs) == WAIT_OBJECT_0;
}

}  // namespace quillvane
