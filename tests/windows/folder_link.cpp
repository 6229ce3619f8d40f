#include "tests/windows/folder_link.h"

#include <windows.h>

#include "platform/win32/junction.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

using UnixName = char*(CDECL*)(const wchar_t*);

// Wine's call that tells where a file lies on the host; null on Windows.
UnixName wine_unix_name() {
  const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
  return reinterpret_cast<UnixName>(
      reinterpret_cast<void*>(GetProcAddress(kernel, "wine_get_unix_file_name")));
}

// The host's path of a file, or of one that could be made in an existing folder.
std::wstring host_path(UnixName unix_name, const std::wstring& path) {
  char* name = unix_name(path.c_str());
  const std::wstring host = widen(name == nullptr ? "" : name);
  HeapFree(GetProcessHeap(), 0, name);
  return host;
}

bool exists(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// Runs a program of the host until `path` exists, or doesn't, as wanted: Wine can start such a
// program but not wait for its end.
bool run_on_host(const wchar_t* program, std::wstring command, const std::wstring& path,
                 bool wanted) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process)) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  constexpr ULONGLONG kPatienceMs = 30'000;
  const ULONGLONG begin = GetTickCount64();
  while (exists(path) != wanted) {
    if (GetTickCount64() - begin > kPatienceMs) return false;
    SwitchToThread();
  }
  return true;
}

// The host's path of a link, which itself is not followed.
std::wstring host_link_path(UnixName unix_name, const std::wstring& path) {
  const std::size_t slash = path.find_last_of(L'\\');
  return host_path(unix_name, path.substr(0, slash)) + L"/" + path.substr(slash + 1);
}

bool make_host_link(UnixName unix_name, const std::wstring& path, const std::wstring& target) {
  return run_on_host(L"Z:\\bin\\ln",
                     L"ln -s \"" + host_path(unix_name, target) + L"\" \"" +
                         host_link_path(unix_name, path) + L"\"",
                     path, /*wanted=*/true);
}

bool remove_host_link(UnixName unix_name, const std::wstring& path) {
  return run_on_host(L"Z:\\bin\\rm", L"rm \"" + host_link_path(unix_name, path) + L"\"", path,
                     /*wanted=*/false);
}

}  // namespace

bool make_folder_link(const std::wstring& path, const std::wstring& target) {
  const UnixName unix_name = wine_unix_name();
  return unix_name == nullptr ? make_junction(path, target) == ERROR_SUCCESS
                              : make_host_link(unix_name, path, target);
}

bool remove_folder_link(const std::wstring& path) {
  const UnixName unix_name = wine_unix_name();
  return unix_name == nullptr ? RemoveDirectoryW(path.c_str()) != 0
                              : remove_host_link(unix_name, path);
}

}  // namespace quillvane
