#include "view/win32/tree_binding.h"

#include <commctrl.h>
#include <windowsx.h>

#include <cstring>
#include <utility>

#include "platform/win32/wide_text.h"
#include "view/win32/look/arrange.h"
#include "view/win32/tick_boxes.h"

namespace quillvane {

namespace {

constexpr int kPictureSize = 16;
constexpr int kPictureBeside = 3;
constexpr int kRowHeight = 22;
constexpr int kBoxSpace = 16;
constexpr int kNoBox = 1;  // state pictures of the control
constexpr int kTickedBox = 2;

UINT state_of(const TreeNode& node) {
  UINT state = INDEXTOSTATEIMAGEMASK(node.checked ? kTickedBox : kNoBox);
  if (node.bold) state |= TVIS_BOLD;
  return state;
}

}  // namespace

TreeBinding::TreeBinding(ViewHost& host, TreeView& tree, const ControlPlace& place)
    : ControlView(host, tree, place), tree_(tree) {
  create(WC_TREEVIEWW, WS_TABSTOP | WS_BORDER | TVS_FULLROWSELECT | TVS_LINESATROOT |
                           TVS_HASBUTTONS | TVS_SHOWSELALWAYS);
  // By this screen readers know of the ticks. Windows makes pictures of the boxes, and leaves them
  // to be destroyed when others take their place.
  SetWindowLongW(window(), GWL_STYLE, GetWindowLongW(window(), GWL_STYLE) | TVS_CHECKBOXES);
  boxes_.reset(reinterpret_cast<HIMAGELIST>(send(TVM_GETIMAGELIST, TVSIL_STATE)));
  send(TVM_SETEXTENDEDSTYLE, TVS_EX_DOUBLEBUFFER, TVS_EX_DOUBLEBUFFER);
  restyle();
}

void TreeBinding::restyle() {
  ControlView::restyle();
  images_ = host().pictures().list(place().picture, scaled(kPictureSize, host().dpi()), CLR_NONE,
                                   scaled(kPictureBeside, host().dpi()));
  send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images_.get()));
  ImageListOwner boxes = tick_boxes(host(), scaled(kBoxSpace, host().dpi()), 1);
  send(TVM_SETIMAGELIST, TVSIL_STATE, reinterpret_cast<LPARAM>(boxes.get()));
  boxes_ = std::move(boxes);
  send(TVM_SETITEMHEIGHT, static_cast<WPARAM>(scaled(kRowHeight, host().dpi())));
  send(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(host().theme().list));
  send(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(host().theme().list_text));
  InvalidateRect(window(), nullptr, TRUE);
}

bool TreeBinding::has_same_nodes() const {
  if (static_cast<int>(shown_.size()) != tree_.count()) return false;
  for (int index = 1; index <= tree_.count(); ++index) {
    const TreeNode& shown = shown_[static_cast<std::size_t>(index) - 1].node;
    const TreeNode& node = tree_.node(index);
    if (shown.key != node.key || shown.parent != node.parent) return false;
  }
  return true;
}

HTREEITEM TreeBinding::item_of(const std::string& key) const {
  for (const Shown& shown : shown_) {
    if (!key.empty() && shown.node.key == key) return shown.item;
  }
  return TVI_ROOT;
}

void TreeBinding::fill() {
  send(WM_SETREDRAW, FALSE);
  send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
  shown_.clear();
  for (int index = 1; index <= tree_.count(); ++index) {
    const TreeNode& node = tree_.node(index);
    std::wstring text = widen(node.text);
    TVINSERTSTRUCTW insert{};
    insert.hParent = item_of(node.parent);
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM | TVIF_STATE;
    insert.item.pszText = text.data();
    insert.item.iImage = insert.item.iSelectedImage = node.image - 1;
    insert.item.lParam = index;
    insert.item.state = state_of(node);
    insert.item.stateMask = TVIS_STATEIMAGEMASK | TVIS_BOLD;
    const auto item =
        reinterpret_cast<HTREEITEM>(send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    shown_.push_back({item, node});
    shown_.back().node.expanded = false;
  }
  send(WM_SETREDRAW, TRUE);
}

void TreeBinding::show_node(Shown& shown, const TreeNode& node) {
  TVITEMW item{};
  item.hItem = shown.item;
  std::wstring text;
  if (shown.node.text != node.text) {
    text = widen(node.text);
    item.mask |= TVIF_TEXT;
    item.pszText = text.data();
  }
  if (shown.node.image != node.image) {
    item.mask |= TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.iImage = item.iSelectedImage = node.image - 1;
  }
  if (shown.node.checked != node.checked || shown.node.bold != node.bold) {
    item.mask |= TVIF_STATE;
    item.state = state_of(node);
    item.stateMask = TVIS_STATEIMAGEMASK | TVIS_BOLD;
  }
  if (item.mask != 0) send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  if (shown.node.expanded != node.expanded) {
    send(TVM_EXPAND, node.expanded ? TVE_EXPAND : TVE_COLLAPSE,
         reinterpret_cast<LPARAM>(shown.item));
  }
  if (shown.node.fore_color != node.fore_color) {
    if (const auto row = text_area(shown.item)) InvalidateRect(window(), &*row, TRUE);
  }
  shown.node = node;
}

std::optional<RECT> TreeBinding::text_area(HTREEITEM item) const {
  // The message takes the item where it answers its place.
  RECT area{};
  std::memcpy(&area, &item, sizeof(item));
  if (send(TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&area)) == 0) return std::nullopt;
  return area;
}

void TreeBinding::show_changes(const Changes& /*changes*/) {
  is_drawing_ = true;
  if (!has_same_nodes()) fill();
  for (int index = 1; index <= tree_.count(); ++index) {
    show_node(shown_[static_cast<std::size_t>(index) - 1], tree_.node(index));
  }
  if (tree_.selected() != 0 && caret() != tree_.selected()) {
    const HTREEITEM item = shown_[static_cast<std::size_t>(tree_.selected()) - 1].item;
    send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
  }
  is_drawing_ = false;
}

int TreeBinding::index_of(HTREEITEM handle) const {
  if (handle == nullptr) return 0;
  TVITEMW item{};
  item.mask = TVIF_PARAM;
  item.hItem = handle;
  if (send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) == 0) return 0;
  return static_cast<int>(item.lParam);
}

int TreeBinding::index_at(POINT place, UINT& part) const {
  TVHITTESTINFO hit{};
  hit.pt = place;
  send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  part = hit.flags;
  return index_of(hit.hItem);
}

int TreeBinding::caret() const {
  return index_of(reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, TVGN_CARET)));
}

void TreeBinding::click(int index) {
  if (index == 0) return;
  host().act([this, index] { tree_.click_node(index); });
}

void TreeBinding::tick(int index) {
  if (index == 0) return;
  host().act([this, index] {
    if (const TreeNode* node = tree_.find(index)) tree_.tick_node(index, !node->checked);
  });
}

// The mouse's place on the screen; by keyboard: below the chosen node.
void TreeBinding::open_menu(POINT place) {
  host().act([this, place] {
    if (const Menu* menu = tree_.right_click()) host().show_menu(*menu, place);
  });
}

std::optional<LRESULT> TreeBinding::filter(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      UINT part = 0;
      const int index = index_at({GET_X_LPARAM(l), GET_Y_LPARAM(l)}, part);
      if ((part & TVHT_ONITEMSTATEICON) == 0) return std::nullopt;
      SetFocus(window());
      tick(index);
      return 0;
    }
    case WM_KEYDOWN:
      if (w != VK_SPACE) return std::nullopt;
      tick(caret());
      return 0;
    case WM_CHAR:  // the space bar chooses no node by its first letter
      return w == VK_SPACE ? std::optional<LRESULT>(0) : std::nullopt;
    case WM_RBUTTONDOWN: {
      // The node under the mouse is the one that the menu is about.
      UINT part = 0;
      const int index = index_at({GET_X_LPARAM(l), GET_Y_LPARAM(l)}, part);
      SetFocus(window());
      if (index != 0 && index != tree_.selected()) click(index);
      return 0;
    }
    case WM_RBUTTONUP: {
      POINT place{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
      ClientToScreen(window(), &place);
      open_menu(place);
      return 0;
    }
    case WM_CONTEXTMENU: {
      if (l != -1) return 0;  // the mouse has opened it already
      const auto row = text_area(reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, TVGN_CARET)));
      POINT place{};
      if (row) place = {row->left, row->bottom};
      ClientToScreen(window(), &place);
      open_menu(place);
      return 0;
    }
    default:
      return std::nullopt;
  }
}

LRESULT TreeBinding::paint(NMTVCUSTOMDRAW& drawing) const {
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawing.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const auto index = static_cast<int>(drawing.nmcd.lItemlParam);
  const bool is_marked = (drawing.nmcd.uItemState & CDIS_SELECTED) != 0;
  if (const TreeNode* node = tree_.find(index); node != nullptr && !is_marked) {
    drawing.clrText = node_text_color(host().theme(), node->fore_color);
  }
  return CDRF_NEWFONT;
}

std::optional<LRESULT> TreeBinding::notified(NMHDR& header) {
  if (header.code == static_cast<UINT>(NM_CUSTOMDRAW)) {
    return paint(reinterpret_cast<NMTVCUSTOMDRAW&>(header));
  }
  if (is_drawing_) return std::nullopt;
  switch (header.code) {
    case NM_CLICK: {
      POINT place{};
      GetCursorPos(&place);
      ScreenToClient(window(), &place);
      UINT part = 0;
      const int index = index_at(place, part);
      if ((part & (TVHT_ONITEMICON | TVHT_ONITEMLABEL)) != 0) click(index);
      return std::nullopt;
    }
    case TVN_SELCHANGEDW: {
      const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
      if (change.action == TVC_BYKEYBOARD) click(static_cast<int>(change.itemNew.lParam));
      return std::nullopt;
    }
    case TVN_ITEMEXPANDEDW: {
      const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
      const auto index = static_cast<int>(change.itemNew.lParam);
      const bool expanded = (change.itemNew.state & TVIS_EXPANDED) != 0;
      if (index < 1 || index > static_cast<int>(shown_.size())) return std::nullopt;
      shown_[static_cast<std::size_t>(index) - 1].node.expanded = expanded;
      tree_.set_expanded(index, expanded);
      return std::nullopt;
    }
    default:
      return std::nullopt;
  }
}

}  // namespace quillvane
