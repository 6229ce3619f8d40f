// The panel in which the user chooses a language.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/buttons.h"
#include "forms/page.h"
#include "forms/simple_controls.h"

namespace quillvane {

class LanguagePanel : public virtual Page {
 public:
  // `program` is the window's key in the catalogue: the suite's programs share that file.
  LanguagePanel(Window& owner, Session& shared, std::string_view program);

  // Puts a label for each language of the catalogue into the panel. A missing catalogue leaves one
  // label, "English".
  void loadavlang();
  // Shows the panel, or hides it when it is shown.
  void turn_over();
  // Puts the mark beside the chosen language.
  void mark_chosen();
  // The mouse moves over a label, or over the panel beside them.
  void mouse_over(int index);
  void mouse_over_panel();

  [[nodiscard]] int language_count() const { return static_cast<int>(further_.size()) + 1; }
  // The label of that number, from 0; null when there is none.
  [[nodiscard]] Label* language(int index);

  // --- What a choice starts besides; whoever puts the window together sets it.
  // Gives the window's menus a new look: `drawn` where the language is not that of the system, so
  // that Windows itself could not show its letters.
  std::function<void(bool drawn)> renew_menus;

  Label lbllanguage_0{window, "lbllanguage(0)", {.caption = "English"}};  // the first language
  Picture imglangselect{window, "imglangselect"};  // marks the chosen language
  Frame pictrlang{window, "pictrlang", kHidden};   // the language panel

 private:
  void add_label();
  void connect(Label& label, int index);
  void describe(int index, std::string_view entry, bool entry_is_utf8);
  void choose(int index);
  void store(int index) const;

  std::string program_;
  std::vector<std::unique_ptr<Label>> further_;  // those behind the first
};

}  // namespace quillvane
