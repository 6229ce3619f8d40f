#include "drivesearch/type_page.h"

#include <initializer_list>
#include <utility>

namespace quillvane {

TypePage::TypePage(Window& owner, Session& shared) : Page(owner, shared) {
  for (const auto& [entry, button] : std::initializer_list<std::pair<MenuEntry*, const Button*>>{
           {&a1, &command111},
           {&a2, &command811},
           {&a3, &command911},
           {&a5, &orvbutton611},
           {&a6, &orvbutton711},
       }) {
    entry->on_click = [button = button] { button->raise_click(); };
  }
}

}  // namespace quillvane
