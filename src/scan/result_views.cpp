// The two result lists: view1 holds all hits, view5 shows those of the node clicked last.
#include <string>

#include "core/form7.h"
#include "scan/catalogue.h"
#include "scan/hit_rows.h"

namespace quillvane {

namespace {

constexpr int kClickedList = 3;  // listfocus once a result list was clicked

// Whether a click on `node` shows the rows of `category`.
bool node_shows(int node, double category) {
  switch (node) {
    case kWindowsNode:
      return category < kFirstBrowserLeaf;
    case kBrowsersNode:
      return category > kBrowsersNode && category <= kLastBrowserLeaf;
    case kCustomNode:
      return category > kCustomNode;
    default:
      return category == node;
  }
}

}  // namespace

void Form7::loadfirstscan() {
  view5.clear();
  for (int row = 1; row <= view1.count(); ++row) view5.add_copy(view1, row);
}

void Form7::show_node(int index) {
  const TreeNode* node = Tv1.find(index);
  if (node == nullptr) return;
  selnode = index;
  view5.clear();
  for (int row = 1; row <= view1.count(); ++row) {
    if (node_shows(index, view1.sub_item_number(row, kCategoryColumn))) view5.add_copy(view1, row);
  }
  if (node->checked) view5.check_all(true);
}

// Both buttons leave the whole result in view5, whatever node was selected.
void Form7::show_everything(bool ticked) {
  loadfirstscan();
  for (int node = 1; node <= Tv1.count(); ++node) Tv1.set_checked(node, ticked);
  view5.check_all(ticked);
}

void Form7::row_clicked(int row) {
  Text8.set_text(std::to_string(row));
  listfocus = kClickedList;
}

// Clicked again, a column turns its order round.
void Form7::sort_hits(int column) {
  view1.set_sorted(true);
  view1.set_sort(column - 1, !view1.descending());
}

void Form7::read_mail() {
  if (Text14.text() == "i") {
    const bool could_be_read = may_remove();
    read_ignore_list();
    if (could_be_read && !may_remove()) tell_ignore_list_problem();
    Text14.set_text("");
  } else if (Text14.text() == "c") {
    build_tree();
    Text14.set_text("");
  }
}

}  // namespace quillvane
