// The category tree: building it, and what a tick on a node carries to.
#include <string>

#include "scan/catalogue.h"
#include "scan/hit_rows.h"
#include "scan/junk_page.h"
#include "support/list_files.h"
#include "support/size_text.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr int kFirstCustomKey = 18;  // the keys are only there to be unique

// Nodes and rows that a tick on a group reaches. The limits of the rows, and the first node of the
// custom group, stem from a shorter catalogue and are meant as they stand.
struct TickReach {
  int group;
  int first_node;
  int last_node;  // 0: the last of the tree
  int first_category;
  int last_category;  // 0: no limit
};

constexpr TickReach kTickReach[] = {
    {kWindowsNode, kWindowsNode, kLastWindowsLeaf, kWindowsNode, 12},
    {kBrowsersNode, kBrowsersNode, kLastBrowserLeaf, 12, 16},
    {kCustomNode, 19, 0, 17, 0},
};

void tick_rows(ListView& list, bool checked, int first_category, int last_category) {
  for (int row = 1; row <= list.count(); ++row) {
    const double category = list.sub_item_number(row, kCategoryColumn);
    if (category < first_category) continue;
    if (last_category != 0 && category > last_category) continue;
    list.set_checked(row, checked);
  }
}

}  // namespace

void JunkPage::build_tree() {
  Tv1.clear();
  node_results.clear();
  for (const CatalogueNode& node : kCatalogue) {
    const int index = Tv1.add(node.parent, node.key, node.caption, node.image);
    if (node.parent.empty()) Tv1.set_bold(index, true);
  }
  add_custom_nodes();
  for (const int group : {kWindowsNode, kBrowsersNode, kCustomNode}) Tv1.set_expanded(group, true);
}

void JunkPage::add_custom_nodes() {
  int key_number = kFirstCustomKey;
  for (const std::string& line : read_list_file(platform(), session.data_file(kCustomFile)).lines) {
    Tv1.add(catalogue_node(kCustomNode).key, "f-" + std::to_string(key_number),
            custom_entry_of(line).name, kCustomImage);
    ++key_number;
  }
}

std::string caption_of(const std::string& node_text) { return part(Split(node_text, " ("), 0); }

void JunkPage::append_result(int node, double files, double bytes) {
  const TreeNode* found = Tv1.find(node);
  if (found == nullptr) return;
  Tv1.set_text(node,
               found->text + " ( " + number_text(files) + " files, " + size_text(bytes) + " )");
}

void JunkPage::add_group_result(int node, double files, double bytes) {
  append_result(node, files, bytes);
  node_results[node] = {files, bytes};
}

NodeResult JunkPage::node_totals(int node) const {
  const auto found = node_results.find(node);
  return found == node_results.end() ? NodeResult{} : found->second;
}

void JunkPage::reset_node_text(int node) {
  const TreeNode* found = Tv1.find(node);
  if (found == nullptr) return;
  Tv1.set_text(node, caption_of(found->text));
}

void JunkPage::node_checked(int index) {
  const TreeNode* node = Tv1.find(index);
  if (node == nullptr) return;
  tick_rows(view5, node->checked, index, index);
  for (const TickReach& reach : kTickReach) {
    if (node->key != catalogue_node(reach.group).key) continue;
    const int last = reach.last_node == 0 ? Tv1.count() : reach.last_node;
    for (int i = reach.first_node; i <= last; ++i) Tv1.set_checked(i, node->checked);
    tick_rows(view5, node->checked, reach.first_category, reach.last_category);
    tick_rows(view1, node->checked, reach.first_category, reach.last_category);
  }
}

}  // namespace quillvane
