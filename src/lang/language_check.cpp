#include "lang/language_check.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "lang/character_set.h"
#include "lang/text_width.h"
#include "lang/window_texts.h"
#include "platform/unicode_case.h"
#include "platform/utf8.h"
#include "support/text.h"

namespace quillvane {

namespace {

std::string without_quotes(std::string_view value) {
  std::string text(value);
  std::erase(text, '"');
  return text;
}

// Whether a code page made something else than letters of the bytes: control characters of what it
// leaves open, and the marks of bytes that are no character.
bool has_stray_bytes(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint letter = decode_utf8(text, at);
    const bool is_control = letter.value < 0x20 || (letter.value >= 0x7F && letter.value < 0xA0);
    if (!letter.valid || is_control) return true;
    at += letter.length;
  }
  return false;
}

class LanguageCheck {
 public:
  LanguageCheck(const LanguageBytes& file, const CodePage& page, int page_number)
      : file_(file), page_(page), page_number_(page_number) {}

  [[nodiscard]] std::vector<LanguageFinding> run() {
    for (const std::string& line : text_lines(file_.bytes)) {
      ++line_;
      check_line(language_line(line));
    }
    end_section();
    for (const WindowTexts& window : window_texts()) {
      if (section_lines_.contains(window.window)) continue;
      findings_.push_back({0, std::string(window.window), {}, "the section is missing"});
    }
    return std::move(findings_);
  }

 private:
  void find(std::string what, std::string_view key = {}) {
    findings_.push_back({line_, section_, std::string(key), std::move(what)});
  }

  void check_line(const LanguageLine& line) {
    const bool is_section = line.line.starts_with('[') && line.line.ends_with(']');
    if (line.line.empty()) return;
    if (is_section && !line.has_value) return begin_section(line.line);
    if (section_.empty()) return find("stands before the first section", line.key);
    if (window_ == nullptr) return;
    check_key(line);
  }

  void begin_section(std::string_view heading) {
    end_section();
    section_ = heading.substr(1, heading.size() - 2);
    heading_line_ = line_;
    key_lines_.clear();
    window_ = texts_of_window(section_);
    if (window_ == nullptr) return find("no window has this section");
    const auto [first, is_new] = section_lines_.try_emplace(window_->window, line_);
    if (is_new) return;
    find("the section stands in line " + std::to_string(first->second) + " already");
    window_ = nullptr;
  }

  // A reader finds a missing key in a later section of the file; whether its text is meant here too
  // nobody can tell.
  void end_section() {
    if (window_ == nullptr) return;
    for (const TextKey& text : window_->keys) {
      if (key_lines_.contains(lower_case(text.key))) continue;
      findings_.push_back({heading_line_, section_, std::string(text.key), "is missing"});
    }
    window_ = nullptr;
  }

  void check_key(const LanguageLine& line) {
    const auto known =
        std::find_if(window_->keys.begin(), window_->keys.end(),
                     [&](const TextKey& text) { return same_name(text.key, line.key); });
    if (!line.has_value) {
      find(known == window_->keys.end() ? "is neither a section nor a key" : "has no =", line.key);
    }
    if (known == window_->keys.end()) {
      if (line.has_value) find("is no key of this window", line.key);
      return;
    }
    const auto [first, is_new] = key_lines_.try_emplace(lower_case(line.key), line_);
    if (!is_new) {
      return find("stands in line " + std::to_string(first->second) + " already", line.key);
    }
    if (line.has_value) check_text(*known, line);
  }

  void check_text(const TextKey& key, const LanguageLine& line) {
    if (line.is_cut) find("ends at its second =, what follows is lost", line.key);
    const std::string bytes = without_quotes(line.value);
    if (key.rule == TextRule::kMustBeNone && !bytes.empty()) {
      find("must be empty: the program keeps a state of its own there", line.key);
    }
    if (key.rule == TextRule::kShown && Trim(bytes).empty()) find("is empty", line.key);
    const std::string text = file_.is_utf8 ? bytes : page_.decode(bytes);
    const std::string page = "code page " + std::to_string(page_number_);
    if (has_stray_bytes(text)) return find("has bytes that are no letters of " + page, line.key);
    if (!page_.encode(text)) return find("has letters that " + page + " does not hold", line.key);
    check_width(key, text);
  }

  void check_width(const TextKey& key, const std::string& text) {
    const int width = estimated_width(text);
    if (key.room == 0 || width <= key.room) return;
    find("takes about " + std::to_string(width) + " pixels where there are " +
             std::to_string(key.room),
         key.key);
  }

  const LanguageBytes& file_;
  const CodePage& page_;
  const int page_number_;
  std::vector<LanguageFinding> findings_;
  int line_ = 0;
  std::string section_;
  int heading_line_ = 0;
  const WindowTexts* window_ = nullptr;  // of the section; null: its lines are not looked at
  std::map<std::string_view, int> section_lines_;
  std::map<std::string, int> key_lines_;  // of the section; keys in lower case
};

}  // namespace

std::vector<LanguageFinding> check_language_file(const LanguageBytes& file, const CodePage& page,
                                                 int page_number) {
  return LanguageCheck(file, page, page_number).run();
}

std::optional<int> catalogue_character_set(const LanguageBytes& catalogue, std::string_view program,
                                           std::string_view code) {
  for (const std::string& entry : Split(language_value(catalogue.bytes, "lang", program), "|")) {
    const std::vector<std::string> fields = Split(entry, ",");
    if (same_name(part(fields, 2), code)) return character_set_from(part(fields, 1));
  }
  return std::nullopt;
}

std::string language_code_of(std::string_view file_name) {
  constexpr std::string_view kBegin = "fernwick-";
  constexpr std::string_view kEnd = ".lang";
  const std::string name = lower_case(file_name);
  if (!name.starts_with(kBegin) || !name.ends_with(kEnd)) return {};
  if (name.size() <= kBegin.size() + kEnd.size()) return {};
  return name.substr(kBegin.size(), name.size() - kBegin.size() - kEnd.size());
}

}  // namespace quillvane
