// A tree on the screen.
#pragma once

#include <vector>

#include "forms/tree_view.h"
#include "view/win32/control_view.h"

namespace quillvane {

// The control is one of check boxes, but ticks are the model's: a click on a box asks the model,
// and what the model then holds is drawn.
class TreeBinding final : public ControlView {
 public:
  TreeBinding(ViewHost& host, TreeView& tree, const ControlPlace& place);

  void restyle() override;
  std::optional<LRESULT> notified(NMHDR& header) override;

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  // A node as it stands in the control.
  struct Shown {
    HTREEITEM item = nullptr;
    TreeNode node;
  };

  // Whether the control holds the model's nodes, though perhaps with other texts and colours.
  [[nodiscard]] bool has_same_nodes() const;
  void fill();
  void show_node(Shown& shown, const TreeNode& node);
  // Where its text stands in the control; nothing while it does not show.
  [[nodiscard]] std::optional<RECT> text_area(HTREEITEM item) const;
  [[nodiscard]] HTREEITEM item_of(const std::string& key) const;
  [[nodiscard]] int index_at(POINT place, UINT& part) const;  // 0: beside the nodes
  [[nodiscard]] int index_of(HTREEITEM item) const;
  [[nodiscard]] int caret() const;
  void click(int index);
  void tick(int index);
  void open_menu(POINT place);
  LRESULT paint(NMTVCUSTOMDRAW& drawing) const;

  TreeView& tree_;
  ImageListOwner images_;
  ImageListOwner boxes_;
  std::vector<Shown> shown_;  // by Index
  bool is_drawing_ = false;   // what the control reports is then no act of the user
};

}  // namespace quillvane
