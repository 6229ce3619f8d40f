#include "view/win32/look/layouts.h"

#include <algorithm>
#include <array>

#include "view/win32/look/dialog_layouts.h"
#include "view/win32/look/form3_layout.h"
#include "view/win32/look/form7_layout.h"

namespace quillvane {

const WindowLayout* find_layout(std::string_view window) {
  static const std::array kLayouts = {&form7_layout(),   &form3_layout(), &form1_layout(),
                                      &form2_layout(),   &form4_layout(), &form5_layout(),
                                      &frmabout_layout()};
  const auto* const found =
      std::find_if(kLayouts.begin(), kLayouts.end(),
                   [window](const WindowLayout* layout) { return layout->window == window; });
  return found == kLayouts.end() ? nullptr : *found;
}

}  // namespace quillvane
