#include "dialogs/about_window.h"

#include <string>

#include "lang/change_language.h"
#include "support/program_name.h"
#include "support/suite_color.h"

namespace quillvane {

namespace {

constexpr int kAboutPage = 7;

}  // namespace

frmabout::frmabout(Session& session) : ModalWindow("frmabout"), session_(session) {
  set_caption("About");

  chameleonButton3.on_click = [this] { unload(); };
  Label2_2.on_click = [this] { open(std::string(kWebAddress)); };
  Label2_3.on_click = [this] { open("mailto:" + std::string(kMailAddress)); };
  Label6.on_click = [this] { open(session_.data_file("tidetrans.exe")); };
}

void frmabout::load() {
  changelangorv(session_, *this);
  set_back_color(suite_color(session_.platform));
}

// The start simply fails when there is nothing of that name.
void frmabout::open(const std::string& what) {
  session_.platform.shell.open({"open", what, {}, kShowNormal});
}

void show_about(Session& session, ModalWindows& windows) {
  session.page_value = kAboutPage;
  if (windows.find("frmabout") != nullptr) return;
  frmabout about(session);
  about.load();
  windows.show(about);
}

}  // namespace quillvane
