#include "forms/tree_view.h"

#include "platform/unicode_case.h"

namespace quillvane {

const TreeNode* TreeView::find(int index) const {
  return index >= 1 && index <= count() ? &node(index) : nullptr;
}

void TreeView::clear() {
  nodes_.clear();
  selected_ = 0;
  notify(Change::kItems);
}

int TreeView::add(std::string_view parent, std::string_view key, std::string_view text, int image) {
  TreeNode& node = nodes_.emplace_back();
  node.index = count();
  node.key = key;
  node.parent = parent;
  node.text = text;
  node.image = image;
  notify(Change::kItems);
  return node.index;
}

template <typename Write>
void TreeView::write(int index, Change what, Write write) {
  if (index < 1 || index > count()) return;
  write(nodes_[static_cast<std::size_t>(index) - 1]);
  notify(what);
}

void TreeView::set_text(int index, std::string_view text) {
  write(index, Change::kItems, [&](TreeNode& node) { node.text = text; });
}

void TreeView::set_checked(int index, bool checked) {
  write(index, Change::kItemState, [&](TreeNode& node) { node.checked = checked; });
}

void TreeView::set_bold(int index, bool bold) {
  write(index, Change::kItems, [&](TreeNode& node) { node.bold = bold; });
}

void TreeView::set_expanded(int index, bool expanded) {
  write(index, Change::kItems, [&](TreeNode& node) { node.expanded = expanded; });
}

void TreeView::set_node_color(int index, Color color) {
  write(index, Change::kItems, [&](TreeNode& node) { node.fore_color = color; });
}

void TreeView::select(int index) {
  if (find(index) == nullptr || selected_ == index) return;
  selected_ = index;
  notify(Change::kItemState);
}

void TreeView::click_node(int index) {
  if (!enabled() || find(index) == nullptr) return;
  select(index);
  if (on_node_click) on_node_click(index);
}

void TreeView::tick_node(int index, bool checked) {
  if (!enabled() || find(index) == nullptr) return;
  set_checked(index, checked);
  if (on_node_check) on_node_check(index);
}

Menu* TreeView::right_click() { return enabled() && on_right_click ? on_right_click() : nullptr; }

std::optional<PropertyValue> TreeView::property(std::string_view name) const {
  if (same_name(name, "count")) return std::int64_t{count()};
  return Control::property(name);
}

}  // namespace quillvane
