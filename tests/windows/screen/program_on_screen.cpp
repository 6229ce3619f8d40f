#include "tests/windows/screen/program_on_screen.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "platform/win32/wide_text.h"
#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/remote_memory.h"
#include "view/win32/form_window.h"
#include "view/win32/toolbar_binding.h"

namespace quillvane {

namespace {

constexpr DWORD kPatienceMs = 30'000;
constexpr DWORD kGlanceMs = 20;           // between two looks at a state that has to come
constexpr std::size_t kTextOffset = 256;  // behind the record that the text belongs to
constexpr std::size_t kTextLetters = 300;
constexpr std::size_t kMemoryBytes = kTextOffset + (kTextLetters + 1) * sizeof(wchar_t);

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

ProgramOnScreen::ProgramOnScreen(const std::wstring& program, const std::wstring& switches) {
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

std::vector<HWND> ProgramOnScreen::controls() const {
  std::vector<HWND> found;
  EnumChildWindows(window_, keep, reinterpret_cast<LPARAM>(&found));
  return found;
}

HWND ProgramOnScreen::control(std::string_view text) const {
  for (const HWND child : controls()) {
    if (GetParent(child) == window_ && text_of(child) == text) return child;
  }
  return nullptr;
}

HWND ProgramOnScreen::control_of_class(const wchar_t* window_class) const {
  for (const HWND child : controls()) {
    if (_wcsicmp(class_of(child).c_str(), window_class) == 0) return child;
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

bool ProgramOnScreen::is_enabled(std::string_view text) const {
  const HWND found = control(text);
  EXPECT_NE(found, nullptr) << text;
  return IsWindowEnabled(found) != 0;
}

void ProgramOnScreen::click(std::string_view text) const {
  const HWND found = control(text);
  ASSERT_NE(found, nullptr) << text;
  click_at(middle(area_of(found)));
}

HWND ProgramOnScreen::box(std::string_view title) const {
  for (const HWND window : top_windows(id_)) {
    const bool is_box = class_of(window) == L"#32770" && IsWindowVisible(window) != 0;
    if (is_box && text_of(window) == title) return window;
  }
  return nullptr;
}

std::string ProgramOnScreen::box_text(HWND box) const {
  std::vector<HWND> parts;
  EnumChildWindows(box, keep, reinterpret_cast<LPARAM>(&parts));
  std::string longest;
  for (const HWND part : parts) {
    const std::string text = text_of(part);
    if (class_of(part) == L"Static" && text.size() > longest.size()) longest = text;
  }
  return longest;
}

// --- The tree.

ScreenNode ProgramOnScreen::node_of(HTREEITEM item) const {
  const RemoteMemory memory(process_.get(), kMemoryBytes);
  TVITEMW record{};
  record.mask = TVIF_TEXT | TVIF_STATE;
  record.hItem = item;
  record.stateMask = ~0U;
  record.pszText = memory.at<wchar_t>(kTextOffset);
  record.cchTextMax = kTextLetters;
  memory.write(record);
  EXPECT_NE(SendMessageW(tree(), TVM_GETITEMW, 0, memory.address()), 0);
  const auto answer = memory.read<TVITEMW>();
  return {narrow(memory.read_text(kTextOffset, kTextLetters)), (answer.state & TVIS_BOLD) != 0,
          (answer.state & TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2),
          (answer.state & TVIS_SELECTED) != 0, item};
}

void ProgramOnScreen::collect(HTREEITEM item, std::vector<ScreenNode>& nodes) const {
  const auto next = [this](HTREEITEM from, WPARAM what) {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree(), TVM_GETNEXTITEM, what, reinterpret_cast<LPARAM>(from)));
  };
  for (; item != nullptr; item = next(item, TVGN_NEXT)) {
    nodes.push_back(node_of(item));
    collect(next(item, TVGN_CHILD), nodes);
  }
}

std::vector<ScreenNode> ProgramOnScreen::nodes() const {
  std::vector<ScreenNode> nodes;
  collect(reinterpret_cast<HTREEITEM>(SendMessageW(tree(), TVM_GETNEXTITEM, TVGN_ROOT, 0)), nodes);
  return nodes;
}

ScreenNode ProgramOnScreen::node_beginning(std::string_view begin) const {
  for (const ScreenNode& node : nodes()) {
    if (node.text.starts_with(begin)) return node;
  }
  ADD_FAILURE() << "no node begins with " << begin;
  return {};
}

RECT ProgramOnScreen::node_area(const ScreenNode& node) const {
  SendMessageW(tree(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(node.item));
  const RemoteMemory memory(process_.get(), sizeof(RECT));
  memory.write(node.item);
  EXPECT_NE(SendMessageW(tree(), TVM_GETITEMRECT, TRUE, memory.address()), 0) << node.text;
  auto area = memory.read<RECT>();
  MapWindowPoints(tree(), nullptr, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

void ProgramOnScreen::click_node(std::string_view begin) const {
  click_at(middle(node_area(node_beginning(begin))));
}

// The box stands before the picture, which stands before the text.
void ProgramOnScreen::tick_node(std::string_view begin) const {
  const RECT text = node_area(node_beginning(begin));
  const int height = text.bottom - text.top;
  for (LONG left = text.left; left > text.left - 4 * height; --left) {
    const RemoteMemory memory(process_.get(), sizeof(TVHITTESTINFO));
    TVHITTESTINFO hit{};
    hit.pt = {left, middle(text).y};
    MapWindowPoints(nullptr, tree(), &hit.pt, 1);
    memory.write(hit);
    SendMessageW(tree(), TVM_HITTEST, 0, memory.address());
    if ((memory.read<TVHITTESTINFO>().flags & TVHT_ONITEMSTATEICON) == 0) continue;
    click_at({left - 4, middle(text).y});
    return;
  }
  ADD_FAILURE() << "no box before " << begin;
}

// --- Lists.

int ProgramOnScreen::rows(HWND list) const {
  return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
}

std::string ProgramOnScreen::row_text(HWND list, int row, int column) const {
  const RemoteMemory memory(process_.get(), kMemoryBytes);
  LVITEMW record{};
  record.iSubItem = column;
  record.pszText = memory.at<wchar_t>(kTextOffset);
  record.cchTextMax = kTextLetters;
  memory.write(record);
  SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), memory.address());
  return narrow(memory.read_text(kTextOffset, kTextLetters));
}

bool ProgramOnScreen::row_ticked(HWND list, int row) const {
  const auto state = static_cast<UINT>(
      SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK));
  return state == INDEXTOSTATEIMAGEMASK(2);
}

RECT ProgramOnScreen::row_area(HWND list, int row) const {
  const RemoteMemory memory(process_.get(), sizeof(RECT));
  RECT area{};
  area.left = LVIR_LABEL;
  memory.write(area);
  EXPECT_NE(SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), memory.address()), 0);
  area = memory.read<RECT>();
  MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

std::vector<std::string> ProgramOnScreen::row_texts(HWND list, int column) const {
  std::vector<std::string> texts;
  for (int row = 0; row < rows(list); ++row) texts.push_back(row_text(list, row, column));
  return texts;
}

// --- The tool bar.

bool ProgramOnScreen::tool_enabled(int button) const {
  return SendMessageW(control("Commands"), TB_ISBUTTONENABLED,
                      static_cast<WPARAM>(ToolbarBinding::kFirstCommand + button), 0) != 0;
}

bool ProgramOnScreen::tool_hidden(int button) const {
  return SendMessageW(control("Commands"), TB_ISBUTTONHIDDEN,
                      static_cast<WPARAM>(ToolbarBinding::kFirstCommand + button), 0) != 0;
}

void ProgramOnScreen::click_tool(int button) const {
  const RemoteMemory memory(process_.get(), sizeof(RECT));
  memory.write(RECT{});
  EXPECT_NE(
      SendMessageW(control("Commands"), TB_GETRECT,
                   static_cast<WPARAM>(ToolbarBinding::kFirstCommand + button), memory.address()),
      0);
  auto area = memory.read<RECT>();
  MapWindowPoints(control("Commands"), nullptr, reinterpret_cast<POINT*>(&area), 2);
  click_at(middle(area));
}

}  // namespace quillvane
