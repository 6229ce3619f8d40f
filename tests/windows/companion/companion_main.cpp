// The other process of the Windows tests: see tests/windows/companion.h.
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "platform/win32/system_handle.h"
#include "platform/win32/win32_suite_channel.h"

namespace quillvane {

namespace {

void tell(const std::string& line) {
  std::printf("%s\n", line.c_str());
  std::fflush(stdout);
}

// Until the test closes its end.
void wait_for_end_of_input() {
  while (std::getchar() != EOF) continue;
}

int wait() {
  tell("ready");
  wait_for_end_of_input();
  return 0;
}

int hold(const std::wstring& path) {
  const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, /*sharing=*/0,
                                    nullptr, OPEN_EXISTING, 0, nullptr));
  return file.is_valid() ? wait() : 1;
}

// What the suite reads at such a message.
std::string suite_text(std::size_t length) {
  const HANDLE mapping = OpenFileMappingW(FILE_MAP_READ, FALSE, kSuiteMappingName);
  if (mapping == nullptr) return "(no block)";
  const void* view = MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, kSuiteMappingBytes);
  const std::string text =
      view == nullptr ? "(no view)" : std::string(static_cast<const char*>(view), length);
  if (view != nullptr) UnmapViewOfFile(view);
  CloseHandle(mapping);
  return text;
}

LRESULT CALLBACK suite_procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message != 1025) return DefWindowProcW(window, message, w, l);
  tell(std::to_string(w) + " " + (l != 0 ? "address" : "0") + " " + suite_text(w));
  return 0;
}

int suite(const std::wstring& title) {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = &suite_procedure;
  window_class.lpszClassName = L"QuillvaneTestSuite";
  RegisterClassW(&window_class);
  const HWND window = CreateWindowExW(0, window_class.lpszClassName, title.c_str(), WS_POPUP, 0, 0,
                                      0, 0, nullptr, nullptr, nullptr, nullptr);
  if (window == nullptr) return 1;
  std::thread([thread = GetCurrentThreadId()] {
    wait_for_end_of_input();
    PostThreadMessageW(thread, WM_QUIT, 0, 0);
  }).detach();
  tell("ready");
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}

int run(const std::vector<std::wstring>& words) {
  if (words.size() == 2 && words[1] == L"wait") return wait();
  if (words.size() == 3 && words[1] == L"hold") return hold(words[2]);
  if (words.size() == 3 && words[1] == L"suite") return suite(words[2]);
  return 1;
}

}  // namespace

}  // namespace quillvane

int main() {
  _setmode(_fileno(stdout), _O_BINARY);  // a line ends in one character
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  const int status = quillvane::run({words, words + count});
  LocalFree(words);
  return status;
}
