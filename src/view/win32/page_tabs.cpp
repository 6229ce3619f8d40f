#include "view/win32/page_tabs.h"

#include "forms/buttons.h"

namespace quillvane {

PageTabs::PageTabs(ViewHost& host, Window& model)
    : host_(host),
      model_(model),
      choice_(host.layout().page_set, model),
      strip_(host, L"Jobs", {host.layout().page_set.own_tab, host.layout().page_set.pages_tab},
             host.layout().rows[static_cast<std::size_t>(host.layout().page_set.tab_row)].length) {
  ShowWindow(window(), SW_SHOWNA);
}

void PageTabs::refresh() {
  choice_.look();
  strip_.choose(choice_.shows_pages() ? 1 : 0);
  EnableWindow(window(), choice_.is_locked() ? FALSE : TRUE);
}

void PageTabs::chosen() { choose(strip_.chosen_number() == 1); }

void PageTabs::turn() { choose(!choice_.shows_pages()); }

void PageTabs::choose(bool pages) {
  host_.act([this, pages] {
    choice_.look();
    const std::string_view way = choice_.choose(pages);
    if (auto* button = dynamic_cast<Clickable*>(model_.find(way))) button->click();
    host_.needs_refresh();
  });
}

}  // namespace quillvane
