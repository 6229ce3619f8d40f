#include "core/form7.h"

#include <initializer_list>

#include "dialogs/about_window.h"
#include "dialogs/custom_dialog.h"
#include "dialogs/ignore_dialog.h"
#include "dialogs/type_dialog.h"
#include "shortcuts/form3.h"

namespace quillvane {

namespace {

constexpr int kTypesStep = 1;  // wizardstep of the page of the file types
constexpr int kListsStep = 2;  // wizardstep of the page of the lists

}  // namespace

Form7::Form7(Session& shared, ModalWindows& open_windows)
    : Page(*this, shared),
      Window("Form7"),
      JunkScan(*this, shared),
      DrivePage(*this, shared),
      TypePage(*this, shared),
      ListsPage(*this, shared, *this),
      ReportPage(*this, shared),
      SearchRun(*this, shared,
                {.junk = *this,
                 .frames = *this,
                 .drives = *this,
                 .types = *this,
                 .lists = *this,
                 .report = *this}),
      LanguagePanel(*this, shared, "fernwick"),
      windows(open_windows) {
  set_caption(kProgramName);
  connect_pages();
  name_session();
}

void Form7::connect_pages() {
  Text9.on_change = [this] { run_suite_command(); };
  Text14.on_change = [this] { read_mail(); };
  Timer2.on_timer = [this] { tell_suite(); };
  orvbutton3.on_click = [this] { write_text_report(*this); };
  Command9.on_click = [this] { write_html_report(*this); };
  orvbutton8.on_click = [this] { open_types_page(); };
  chameleonButton1.on_click = [this] { open_lists_page(); };
  on_edit_type = [this](int row) { open_type(row); };

  search_custom_entries = [this] { searchcustom(); };
  enable_removal = [this](bool enabled) { orvbutton2.set_enabled(enabled); };
  write_report = [this] { orvbutton3.raise_click(); };
  to_drives = [this] { chameleonButton6.raise_click(); };
  to_types = [this] { orvbutton8.raise_click(); };
  to_lists = [this] { chameleonButton1.raise_click(); };
  turn_over_languages = [this] { turn_over(); };
  on_ignore_list = [this] { open_ignore_list(); };
  on_custom_list = [this] { open_custom_list(); };
  on_about = [this] { show_about(session, windows); };
  on_shortcuts = [this] { open_shortcuts(); };
}

void Form7::open_types_page() {
  wizardstep = kTypesStep;
  show_frame(Frame4);
  load_types();
}

void Form7::open_lists_page() {
  wizardstep = kListsStep;
  command811.set_enabled(false);
  command911.set_enabled(false);
  show_frame(Frame6);
  load_lists();
}

void Form7::name_session() {
  const auto show = [this](std::string_view name, const auto& value) {
    add_field(name, [&value] { return property_of(value); });
  };
  show("cmdline", session.cmdline);
  show("CommandLineGiven", session.CommandLineGiven);
  show("Is64Bit", session.Is64Bit);
  show("HiddenRun", session.HiddenRun);
  show("silentmode", session.silentmode);
  show("cleanmode", session.cleanmode);
  show("suitemode", session.suitemode);
  show("forceclean", session.forceclean);
  show("langcode", session.langcode);
  show("lang", session.lang);
  show("langindex", session.langindex);
  show("langfile", session.langfile);
}

void Form7::read_mail() {
  if (Text14.text() == "i") {
    const bool could_be_read = may_remove();
    load_ignore_list();
    if (could_be_read && !may_remove()) tell_ignore_list_problem();
    Text14.set_text("");
  } else if (Text14.text() == "c") {
    build_tree();
    Text14.set_text("");
  }
}

void Form7::load_ignore_list() {
  read_ignore_list();
  lock_removers();
}

void Form7::tell_ignore_list_problem() const {
  platform().dialogs.message_box(ignore_list_message(), std::string(kProgramName), kBoxIconWarning);
}

void Form7::open_ignore_list() {
  if (windows.find("Form1") != nullptr) return;  // it is open already
  Form1 dialog(session, Text14);
  dialog.load();
  windows.show(dialog);
  if (!may_remove()) load_ignore_list();  // the user may have mended what was in the way
}

void Form7::open_custom_list() {
  if (windows.find("Form2") != nullptr) return;
  Form2 dialog(session, windows, Text14);
  dialog.load();
  windows.show(dialog);
}

void Form7::open_type(int row) {
  if (windows.find("Form4") != nullptr) return;
  Form4 dialog(session, View101, Text12, view1);
  dialog.load();
  if (row > 0) dialog.fill(row);
  windows.show(dialog);
}

void Form7::open_shortcuts() {
  if (!load_shortcuts) return;
  Form3& shortcuts = load_shortcuts();
  shortcuts.show();
  shortcuts.activate();
}

void Form7::resized() {
  for (Control* view : std::initializer_list<Control*>{&view1, &View2, &View10, &View4, &View1000,
                                                       &View201, &View101, &view5, &Tv1}) {
    view->refresh();
  }
  if (state() == WindowState::kMinimised) {
    hide();
    TrayArea1.set_icon_visible(true);
  }
}

}  // namespace quillvane
