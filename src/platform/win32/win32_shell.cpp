#include "platform/win32/win32_shell.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include <cstdint>

#include "platform/win32/system_handle.h"
#include "platform/win32/wide_text.h"

// Missing in the headers, though every Windows has it.
extern "C" __declspec(dllimport) void WINAPI SHUpdateRecycleBinIcon();

namespace quillvane {

namespace {

// The call of the help viewer, whose header is not part of every SDK.
using HtmlHelp = HWND(WINAPI*)(HWND owner, LPCWSTR file, UINT command, DWORD_PTR data);
constexpr UINT kHelpContext = 15;

// Null when the viewer is not installed. It stays loaded: its windows need it until the end.
HtmlHelp load_html_help() {
  wchar_t folder[MAX_PATH];
  const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  // By its whole path: a file of that name elsewhere is not the viewer.
  const HMODULE viewer = LoadLibraryW((std::wstring(folder) + L"\\hhctrl.ocx").c_str());
  if (viewer == nullptr) return nullptr;
  return reinterpret_cast<HtmlHelp>(reinterpret_cast<void*>(GetProcAddress(viewer, "HtmlHelpW")));
}

// The shell takes no text for "the usual one", which an empty text is not.
const wchar_t* text_or_null(const std::wstring& text) {
  return text.empty() ? nullptr : text.c_str();
}

}  // namespace

Win32Shell::Win32Shell()
    : has_com_(
          SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {}

Win32Shell::~Win32Shell() {
  if (has_com_) CoUninitialize();
}

int Win32Shell::open(const ShellRequest& request) {
  const std::wstring verb = widen(request.verb);
  const std::wstring folder = widen(request.folder);
  const HINSTANCE answer =
      ShellExecuteW(nullptr, text_or_null(verb), widen(request.path).c_str(),
                    /*lpParameters=*/nullptr, text_or_null(folder), request.show);
  return static_cast<int>(reinterpret_cast<std::intptr_t>(answer));
}

bool Win32Shell::show_properties(const std::string& path) {
  const std::wstring wide = widen(path);
  SHELLEXECUTEINFOW request{};
  request.cbSize = sizeof(request);
  request.fMask = SEE_MASK_INVOKEIDLIST | SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
  request.hwnd = GetActiveWindow();
  request.lpVerb = L"properties";
  request.lpFile = wide.c_str();
  request.nShow = kShowNormal;
  const bool is_shown = ShellExecuteExW(&request) != FALSE;
  if (request.hProcess != nullptr) CloseHandle(request.hProcess);
  return is_shown;
}

std::string Win32Shell::special_folder(int id) const {
  wchar_t path[MAX_PATH];
  const HRESULT result =
      SHGetFolderPathW(nullptr, id | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, path);
  return result == S_OK ? narrow(path) : std::string();
}

bool Win32Shell::recycle(const std::string& path) {
  // The call takes a list of paths; a second zero ends it.
  const std::wstring paths = widen(path) + L'\0';
  SHFILEOPSTRUCTW request{};
  request.hwnd = GetActiveWindow();
  request.wFunc = FO_DELETE;
  request.pFrom = paths.c_str();
  request.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION;
  return SHFileOperationW(&request) == 0 && request.fAnyOperationsAborted == FALSE;
}

void Win32Shell::empty_recycle_bin() {
  // An empty bin is a failure to Windows; to the program both outcomes are the same.
  static_cast<void>(SHEmptyRecycleBinW(nullptr, /*pszRootPath=*/nullptr, SHERB_NOCONFIRMATION));
}

void Win32Shell::update_recycle_bin_icon() { SHUpdateRecycleBinIcon(); }

void Win32Shell::show_help(const std::string& file, int topic) {
  static const HtmlHelp html_help = load_html_help();
  if (html_help == nullptr) return;
  html_help(GetActiveWindow(), widen(file).c_str(), kHelpContext, static_cast<DWORD_PTR>(topic));
}

}  // namespace quillvane
