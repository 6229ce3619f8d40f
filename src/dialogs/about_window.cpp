#include "dialogs/about_window.h"

#include <string>

#include "support/program_name.h"
#include "support/suite_color.h"

namespace quillvane {

frmabout::frmabout(Program& program)
    : ModalWindow("frmabout"),
      Label222_1(*this, "Label222(1)"),
      chameleonButton3(*this, "chameleonButton3"),
      Label2_0(*this, "Label2(0)"),
      Label2_1(*this, "Label2(1)"),
      Label2_2(*this, "Label2(2)"),
      Label2_3(*this, "Label2(3)"),
      Label6(*this, "Label6"),
      program_(program) {
  set_caption("About");
  Label222_1.set_caption("About");
  Label2_0.set_caption(kProgramName);
  Label2_1.set_caption("Version " QUILLVANE_VERSION);
  Label2_2.set_caption(kWebAddress);
  Label2_3.set_caption(kMailAddress);
  Label6.set_caption("Translate this program");

  chameleonButton3.on_click = [this] { unload(); };
  Label2_2.on_click = [this] { open(std::string(kWebAddress)); };
  Label2_3.on_click = [this] { open("mailto:" + std::string(kMailAddress)); };
  Label6.on_click = [this] { open(program_.data_file("tidetrans.exe")); };
}

void frmabout::load() { set_back_color(suite_color(program_.platform)); }

// The start simply fails when there is nothing of that name.
void frmabout::open(const std::string& what) {
  program_.platform.shell.open({"open", what, {}, kShowNormal});
}

}  // namespace quillvane
