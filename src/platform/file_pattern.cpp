#include "platform/file_pattern.h"

#include <algorithm>
#include <array>

#include "platform/file_system.h"
#include "platform/unicode_case.h"
#include "platform/utf8.h"

namespace quillvane {

namespace {

// No name on a disk and no pattern that fits a path is longer, in UTF-16 units.
constexpr std::size_t kMostUnits = 259;

// The upper-case UTF-16 units of a text; a byte that is no UTF-8 is one unit.
class UpperText {
 public:
  explicit UpperText(std::string_view text) {
    for (std::size_t at = 0; at < text.size() && !too_long_;) {
      const DecodedCodePoint point = decode_utf8(text, at);
      at += point.length;
      add(point.valid ? to_upper(point.value) : point.value);
    }
  }

  [[nodiscard]] bool too_long() const { return too_long_; }
  [[nodiscard]] std::span<const char16_t> units() const { return {units_.data(), size_}; }

 private:
  void add(char32_t point) {
    const bool pair = point >= 0x10000;
    too_long_ = size_ + (pair ? 2 : 1) > units_.size();
    if (too_long_) return;
    if (pair) {
      units_[size_++] = static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10U));
      units_[size_++] = static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FFU));
    } else {
      units_[size_++] = static_cast<char16_t>(point);
    }
  }

  std::array<char16_t, kMostUnits> units_;
  std::size_t size_ = 0;
  bool too_long_ = false;
};

bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }

bool all_ascii(std::string_view text) { return std::all_of(text.begin(), text.end(), is_ascii); }

char ascii_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// Whether ASCII letters are the same; `capitals` has no small ones.
bool same_ascii(std::string_view text, std::string_view capitals) {
  return std::equal(text.begin(), text.end(), capitals.begin(), capitals.end(),
                    [](char a, char b) { return ascii_upper(a) == b; });
}

bool is_wildcard(char16_t unit) { return unit == u'*' || unit == u'?'; }

// Windows drops these from the end of a path before it looks at the pattern.
std::string_view without_trailing_dots(std::string_view pattern) {
  const std::size_t last = pattern.find_last_not_of(". ");
  return last == std::string_view::npos ? std::string_view() : pattern.substr(0, last + 1);
}

}  // namespace

// The places of the pattern that can take the next unit, in rising order.
class FilePattern::Positions {
 public:
  void clear() { size_ = 0; }
  void add(std::size_t position) {
    if (size_ != 0 && items_[size_ - 1] == position) return;
    items_[size_++] = static_cast<std::uint16_t>(position);
  }
  [[nodiscard]] bool empty() const { return size_ == 0; }
  [[nodiscard]] const std::uint16_t* begin() const { return items_.data(); }
  [[nodiscard]] const std::uint16_t* end() const { return items_.data() + size_; }

 private:
  std::array<std::uint16_t, kMostUnits + 1> items_;
  std::size_t size_ = 0;
};

FilePattern::FilePattern(std::string_view pattern) {
  const std::string_view kept = without_trailing_dots(pattern);
  if (kept.empty() || kept.find('\\') != std::string_view::npos) return;
  if (kept == "*.*" || (kept == "*" && pattern.back() != '.')) {
    kind_ = Kind::kEveryName;
    return;
  }
  compile(kept, pattern.back() == '.');
}

void FilePattern::compile(std::string_view pattern, bool ended_in_dot) {
  const UpperText text(pattern);
  if (text.too_long()) return;
  const auto units = text.units();
  for (std::size_t i = 0; i < units.size(); ++i) {
    const bool last = i + 1 == units.size();
    const bool dot_follows = last ? ended_in_dot : units[i + 1] == u'.';
    if (units[i] == u'*') {
      places_.push_back({dot_follows ? Takes::kAnyToLastDot : Takes::kAny});
    } else if (units[i] == u'?') {
      places_.push_back({Takes::kOneOrNone});
    } else if (units[i] == u'.' && !last && is_wildcard(units[i + 1])) {
      places_.push_back({Takes::kDotOrEnd});
    } else {
      places_.push_back({Takes::kUnit, units[i]});
    }
  }

  recognise(pattern, ended_in_dot);
}

// The forms that most patterns have are matched without a look at their places.
void FilePattern::recognise(std::string_view pattern, bool ended_in_dot) {
  kind_ = Kind::kGeneral;
  const std::string_view ending = pattern.substr(1);
  if (pattern.starts_with("*.") && ending.find_first_of("*?.", 1) == std::string_view::npos &&
      all_ascii(ending)) {
    kind_ = Kind::kEnding;
    ending_ = upper_case(ending);
    return;
  }
  note_fixed_ends();
  if (ended_in_dot || !pattern.ends_with(".*")) return;
  std::string_view stem = pattern.substr(0, pattern.size() - 2);
  floats_ = stem.starts_with('*');
  if (floats_) stem.remove_prefix(1);
  if (stem.empty() || stem.find_first_of("*?.") != std::string_view::npos || !all_ascii(stem)) {
    return;
  }
  kind_ = Kind::kStem;
  stem_ = upper_case(stem);
}

void FilePattern::note_fixed_ends() {
  const auto is_fixed = [](const Place& place) {
    return place.takes == Takes::kUnit && place.unit < 0x80;
  };
  const auto beginning = std::find_if_not(places_.begin(), places_.end(), is_fixed);
  for (auto place = places_.begin(); place != beginning; ++place) {
    fixed_beginning_ += static_cast<char>(place->unit);
  }
  const auto ending = std::find_if_not(places_.rbegin(), places_.rend(), is_fixed).base();
  for (auto place = ending; place != places_.end(); ++place) {
    fixed_ending_ += static_cast<char>(place->unit);
  }
}

// Most names are told apart by their ends. A letter above ASCII can have a capital below it, so
// from the first one on nothing is ruled out.
bool FilePattern::is_ruled_out(std::string_view name) const {
  if (name.size() < std::max(fixed_beginning_.size(), fixed_ending_.size())) return true;
  for (std::size_t i = 0; i < fixed_beginning_.size() && is_ascii(name[i]); ++i) {
    if (ascii_upper(name[i]) != fixed_beginning_[i]) return true;
  }
  for (std::size_t i = 1; i <= fixed_ending_.size(); ++i) {
    const char letter = name[name.size() - i];
    if (!is_ascii(letter)) return false;
    if (ascii_upper(letter) != fixed_ending_[fixed_ending_.size() - i]) return true;
  }
  return false;
}

// A made-up name has a number before its dot, or at its end, and three letters behind it at most.
bool FilePattern::matches_no_made_up_name() const {
  if (kind_ == Kind::kGeneral) return asks_for_a_long_name();
  if (kind_ != Kind::kStem) return kind_ == Kind::kNoName;
  constexpr std::size_t kMostExtension = 3;
  const bool ends_in_digit = stem_.back() >= '0' && stem_.back() <= '9';
  return !ends_in_digit && !(floats_ && stem_.size() <= kMostExtension);
}

// Of the first seven signs of a made-up name one is a '~', with a dot only behind it; there is one
// dot at most.
bool FilePattern::asks_for_a_long_name() const {
  constexpr std::size_t kMostBeforeNumber = 6;
  const auto dots = std::count_if(places_.begin(), places_.end(), [](const Place& place) {
    return place.takes == Takes::kUnit && place.unit == u'.';
  });
  if (dots > 1) return true;
  const std::size_t tilde = fixed_beginning_.find('~');
  if (tilde != std::string::npos)
    return tilde > std::min(kMostBeforeNumber, fixed_beginning_.find('.'));
  return fixed_beginning_.size() > kMostBeforeNumber || fixed_beginning_.size() == places_.size() ||
         fixed_beginning_.find('.') != std::string::npos;
}

// The stem stands before a dot or at the end. Requires: the name is ASCII.
bool FilePattern::matches_stem(std::string_view name) const {
  const std::size_t length = stem_.size();
  if (!floats_) {
    return name.size() >= length && same_ascii(name.substr(0, length), stem_) &&
           (name.size() == length || name[length] == '.');
  }
  for (std::size_t end = std::min(name.find('.'), name.size());;
       end = std::min(name.find('.', end + 1), name.size())) {
    if (end >= length && same_ascii(name.substr(end - length, length), stem_)) return true;
    if (end == name.size()) return false;
  }
}

bool FilePattern::matches_by_text(std::string_view name) const {
  if (kind_ == Kind::kNoName) return false;
  if (kind_ == Kind::kEnding) {
    if (name.size() < ending_.size()) return false;
    const std::string_view tail = name.substr(name.size() - ending_.size());
    // A few letters above ASCII have capitals below it, so only ASCII is compared in place.
    if (all_ascii(tail)) return same_ascii(tail, ending_);
  }
  if (kind_ == Kind::kStem && name.size() <= kMostUnits && all_ascii(name)) {
    return matches_stem(name);
  }
  if (kind_ == Kind::kGeneral && is_ruled_out(name)) return false;
  const UpperText text(name);
  if (text.too_long()) return false;
  const auto units = text.units();
  const auto dot = std::find(units.rbegin(), units.rend(), u'.');
  const auto behind = static_cast<std::size_t>(dot - units.rbegin());
  return matches_places({units, dot == units.rend() ? units.size() : units.size() - 1 - behind});
}

bool FilePattern::matches_places(const Name& name) const {
  std::array<Positions, 2> positions;
  Positions* now = &positions[0];
  Positions* next = &positions[1];
  now->add(0);
  for (std::size_t at = 0; at < name.units.size(); ++at) {
    next->clear();
    step(name, at, *now, *next);
    if (next->empty()) return false;
    std::swap(now, next);
  }
  return reaches_end(*now);
}

// Takes one unit of the name. From each position the places that may take nothing are passed over
// as well; `passed` keeps a row of them from being walked twice.
void FilePattern::step(const Name& name, std::size_t at, const Positions& from,
                       Positions& to) const {
  const char16_t unit = name.units[at];
  std::size_t passed = 0;
  for (const std::size_t start : from) {
    if (start < passed) continue;
    bool takes_nothing = true;
    for (std::size_t i = start; i < places_.size() && takes_nothing; ++i) {
      passed = i + 1;
      switch (places_[i].takes) {
        case Takes::kAny:
          to.add(i);
          break;
        case Takes::kAnyToLastDot:
          if (at != name.last_dot) to.add(i);
          break;
        case Takes::kOneOrNone:
          takes_nothing = unit == u'.';
          if (!takes_nothing) to.add(i + 1);
          break;
        case Takes::kDotOrEnd:
          takes_nothing = false;
          if (unit == u'.') to.add(i + 1);
          break;
        case Takes::kUnit:
          takes_nothing = false;
          if (unit == places_[i].unit) to.add(i + 1);
          break;
      }
    }
  }
}

bool FilePattern::reaches_end(const Positions& from) const {
  return std::any_of(from.begin(), from.end(), [this](std::size_t start) {
    return std::all_of(places_.begin() + static_cast<std::ptrdiff_t>(start), places_.end(),
                       [](const Place& place) { return place.takes != Takes::kUnit; });
  });
}

bool matches_file_pattern(std::string_view name, std::string_view pattern) {
  return FilePattern(pattern).matches(name);
}

}  // namespace quillvane
