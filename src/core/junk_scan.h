// The junk scan from its start to its summary, and what a cleaning scans again: the page, the
// frames and the commands put together.
#pragma once

#include <functional>
#include <string>

#include "cleaning/cleaning_run.h"
#include "core/junk_commands.h"
#include "scan/junk_page.h"
#include "scan/page_frames.h"

namespace quillvane {

class JunkScan : public JunkPage, public PageFrames, public JunkCommands, public CleaningState {
 public:
  JunkScan(Window& window, Session& session);

  // --- The scan (scan_driver.cpp). Failures are passed over: what cannot be read is empty.
  void autosearch();          // the whole scan
  void startclean();          // rebuilds the tree and scans the Windows group
  void startcleanexplorer();  // scans the Browsers group, each behind its guard

  // Scans the user's own entries; whoever puts the window together sets it.
  std::function<void()> search_custom_entries;

 protected:
  void write_result_file();  // junst.txt: count, "|", bytes

 private:
  // scan_driver.cpp
  void show_result_page();
  void show_found_mark();

  // rescan.cpp
  void scan_clicked_node();
  void clean_clicked_node();
  void begin_rescan();
  void end_rescan();
  void drop_old_results(int node);
  void drop_rows(double above,
                 double below);  // by category, both limits left out
  void scan_node_again(int node);
  void delete_rows(int node);
  void delete_row(int node, const std::string& path);
};

}  // namespace quillvane
