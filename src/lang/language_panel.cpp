#include "lang/language_panel.h"

#include <string>

#include "lang/change_language.h"
#include "lang/character_set.h"
#include "lang/language_file.h"
#include "support/registry_text.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr const char* kCatalogue = "data.lang";
constexpr const char* kPanelFont = "Arial Unicode MS";
constexpr double kPanelPoints = 10;
constexpr int kLabelTwips = 285;  // one line of that font
constexpr int kTwipsBelowLabels = 100;
constexpr Color kOverColor = 15126960;
constexpr Color kWhite = 0xFFFFFF;
constexpr Color kWindowColor = 0x80000005;  // of the system

}  // namespace

LanguagePanel::LanguagePanel(Window& owner, Session& shared, std::string_view program)
    : Page(owner, shared), program_(program) {
  lbllanguage_0.set_font({kPanelFont, kPanelPoints, kWesternCharacterSet});
  lbllanguage_0.set_height(kLabelTwips);
  connect(lbllanguage_0, 0);
  pictrlang.on_mouse_move = [this] { mouse_over_panel(); };
}

Label* LanguagePanel::language(int index) {
  if (index == 0) return &lbllanguage_0;
  if (index < 0 || index >= language_count()) return nullptr;
  return further_[static_cast<std::size_t>(index) - 1].get();
}

// Names stand each in the code page of its own language, unless the whole catalogue is UTF-8.
void LanguagePanel::loadavlang() {
  const auto catalogue = read_language_bytes(session, language_path(session, kCatalogue));
  if (!catalogue) return;
  const std::string list = language_value(catalogue->bytes, "lang", program_);
  const std::vector<std::string> entries = Split(list, "|");
  for (int index = 0; index < static_cast<int>(entries.size()); ++index) {
    if (index > 0) add_label();
    describe(index, entries[static_cast<std::size_t>(index)], catalogue->is_utf8);
  }
  const Label& last = *language(language_count() - 1);
  pictrlang.set_height(last.top() + last.height() + kTwipsBelowLabels);
}

void LanguagePanel::add_label() {
  const int index = language_count();
  const Label& before = *language(index - 1);
  const std::string name = "lbllanguage(" + std::to_string(index) + ")";
  Label& label = *further_.emplace_back(std::make_unique<Label>(window, name));
  label.move(before.left(), before.top() + before.height());
  label.set_height(before.height());
  connect(label, index);
}

void LanguagePanel::connect(Label& label, int index) {
  label.on_click = [this, index] { choose(index); };
  label.on_mouse_move = [this, index] { mouse_over(index); };
}

// A character set that is no number leaves the font its own.
void LanguagePanel::describe(int index, std::string_view entry, bool entry_is_utf8) {
  const std::vector<std::string> fields = Split(entry, ",");
  const int set = character_set_from(part(fields, 1)).value_or(kWesternCharacterSet);
  Label& label = *language(index);
  label.set_font({kPanelFont, kPanelPoints, set});
  label.set_caption(language_text(platform().system, {{}, entry_is_utf8}, part(fields, 0),
                                  text_page_of_set(set)));
  label.set_tag(part(fields, 2));
}

void LanguagePanel::turn_over() { pictrlang.set_visible(!pictrlang.visible()); }

void LanguagePanel::mark_chosen() {
  const Label* chosen = language(session.langindex);
  imglangselect.move_to(chosen != nullptr ? *chosen : lbllanguage_0);
}

void LanguagePanel::mouse_over(int index) {
  if (Label* label = language(index)) label->set_back_color(kOverColor);
}

void LanguagePanel::mouse_over_panel() {
  for (int index = 0; index < language_count(); ++index) {
    language(index)->set_back_color(kWindowColor);
    language(index)->set_fore_color(0);
  }
}

void LanguagePanel::choose(int index) {
  Label& label = *language(index);
  session.langcode = label.font()->character_set;
  session.lang = label.tag();
  store(index);
  label.set_back_color(kWhite);
  label.set_fore_color(0);
  pictrlang.hide();
  changelangorv(session, window);
  const bool of_system = is_set_of_page(session.langcode, platform().system.ansi_code_page());
  if (renew_menus) renew_menus(!of_system);
  imglangselect.move(imglangselect.left(), label.top());
}

void LanguagePanel::store(int index) const {
  const auto write = [this](const char* name, const std::string& text) {
    return static_cast<bool>(
        WriteRegistryString(platform().registry, Hive::kLocalMachine, kLanguageKey, name, text));
  };
  const bool set = write("langcode", std::to_string(session.langcode));
  const bool code = write("lang", session.lang);
  const bool number = write("langindex", std::to_string(index));
  // The window shows what is stored, and so keeps its language.
  if (!set || !code || !number) session.tell_problem("language", "the choice cannot be stored");
}

}  // namespace quillvane
