// The two commands of the tree's pop-up: scanning one node again, and cleaning one node at once.
#include <string>

#include "categories/catalogue.h"
#include "categories/routines.h"
#include "core/form7.h"
#include "core/hit_rows.h"
#include "platform/file_system.h"
#include "support/registry_text.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr std::chrono::milliseconds kScanPause{1000};
constexpr const char* kStatisticsKey = "software\\Quillvane\\Tidewrack Deluxe\\statics\\junkfiles";

// Limits of a shorter catalogue, meant as they stand: a browser's rescan resets the nodes up to 16
// and drops the rows below 17; a custom rescan resets the nodes from 17 on.
constexpr int kLastResetBrowser = 16;
constexpr int kFirstResetCustom = 17;

// Whether the cleaning of `node` takes rows of `category`. Node 17 takes what lies above it and not
// its own rows: meant so, as are the limits of 12.
bool cleaning_takes(int node, double category) {
  switch (node) {
    case kWindowsNode:
      return category > kWindowsNode && category < kBrowsersNode;
    case kBrowsersNode:
      return category > kBrowsersNode && category < kFirstResetCustom;
    case kFirstResetCustom:
      return category > kFirstResetCustom;
    default:
      return category == node;
  }
}

}  // namespace

void Form7::drop_rows(double above, double below) {
  view1.remove_if([&](int row) {
    const double category = view1.sub_item_number(row, kCategoryColumn);
    return category > above && category < below;
  });
}

void Form7::begin_rescan() {
  cmd_start.set_enabled(false);
  cmd_cancel.set_enabled(true);
  for (Button* button : {&cmd_clean, &cmd_all, &cmd_non, &cmd_custom}) button->set_enabled(false);
  Toolbar1.refresh();
  Gif89a2.show();
  program.PumpWait(kScanPause);
}

void Form7::end_rescan() {
  cmd_start.set_enabled(true);
  cmd_cancel.set_enabled(false);
  for (Button* button : {&cmd_clean, &cmd_all, &cmd_non, &cmd_custom}) button->set_enabled(true);
  Gif89a2.hide();
}

void Form7::drop_old_results(int node) {
  reset_node_text(node);
  drop_rows(node - 1, node + 1);
  const auto reset_nodes = [this](int first, int last) {
    for (int i = first; i <= last; ++i) reset_node_text(i);
  };
  if (node <= kLastWindowsLeaf) {
    totals.winfiles = 0;
    totals.winsize = 0;
    reset_nodes(kWindowsNode, kLastWindowsLeaf);
    drop_rows(kWindowsNode, kBrowsersNode);
  } else if (node < kCustomNode) {
    totals.brfiles = 0;
    totals.brsize = 0;
    totals.catfiles = 0;
    totals.catsize = 0;
    reset_nodes(kBrowsersNode, kLastResetBrowser);
    drop_rows(kBrowsersNode, kFirstResetCustom);
  } else {
    totals.custfiles = 0;
    totals.custsize = 0;
    reset_nodes(kFirstResetCustom, Tv1.count());
    drop_rows(node, 1e9);
  }
}

void Form7::scan_node_again(int node) {
  if (node == kWindowsNode) {
    for (int leaf = kFirstWindowsLeaf; leaf <= kLastWindowsLeaf; ++leaf) run_category(*this, leaf);
  } else if (node == kBrowsersNode) {
    for (int leaf = kFirstBrowserLeaf; leaf <= kLastBrowserLeaf; ++leaf) {
      run_category(*this, leaf);
      if (cancelflag == 1) break;
    }
  } else if (node >= kCustomNode) {
    searchcustom();
  } else {
    run_category(*this, node);
  }
  if (node >= kWindowsNode && node <= kLastWindowsLeaf) {
    add_group_result(kWindowsNode, totals.winfiles, totals.winsize);
  } else if (node >= kBrowsersNode && node < kCustomNode) {
    add_group_result(kBrowsersNode, totals.brfiles, totals.brsize);
  }
}

void Form7::rescan_node() {
  const int node = selnode;
  cancelflag = 0;
  totals.totalfiles = 0;
  totals.totalsize = 0;
  txtfilecont.set_text("0");
  txtfilesize.set_text("0");
  Text13.show();
  begin_rescan();
  drop_old_results(node);
  scan_node_again(node);

  Tv1.select(node);
  show_node(node);
  view5.check_all(true);
  // The shares of the browsers and the custom entries are left out: meant so.
  totals.totalfiles += totals.winfiles;
  totals.totalsize += totals.winsize;
  txtfilecont.set_text(std::to_string(view1.count()));
  txtfilesize.set_text(number_text(totals.totalsize));
  end_rescan();
  show_summary(view1.count());
  if (cleanmode == 2) write_result_file();
  show_found_mark();
  Text13.hide();
}

void Form7::delete_rows(int node) {
  FileSystem& files = platform().files;
  view1.remove_if([&](int row) {
    if (!cleaning_takes(node, view1.sub_item_number(row, kCategoryColumn))) return false;
    const std::string path(Trim(view1.text(row)));
    // A file that cannot be removed is passed over; the scan that follows finds it again.
    static_cast<void>(files.set_attributes(path, kAttributeArchive));
    static_cast<void>(files.remove_file(path));
    return true;
  });
}

void Form7::add_to_statistics() {
  Registry& registry = platform().registry;
  const auto add = [&](const std::string& name, const TextBox& number) {
    const double old =
        Val(ReadRegistryString(registry, Hive::kLocalMachine, kStatisticsKey, name).text);
    static_cast<void>(WriteRegistryString(registry, Hive::kLocalMachine, kStatisticsKey, name,
                                          number_text(old + Val(number.text()))));
  };
  add("count", txtfilecont);
  add("size", txtfilesize);
}

void Form7::clean_node() {
  delete_rows(selnode);
  add_to_statistics();
  txtfilecont.set_text("0");
  txtfilesize.set_text("0");
  totals.totalfiles = 0;
  totals.winfiles = 0;
  totals.totalsize = 0;
  totals.brfiles = 0;
  totals.custfiles = 0;
  totals.custsize = 0;
  view1.clear();
  view5.clear();
  cancelflag = 0;
  Text13.show();
  begin_rescan();
  startclean();
  startcleanexplorer();
  searchcustom();
  Tv1.select(kWindowsNode);
  end_rescan();
  show_summary(totals.totalfiles);
  show_found_mark();
  Text13.hide();
}

}  // namespace quillvane
