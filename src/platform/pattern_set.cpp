#include "platform/pattern_set.h"

#include <algorithm>
#include <string>

#include "platform/path_limit.h"
#include "platform/unicode_case.h"

namespace quillvane {

PatternSet::PatternSet(const TreeRequest& request)
    : first_match_(request.tells == TreeRequest::Tells::kFirstMatch) {
  for (const std::string& text : request.patterns) {
    const FilePattern& rule = patterns_.emplace_back(FilePattern(text), utf16_length(text)).rule;
    takes_every_name_ = takes_every_name_ && rule.matches_every_name();
    ends_decide_ = ends_decide_ || rule.ends_decide();
    needs_made_up_names_ =
        needs_made_up_names_ ||
        !(rule.matches_every_name() || rule.ends_decide() || rule.matches_no_made_up_name());
  }
}

template <typename Wanted>
std::uint32_t PatternSet::word(std::size_t path_units, Wanted wanted) const {
  std::uint32_t matches = 0;
  for (std::size_t i = 0; i < patterns_.size(); ++i) {
    const Pattern& pattern = patterns_[i];
    if (!fits_path_limit(path_units + pattern.units) || !wanted(pattern.rule)) continue;
    if (first_match_) return static_cast<std::uint32_t>(i) + 1;
    matches |= std::uint32_t{1} << i;
  }
  return matches;
}

std::uint32_t PatternSet::matches(std::string_view name, std::size_t path_units) const {
  return word(path_units, [name](const FilePattern& rule) { return rule.matches(name); });
}

std::uint32_t PatternSet::matches_by_ending(std::string_view name, std::size_t path_units) const {
  return word(path_units,
              [name](const FilePattern& rule) { return rule.ends_decide() && rule.matches(name); });
}

std::uint32_t PatternSet::every_name(std::size_t path_units) const {
  return word(path_units, [](const FilePattern& /*rule*/) { return true; });
}

std::uint32_t PatternSet::either(std::uint32_t one, std::uint32_t other) const {
  if (!first_match_) return one | other;
  return one == 0 || other == 0 ? one + other : std::min(one, other);
}

bool PatternSet::any_fits(std::size_t path_units) const {
  return std::any_of(patterns_.begin(), patterns_.end(), [path_units](const Pattern& pattern) {
    return fits_path_limit(path_units + pattern.units);
  });
}

}  // namespace quillvane
