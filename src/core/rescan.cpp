// The two commands of the tree's pop-up: scanning one node again, and cleaning one node at once.
#include <algorithm>
#include <string>
#include <string_view>

#include "categories/routines.h"
#include "categories/url_cache_rows.h"
#include "core/junk_scan.h"
#include "platform/file_system.h"
#include "scan/catalogue.h"
#include "scan/hit_rows.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::chrono::milliseconds kScanPause{1000};
constexpr std::string_view kRenamedEnding = "1.db";

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

void JunkScan::drop_rows(double above, double below) {
  view1.remove_if([&](int row) {
    const double category = view1.sub_item_number(row, kCategoryColumn);
    return category > above && category < below;
  });
}

void JunkScan::begin_rescan() {
  enter_rescan(true);
  Toolbar1.refresh();
  Gif89a2.show();
  session.PumpWait(kScanPause);
}

void JunkScan::end_rescan() {
  enter_rescan(false);
  Gif89a2.hide();
}

void JunkScan::drop_old_results(int node) {
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

void JunkScan::scan_node_again(int node) {
  if (node == kWindowsNode) {
    for (int leaf = kFirstWindowsLeaf; leaf <= kLastWindowsLeaf; ++leaf) run_category(*this, leaf);
  } else if (node == kBrowsersNode) {
    for (int leaf = kFirstBrowserLeaf; leaf <= kLastBrowserLeaf; ++leaf) {
      run_category(*this, leaf);
      if (cancelflag == 1) break;
    }
  } else if (node >= kCustomNode) {
    search_custom_entries();
  } else {
    run_category(*this, node);
  }
  if (node >= kWindowsNode && node <= kLastWindowsLeaf) {
    add_group_result(kWindowsNode, totals.winfiles, totals.winsize);
  } else if (node >= kBrowsersNode && node < kCustomNode) {
    add_group_result(kBrowsersNode, totals.brfiles, totals.brsize);
  }
}

// A node that is clicked during the wait or the walk is the one from then on.
void JunkScan::scan_clicked_node() {
  cancelflag = 0;
  totals.totalfiles = 0;
  totals.totalsize = 0;
  txtfilecont.set_text("0");
  txtfilesize.set_text("0");
  Text13.show();
  begin_rescan();
  drop_old_results(selnode);
  scan_node_again(selnode);

  Tv1.select(selnode);
  show_node(selnode);
  view5.check_all(true);
  // The shares of the browsers and the custom entries are left out: meant so.
  totals.totalfiles += totals.winfiles;
  totals.totalsize += totals.winsize;
  txtfilecont.set_text(std::to_string(view1.count()));
  txtfilesize.set_text(number_text(totals.totalsize));
  end_rescan();
  show_summary(view1.count());
  if (session.cleanmode == 2) write_result_file();
  show_found_mark();
  Text13.hide();
}

// The removal of one file. A database of the thumbnails is renamed first, so that Explorer lets go
// of it.
void JunkScan::delete_row(int node, const std::string& path) {
  FileSystem& files = platform().files;
  // What cannot be removed is passed over; the scan that follows finds it again.
  const auto pass_over = [](bool /*done*/) {};
  const auto remove = [&](const std::string& file) {
    pass_over(files.set_attributes(file, kAttributeArchive));
    static_cast<void>(files.remove_file(file));
  };
  if (node != kThumbnailNode) {
    remove(path);
    return;
  }
  thumbnails.disablethumbcache();
  constexpr std::size_t kCutLetters = 3;
  const std::string renamed = path.substr(0, path.size() - std::min(kCutLetters, path.size())) +
                              std::string(kRenamedEnding);
  pass_over(files.set_attributes(path, kAttributeArchive));
  pass_over(files.rename_file(path, renamed));
  remove(renamed);
  thumbnails.enablethumbcache();
}

void JunkScan::delete_rows(int node) {
  view1.remove_if([&](int row) {
    if (!cleaning_takes(node, view1.sub_item_number(row, kCategoryColumn))) return false;
    delete_row(node, std::string(Trim(view1.text(row))));
    return true;
  });
  if (node == kBrowsersNode || node == kFirstBrowserLeaf) deleteiecach(*this);
}

void JunkScan::clean_clicked_node() {
  if (session.cleaning_ended() || !may_remove()) return;
  delete_rows(selnode);
  count_in_statistics(*this);
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
  search_custom_entries();
  Tv1.select(kWindowsNode);
  end_rescan();
  show_summary(totals.totalfiles);
  show_found_mark();
  Text13.hide();
}

}  // namespace quillvane
