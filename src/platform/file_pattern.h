// File patterns as FindFirstFileA reads them, made ready once and then asked for many names.
//
//   "*.*", "*"    every name            "*."         names without a dot
//   "*.tmp"       ... that end so       "History.*"  also the bare name "History"
//   "a?.txt"      "ab.txt", "a.txt": '?' is one character, or none before a dot and at the end
//
// Case never matters. Short names are not looked at here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

class FilePattern {
 public:
  explicit FilePattern(std::string_view pattern);

  [[nodiscard]] bool matches(std::string_view name) const {
    return kind_ == Kind::kEveryName || matches_by_text(name);
  }

  [[nodiscard]] bool matches_every_name() const { return kind_ == Kind::kEveryName; }

  // Whether only the end of a name decides, from its last dot on ("*.tmp").
  [[nodiscard]] bool ends_decide() const { return kind_ == Kind::kEnding; }

  // Whether no short name that a disk makes up ("ABCDEF~1.TXT") can match, so that nobody needs to
  // make them ("History.*"). False where it takes a closer look to tell.
  [[nodiscard]] bool matches_no_made_up_name() const;

 private:
  enum class Kind { kNoName, kEveryName, kEnding, kStem, kGeneral };

  // What one place of the pattern takes of the name.
  enum class Takes : std::uint8_t {
    kUnit,          // exactly this UTF-16 unit
    kAny,           // '*': any number of units
    kAnyToLastDot,  // '*' before a dot: any number, but not the name's last dot
    kOneOrNone,     // '?': one unit other than a dot; none before a dot or at the end
    kDotOrEnd,      // '.' before a wildcard: a dot, or nothing at the end of the name
  };
  struct Place {
    Takes takes;
    char16_t unit = 0;  // upper case; of kUnit
  };
  struct Name {
    std::span<const char16_t> units;
    std::size_t last_dot;  // units.size() when there is none
  };
  class Positions;

  void compile(std::string_view pattern, bool ended_in_dot);
  void recognise(std::string_view pattern, bool ended_in_dot);
  void note_fixed_ends();
  [[nodiscard]] bool asks_for_a_long_name() const;
  [[nodiscard]] bool is_ruled_out(std::string_view name) const;
  [[nodiscard]] bool matches_stem(std::string_view name) const;
  [[nodiscard]] bool matches_by_text(std::string_view name) const;
  [[nodiscard]] bool matches_places(const Name& name) const;
  void step(const Name& name, std::size_t at, const Positions& from, Positions& to) const;
  [[nodiscard]] bool reaches_end(const Positions& from) const;

  Kind kind_ = Kind::kNoName;
  std::string ending_;   // of kEnding: ".TMP", ASCII in capitals
  std::string stem_;     // of kStem: "HISTORY" of "History.*", ASCII in capitals
  bool floats_ = false;  // of kStem: "*-journal.*", so the stem may have something before it
  std::vector<Place> places_;
  // Of kGeneral: what a name must begin and end with, ASCII in capitals.
  std::string fixed_beginning_;
  std::string fixed_ending_;
};

}  // namespace quillvane
