#include "lang/language_panel.h"

namespace quillvane {

void LanguagePanel::turn_over() { pictrlang.set_visible(!pictrlang.visible()); }

void LanguagePanel::mark_chosen() { imglangselect.move_to(lbllanguage_0); }

}  // namespace quillvane
