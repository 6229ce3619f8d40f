#include "view/win32/win32_dialogs.h"

#include <windows.h>

#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

#include <algorithm>
#include <memory>

#include "platform/win32/wide_text.h"
#include "view/win32/input_box.h"

namespace quillvane {

namespace {

struct FreeIdList {
  void operator()(ITEMIDLIST* list) const { CoTaskMemFree(list); }
};
constexpr DWORD kLongestPath = 1024;

using IdListOwner = std::unique_ptr<ITEMIDLIST, FreeIdList>;

BOOL CALLBACK keep_usable(HWND window, LPARAM found) {
  if (IsWindowVisible(window) == 0 || IsWindowEnabled(window) == 0) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

// The program's window that the user works in. While another program is at the front none of them
// is the active one: then it is the foremost that takes acts.
HWND owner_window() {
  HWND window = GetActiveWindow();
  if (window == nullptr) {
    EnumThreadWindows(GetCurrentThreadId(), keep_usable, reinterpret_cast<LPARAM>(&window));
  }
  return window;
}

IdListOwner id_list_of(const std::string& folder) {
  ITEMIDLIST* list = nullptr;
  if (folder.empty()) return nullptr;
  // A folder that is not there leaves the whole PC to choose from.
  if (SHParseDisplayName(widen(folder).c_str(), nullptr, &list, 0, nullptr) != S_OK) return nullptr;
  return IdListOwner(list);
}

std::string ask_for_file(const FileQuestion& question, DWORD flags,
                         BOOL(WINAPI* dialog)(OPENFILENAMEW*)) {
  const std::wstring title = widen(question.title);
  std::wstring filter = widen(question.filter) + L'|';
  std::replace(filter.begin(), filter.end(), L'|', L'\0');  // as Windows parts and ends them
  wchar_t path[kLongestPath] = L"";
  const std::wstring file = widen(question.file);
  file.copy(path, kLongestPath - 1);
  OPENFILENAMEW request{};
  request.lStructSize = sizeof(request);
  request.hwndOwner = owner_window();
  request.lpstrFilter = question.filter.empty() ? nullptr : filter.c_str();
  request.lpstrFile = path;
  request.nMaxFile = kLongestPath;
  request.lpstrTitle = title.c_str();
  // The working folder of the program stays what it is.
  request.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | flags;
  return dialog(&request) != FALSE ? narrow(path) : std::string();
}

}  // namespace

Answer Win32Dialogs::message_box(const std::string& text, const std::string& title,
                                 std::uint32_t style) {
  const int answer = MessageBoxW(owner_window(), widen(text).c_str(), widen(title).c_str(), style);
  // 0: no box could be shown. A question that nobody saw is answered No.
  if (answer == 0) return (style & kBoxYesNo) != 0 ? Answer::kNo : Answer::kOk;
  return static_cast<Answer>(answer);
}

std::string Win32Dialogs::browse_folder(const std::string& title, std::uint32_t flags,
                                        const std::string& root) {
  const std::wstring wide_title = widen(title);
  const IdListOwner below = id_list_of(root);
  wchar_t path[MAX_PATH] = L"";
  BROWSEINFOW request{};
  request.hwndOwner = owner_window();
  request.pidlRoot = below.get();
  request.pszDisplayName = path;
  request.lpszTitle = wide_title.c_str();
  request.ulFlags = flags;
  const IdListOwner chosen(SHBrowseForFolderW(&request));
  if (chosen == nullptr || SHGetPathFromIDListW(chosen.get(), path) == FALSE) return {};
  return narrow(path);
}

std::string Win32Dialogs::save_file(const FileQuestion& question) {
  return ask_for_file(question, OFN_OVERWRITEPROMPT, GetSaveFileNameW);
}

std::string Win32Dialogs::open_file(const FileQuestion& question) {
  return ask_for_file(question, OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST, GetOpenFileNameW);
}

std::string Win32Dialogs::input_box(const std::string& prompt, const std::string& title,
                                    const std::string& preset) {
  return ask_for_text(owner_window(), widen(prompt), widen(title), widen(preset));
}

}  // namespace quillvane
