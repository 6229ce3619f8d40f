// The tabs below the title bar that change between a window's two jobs, and which of its controls
// show by them.
#pragma once

#include "view/win32/look/page_choice.h"
#include "view/win32/tab_strip.h"

namespace quillvane {

class PageTabs {
 public:
  // Both must outlive it.
  PageTabs(ViewHost& host, Window& model);

  [[nodiscard]] HWND window() const { return strip_.window(); }
  // Whether the page's controls show; null: those of the window's own job.
  [[nodiscard]] bool shows(const PageGrid* page) const { return choice_.shows(page); }
  [[nodiscard]] bool holds_result_of_pages() const { return choice_.holds_result_of_pages(); }

  void move(const Box& box) { strip_.move(box); }
  void restyle() { strip_.restyle(); }
  // Follows the models.
  void refresh();
  // The user has chosen a tab.
  void chosen();
  // The user goes to the other tab.
  void turn();

 private:
  void choose(bool pages);

  ViewHost& host_;
  Window& model_;
  PageChoice choice_;
  TabStrip strip_;
};

}  // namespace quillvane
