#include "view/win32/look/page_choice.h"

#include "forms/text_box.h"

namespace quillvane {

PageChoice::PageChoice(const PageSet& set, const Window& window)
    : set_(set), window_(window), front_(foremost()) {}

std::string_view PageChoice::foremost() const {
  for (const PageGrid& page : set_.pages) {
    const Control* frame = page.frame.empty() ? nullptr : window_.find(page.frame);
    if (frame != nullptr && frame->visible()) return page.frame;
  }
  return {};
}

void PageChoice::look() {
  const Control* own_work = window_.find(set_.own_work);
  const auto* pages_work = dynamic_cast<const TextBox*>(window_.find(set_.pages_work));
  const bool own_runs = own_work != nullptr && own_work->enabled();
  const bool pages_run = pages_work != nullptr && pages_work->text() == "1";
  const std::string_view front = foremost();
  if (front != front_) {
    front_ = front;
    if (front != set_.shared_page) shows_pages_ = true;
  }
  const bool is_at_run = !front.empty() && front == set_.run_page;
  if (is_at_run || pages_run) pages_result_ = true;
  if (own_runs) {
    shows_pages_ = false;
    pages_result_ = false;
  }
  is_locked_ = own_runs || pages_run;
}

std::string_view PageChoice::choose(bool pages) {
  if (is_locked_ || pages == shows_pages_) return {};
  shows_pages_ = pages;
  // The shared page holds the results of the other job: the pages begin with their first.
  const bool is_theirs = front_ != set_.shared_page || pages_result_;
  return pages && !is_theirs ? set_.first_page : std::string_view();
}

bool PageChoice::shows(const PageGrid* page) const {
  if (page == nullptr) return !shows_pages_;
  if (!shows_pages_) return false;
  return page->frame.empty() ? !is_locked_ : page->frame == front_;
}

}  // namespace quillvane
