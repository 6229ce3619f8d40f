#include "shortcuts/form3.h"

#include <string>

#include "dialogs/about_window.h"
#include "lang/change_language.h"
#include "shortcuts/shortcut_report.h"
#include "support/registry_text.h"
#include "support/suite_color.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kWizardKey = "software\\Quillvane\\Tidewrack Deluxe\\wizard\\";
constexpr int kTwipsOfPathColumn = 5000;
constexpr Color kShadowColor = 0x808080;
constexpr int kShadowDepth = 5;

void tell_suite(Session& session, const std::string& key, const std::string& name,
                const std::string& text) {
  // A value that cannot be written is lost to the suite.
  static_cast<void>(WriteRegistryString(session.platform.registry, Hive::kLocalMachine,
                                        kWizardKey + key, name, text));
}

}  // namespace

Form3::Form3(Session& shared, ModalWindows& open_windows)
    : Page(*this, shared),
      Window("Form3"),
      ShortcutScan(*this, shared),
      OlderRemoval(*this, shared),
      TargetSearch(*this, shared),
      ManualFix(*this, shared),
      ShortcutCommands(*this, shared, *this),
      LanguagePanel(*this, shared, "Tidewrack"),
      windows(open_windows),
      options_(*this, *this) {
  set_caption(kShortcutWindowTitle);
  connect_pages();
  name_arrays();
}

void Form3::connect_pages() {
  Text3.on_change = [this] {
    if (Val(Text3.text()) == 1) orvbutton1.raise_click();
  };
  Text6.on_change = [this] {
    if (Val(Text6.text()) == 1) run_unattended();
  };
  chameleonButton1.on_click = [this] { removed_links = remove_with_backup(*this, uncopied_links); };
  orvbutton2.on_click = [this] { remove_links(*this); };
  orvbutton3.on_click = [this] { search_targets_and_rescan(); };
  orvbutton10.on_click = [this] { options_.write(); };
  Command3.on_click = [this] { options_.read(); };
  cancel_target_search = [this] { TargetSearch::cancel(); };
  fix_row = [this] { fix_row_in_hand(*this); };
  write_report = [this] { write_shortcut_report(*this); };
  turn_over_languages = [this] { turn_over(); };
  on_about = [this] { show_about(session, windows); };
}

// Scripts and the suite leave the index of these away.
void Form3::name_arrays() {
  add_second_name("Label2", Label2_0);
  add_second_name("Label6", Label6_0);
  add_second_name("Label8", Label8_1);
  add_field("topmost", [this] { return PropertyValue(topmost()); });
}

void Form3::load() {
  loadavlang();
  changelangorv(session, *this);
  mark_chosen();
  apply_color();
  Gif89a1.set_file(session.data_file("search.gif"));
  for (const int column : {2, 3}) view1.set_column_width(column, kTwipsOfPathColumn);
  fill_drive_list();
  read_destination();
  Command3.raise_click();
}

void Form3::apply_color() {
  const Color color = suite_color(platform());
  set_back_color(color);
  for (Button* button :
       {&chameleonButton9, &chameleonButton12, &chameleonButton13, &chameleonButton18}) {
    button->set_back_color(color);
    button->set_back_over(color);
  }
}

void Form3::activate() {
  if (!session.CommandLineGiven) shadow = {kShadowColor, kShadowDepth};
}

void Form3::close() {
  orvbutton10.raise_click();
  stop_search();
  TrayArea1.set_icon_visible(false);
  hide();
  session.end();
}

void Form3::resized() {
  if (state() != WindowState::kMinimised) return;
  hide();
  TrayArea1.set_icon_visible(true);
}

// The text stays in the mailbox, so only the first search after a start scans again. Meant so.
void Form3::search_targets_and_rescan() {
  if (search_targets(*this, *this)) Text3.set_text("1");
}

// No question and no backup; the count that the suite is told is the one behind the removal, 0.
// Meant so.
void Form3::run_unattended() {
  runmode = kUnattended;
  hide();
  orvbutton1.raise_click();
  if (session.stopped()) return;
  if (view1.count() > 0) {
    orvbutton6.raise_click();
    removed_links = remove_every_link(*this);
    tell_suite(session, "statics\\shortcuts", "count", std::to_string(view1.count()));
  }
  tell_suite(session, "finish", "1", "3");
  session.end();
}

}  // namespace quillvane
