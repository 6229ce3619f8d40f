// A tree of nodes with check boxes. A node's Index is its place in the order of adding, from 1.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace quillvane {

class Menu;

struct TreeNode {
  int index = 0;
  std::string key;     // unique in the tree
  std::string parent;  // key of the node above; empty for a group
  std::string text;
  int image = 0;  // from 1
  bool checked = false;
  bool bold = false;
  bool expanded = false;
  Color fore_color = 0;
};

class TreeView : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int count() const { return static_cast<int>(nodes_.size()); }
  // Requires: 1 <= index <= count(). The reference holds until the next clear.
  [[nodiscard]] const TreeNode& node(int index) const {
    return nodes_[static_cast<std::size_t>(index) - 1];
  }
  // Null when there is no node of that number.
  [[nodiscard]] const TreeNode* find(int index) const;

  void clear();
  // Adds a node below the node with key `parent`, or a group when it is empty. Returns its Index.
  int add(std::string_view parent, std::string_view key, std::string_view text, int image);

  // The setters pass over an Index that is not there: a step that fails is skipped.
  void set_text(int index, std::string_view text);
  void set_checked(int index, bool checked);
  void set_bold(int index, bool bold);
  void set_expanded(int index, bool expanded);
  void set_node_color(int index, Color color);

  [[nodiscard]] int selected() const { return selected_; }  // 0: none
  void select(int index);

  // --- Acts of the user. Nothing happens while the tree is disabled or the node is missing.
  void click_node(int index);
  void tick_node(int index, bool checked);
  // The right button goes up; returns the popup menu that opens, null for none.
  Menu* right_click();

  // Besides the common ones: Count.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void(int index)> on_node_click;
  std::function<void(int index)> on_node_check;
  std::function<Menu*()> on_right_click;

 private:
  template <typename Write>
  void write(int index, Change what, Write write);

  std::deque<TreeNode> nodes_;
  int selected_ = 0;
};

}  // namespace quillvane
