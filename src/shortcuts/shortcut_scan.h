// The scan for links whose target is gone: the panels and the older buttons put together.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/links.h"
#include "scan/clsdirsearch.h"
#include "shortcuts/old_buttons.h"
#include "shortcuts/progress_panel.h"
#include "shortcuts/result_page.h"
#include "shortcuts/where_page.h"

namespace quillvane {

// A link that a scan has looked at.
struct JudgedLink {
  std::string path;
  std::string name;  // as a row shows it
  const LinkContent& content;
  bool is_listed;  // it became a row
};

class ShortcutScan : public WherePage, public ProgressPanel, public ResultPage, public OldButtons {
 public:
  ShortcutScan(Window& window, Session& session);

  // Runs the scan of what is chosen (orvbutton1).
  void run_scan();
  // Ends the search in progress and shows what was found.
  void cancel();
  [[nodiscard]] bool is_scanning() const { return scans_ > 0; }
  // Ends it without touching the panels: the window goes away.
  void stop_search();

  ListBox List1{window, "List1", kHidden};  // emptied by each scan, filled by nothing
  ListBox List2{window, "List2", kHidden};  // emptied by each scan, filled by nothing
  ListBox List3{window, "List3", kHidden};  // emptied by each scan, filled by nothing

  // Who wants to know of each link, the good ones too.
  std::function<void(const JudgedLink& link)> on_judged;
  // What stands in the way of a search for targets at a cancel; whoever has one sets it.
  std::function<void()> cancel_target_search;

 private:
  void scan_start_menu();
  void scan_ticked_drives();
  void find_links(const std::string& folder);
  void search_found(const std::string& folder, const std::string& name);
  void search_searching(const std::string& folder);
  void show_where();
  void show_progress();
  void show_results();

  // The search of the scan that was begun last. A scan that is begun inside another one leaves the
  // older search to the one that runs it.
  std::shared_ptr<clsdirsearch> search_;
  int scans_ = 0;  // in progress, one inside the other
};

}  // namespace quillvane
