// The tree, the lists and the tool bar of the program's main window.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <cstddef>

#include "platform/win32/wide_text.h"
#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/program_on_screen.h"
#include "tests/windows/screen/remote_memory.h"
#include "view/win32/toolbar_binding.h"

namespace quillvane {

namespace {

constexpr std::size_t kTextOffset = 256;  // behind the record that the text belongs to
constexpr std::size_t kTextLetters = 300;
constexpr std::size_t kMemoryBytes = kTextOffset + (kTextLetters + 1) * sizeof(wchar_t);

}  // namespace

// --- The tree.

ScreenNode ProgramOnScreen::node_of(HWND tree, HTREEITEM item) const {
  const RemoteMemory memory(process_.get(), kMemoryBytes);
  TVITEMW record{};
  record.mask = TVIF_TEXT | TVIF_STATE;
  record.hItem = item;
  record.stateMask = ~0U;
  record.pszText = memory.at<wchar_t>(kTextOffset);
  record.cchTextMax = kTextLetters;
  memory.write(record);
  EXPECT_NE(SendMessageW(tree, TVM_GETITEMW, 0, memory.address()), 0);
  const auto answer = memory.read<TVITEMW>();
  return {narrow(memory.read_text(kTextOffset, kTextLetters)), (answer.state & TVIS_BOLD) != 0,
          (answer.state & TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2),
          (answer.state & TVIS_SELECTED) != 0, item};
}

namespace {

HTREEITEM next_of(HWND tree, HTREEITEM from, WPARAM what) {
  return reinterpret_cast<HTREEITEM>(
      SendMessageW(tree, TVM_GETNEXTITEM, what, reinterpret_cast<LPARAM>(from)));
}

}  // namespace

void ProgramOnScreen::collect(HTREEITEM item, std::vector<ScreenNode>& nodes) const {
  for (; item != nullptr; item = next_of(tree(), item, TVGN_NEXT)) {
    nodes.push_back(node_of(tree(), item));
    collect(next_of(tree(), item, TVGN_CHILD), nodes);
  }
}

void ProgramOnScreen::choose_in(HWND tree, const std::vector<std::string>& names) const {
  HTREEITEM at = next_of(tree, nullptr, TVGN_ROOT);
  for (const std::string& name : names) {
    SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(at));
    std::string passed;
    HTREEITEM item = next_of(tree, at, TVGN_CHILD);
    for (; item != nullptr; item = next_of(tree, item, TVGN_NEXT)) {
      const std::string text = node_of(tree, item).text;
      if (text.find(name) != std::string::npos) break;
      passed += text + ", ";
    }
    ASSERT_NE(item, nullptr) << name << " is not among " << passed;
    at = item;
  }
  SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(at));
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

bool ProgramOnScreen::row_selected(HWND list, int row) const {
  return SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
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

void ProgramOnScreen::click_tab(HWND strip, int number) const {
  const RemoteMemory memory(process_.get(), sizeof(RECT));
  memory.write(RECT{});
  ASSERT_NE(SendMessageW(strip, TCM_GETITEMRECT, static_cast<WPARAM>(number), memory.address()), 0);
  auto area = memory.read<RECT>();
  MapWindowPoints(strip, nullptr, reinterpret_cast<POINT*>(&area), 2);
  click_at(middle(area));
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
