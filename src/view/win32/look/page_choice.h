// Which side of a window that does two jobs shows: its own controls, or one of its pages.
#pragma once

#include <string_view>

#include "forms/window.h"
#include "view/win32/look/layout_table.h"

namespace quillvane {

class PageChoice {
 public:
  // Begins with the window's own controls. Both must outlive it.
  PageChoice(const PageSet& set, const Window& window);

  // Follows what the program has done since: a page that has come to the front shows, and so do the
  // window's own controls when their job runs.
  void look();
  // The user chooses a side. Answers the control that is to be clicked for it; empty: none.
  [[nodiscard]] std::string_view choose(bool pages);

  [[nodiscard]] bool shows_pages() const { return shows_pages_; }
  // Whether the page shows; null: the window's own controls.
  [[nodiscard]] bool shows(const PageGrid* page) const;
  // A job runs: its side stays.
  [[nodiscard]] bool is_locked() const { return is_locked_; }
  // The results that both sides share come from the pages' job.
  [[nodiscard]] bool holds_result_of_pages() const { return pages_result_; }

 private:
  [[nodiscard]] std::string_view foremost() const;

  const PageSet& set_;
  const Window& window_;
  std::string_view front_;  // the frame that was foremost at the last look
  bool shows_pages_ = false;
  bool pages_result_ = false;
  bool is_locked_ = false;
};

}  // namespace quillvane
