#include "lang/change_language.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/text_box.h"
#include "lang/character_set.h"
#include "lang/language_file.h"
#include "lang/window_texts.h"
#include "support/registry_text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kFontKey = "SOFTWARE\\Quillvane\\Tidewrack";
constexpr const char* kUsualFont = "Segoe UI";
constexpr double kUsualPoints = 9;

std::string stored(const Session& session, const char* key, const char* name) {
  return ReadRegistryString32(session.platform.registry, Hive::kLocalMachine, key, name).text;
}

int small_number(const std::string& text) {
  const double number = Val(text);
  constexpr double kMost = std::numeric_limits<std::int16_t>::max();
  return std::abs(number) <= kMost ? static_cast<int>(number) : 0;
}

void read_choice(Session& session) {
  const std::string set = stored(session, kLanguageKey, "langcode");
  session.langcode = small_number(set);
  session.langpage = set.empty() ? 0 : text_page_of_set(session.langcode);
  session.lang = stored(session, kLanguageKey, "lang");
  session.langindex = small_number(stored(session, kLanguageKey, "langindex"));
  session.langfile = "fernwick-" + session.lang + ".lang";
}

Font chosen_font(const Session& session) {
  const std::string name = stored(session, kFontKey, "font name");
  const double points = number_at_head(stored(session, kFontKey, "font size")).value_or(0);
  return {.name = name.empty() ? kUsualFont : name,
          .size_points = points > 0 ? points : kUsualPoints,
          .character_set = session.langcode};
}

// A window may lack a control that its table names: that step is passed over.
void set_font(const Window& window, std::string_view name, const Font& font) {
  if (Control* control = window.find(name)) control->set_font(font);
}

void set_text(Control& control, int column, const std::string& text) {
  if (auto* list = dynamic_cast<ListView*>(&control)) {
    const auto columns = static_cast<int>(list->columns().size());
    if (column >= 1 && column <= columns) list->set_column(column, text);
  } else if (column != 0) {
    return;
  } else if (auto* clickable = dynamic_cast<Clickable*>(&control)) {
    clickable->set_caption(text);
  } else if (auto* box = dynamic_cast<TextBox*>(&control)) {
    box->set_text(text);
  }
}

void set_fonts(const Window& window, const WindowTexts& texts, const Font& font) {
  for (const std::string_view name : texts.fonts) set_font(window, name, font);
  if (!texts.fonts.empty()) return;
  for (const TextKey& text : texts.keys) set_font(window, text_place(text.key).control, font);
}

}  // namespace

void changelangorv(Session& session, const Window& window) {
  read_choice(session);
  const WindowTexts* texts = texts_of_window(window.name());
  const std::string file = language_path(session, session.langfile);
  if (texts == nullptr || !read_language_bytes(session, file)) return;
  set_fonts(window, *texts, chosen_font(session));
  for (const TextKey& text : texts->keys) {
    const TextPlace place = text_place(text.key);
    Control* control = window.find(place.control);
    if (control == nullptr) continue;
    set_text(*control, place.column, readlangfile(session, file, window.name(), text.key));
  }
}

}  // namespace quillvane
