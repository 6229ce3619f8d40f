// The panel in which the user chooses a language.
#pragma once

#include "forms/buttons.h"
#include "forms/page.h"
#include "forms/simple_controls.h"

namespace quillvane {

class LanguagePanel : public virtual Page {
 public:
  LanguagePanel(Window& owner, Session& shared) : Page(owner, shared) {}

  // Shows the panel, or hides it when it is shown.
  void turn_over();
  // Puts the mark beside the chosen language.
  void mark_chosen();

  Label lbllanguage_0{window, "lbllanguage(0)", {.caption = "English"}};  // the first language
  Picture imglangselect{window, "imglangselect"};  // marks the chosen language
  Frame pictrlang{window, "pictrlang", kHidden};   // the language panel
};

}  // namespace quillvane
