// The page of the junk scan: the category tree, the hit lists, the totals.
//
// The tree Tv1 and the list view1 are the only store of categories and hits; hidden text boxes
// serve as variables.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "forms/buttons.h"
#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/page.h"
#include "forms/progress_bar.h"
#include "forms/simple_controls.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"
#include "scan/catalogue.h"
#include "scan/scan_totals.h"
#include "scan/searchable_text.h"

namespace quillvane {

inline constexpr Color kGreen = 32768;    // a category that is being scanned
inline constexpr Color kDarkRed = 192;    // a category in which something was found
inline constexpr Color kFoundMark = 128;  // Shape1 when the scan found something

// The caption in the text of a tree's node, without the result that a scan writes behind it.
[[nodiscard]] std::string caption_of(const std::string& node_text);

class JunkPage : public virtual Page {
 public:
  JunkPage(Window& window, Session& session);

  // --- The walker (walker.cpp).
  // Scans `path` and all folders below it; files that match and pass the tests become rows of
  // view1 for `category`, a node of Tv1.
  void srch(const std::string& path, const std::string& pattern, int category);
  // The same for empty files only, without the test for desktop.ini.
  void srch2(const std::string& path, const std::string& pattern, int category);

  // --- The tree (category_tree.cpp).
  void build_tree();
  // Adds " ( N files, SIZE )" to the node's text.
  void append_result(int node, double files, double bytes);
  // The same, and notes the numbers for the node.
  void add_group_result(int node, double files, double bytes);
  void reset_node_text(int node);  // drops the result behind the caption
  // What the node put into the totals at its last scan.
  [[nodiscard]] NodeResult node_totals(int node) const;

  // --- Views (result_views.cpp).
  void loadfirstscan();               // copies all rows of view1 into view5
  void show_node(int node);           // copies the rows of the node into view5
  void show_everything(bool ticked);  // copies all rows, and ticks all or none

  // --- Totals and lists (junk_page.cpp).
  // Bytes as the lists show them.
  [[nodiscard]] std::string size_text(double bytes) const;
  // Adds to the numbers that stand in txtfilecont and txtfilesize.
  void add_to_count_and_size(double files, double bytes);
  void show_summary(double files);
  // Reads ignore.tdw; a missing file is an empty list. What was listed without a list that can be
  // read at last goes from the views: it may stand in it.
  void read_ignore_list();
  // Nothing is removed while the ignore list is there and cannot be read: no file is known to be
  // junk then. The controls that remove are locked, and the runs behind them do nothing.
  [[nodiscard]] bool may_remove() const { return ignore_problem.empty(); }
  // The list's file, why it was not read, and what follows. Requires: !may_remove().
  [[nodiscard]] std::string ignore_list_message() const;

  // --- State.
  Field<int> cancelflag{window, "cancelflag"};  // 1: the running scan shall stop
  Field<int> selnode{window, "selnode"};        // Index of the node of Tv1 clicked last
  Field<int> listfocus{window, "listfocus"};    // 3 once a row of view1 or view5 was clicked
  // Index of the custom node being scanned
  Field<int> custnode{window, "custnode", kFirstCustomLeaf};
  SearchableText ignorelist;      // lower-case ignore entries, each followed by "|"
  std::string ignore_problem;     // why the ignore list was not read; empty when it was
  SearchableText pending_filter;  // PendingFilter: the text of Text15, with an index
  ScanTotals totals{window};
  std::map<int, NodeResult> node_results;  // by Index; emptied with the tree
  std::vector<int> skipped_browsers;       // nodes the user kept out, since their browser runs

  // --- Results.
  TreeView Tv1{window, "Tv1"};  // the category tree; a row's category is the Index of a node here
  // the hit list: one row for each junk file found
  ListView view1{window, "view1", {"File Name", "Size", "Date"}};
  // the list the user sees: the rows of the node clicked last
  ListView view5{window, "view5", {"File Name", "Size", "Date"}};
  Label Label11{window, "Label11"};               // the summary line
  Shape Shape1{window, "Shape1"};                 // the mark beside the summary
  Shape Shape2{window, "Shape2"};                 // holds the colour that Shape1 goes back to
  Animation Gif89a2{window, "Gif89a2", kHidden};  // plays while a scan runs
  ProgressBar bar3{window, "bar3", kHidden};      // how far a cleaning run has come
  ProgressBar Bar2{window, "Bar2", kHidden};      // how far a backup has come
  TextBox Text3{window, "Text3", kHidden};        // line beside the animation during a cleaning run
  TextBox Text13{window, "Text13", kHidden};      // the file being looked at, shown during a scan

  // --- Hidden controls that serve as variables.
  TextBox Text8{window, "Text8", kHidden};    // number of the row clicked last in a list
  TextBox Text15{window, "Text15", kHidden};  // files queued for the restart, each behind a bar
  TextBox txtfilecont{window, "txtfilecont", kHidden};  // files of the whole scan
  TextBox txtfilesize{window, "txtfilesize", kHidden};  // bytes of the whole scan
  ListBox List1{window, "List1", kHidden};    // a working list of sub-key names of the registry
  ListBox Drive1{window, "Drive1", kHidden};  // the machine's drives

 private:
  void add_custom_nodes();
  void node_checked(int node);
  void row_clicked(int row);
  void sort_hits(int column);
};

}  // namespace quillvane
