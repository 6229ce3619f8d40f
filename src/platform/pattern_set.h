// Several file patterns that are asked of each name of a folder together.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/file_pattern.h"
#include "platform/tree_request.h"

namespace quillvane {

// Answers are words: with kEveryMatch bit N stands for pattern N, with kFirstMatch the word is the
// number of the first pattern that matches, counted from 1. 0: none does.
class PatternSet {
 public:
  explicit PatternSet(const TreeRequest& request);

  // What `name` matches in a folder whose path, its backslash included, has so many UTF-16 units: a
  // pattern that makes the path too long is not used there.
  [[nodiscard]] std::uint32_t matches(std::string_view name, std::size_t path_units) const;
  // The same, of the patterns alone for which the end of a name decides.
  [[nodiscard]] std::uint32_t matches_by_ending(std::string_view name,
                                                std::size_t path_units) const;
  // What every name matches. Requires: takes_every_name().
  [[nodiscard]] std::uint32_t every_name(std::size_t path_units) const;
  // The answer for a file with two names.
  [[nodiscard]] std::uint32_t either(std::uint32_t one, std::uint32_t other) const;

  // Whether there is a pattern that can be used in such a folder.
  [[nodiscard]] bool any_fits(std::size_t path_units) const;
  // Whether each of the patterns takes every name.
  [[nodiscard]] bool takes_every_name() const { return takes_every_name_; }
  // Whether there is one for which the end of a name decides.
  [[nodiscard]] bool ends_decide() const { return ends_decide_; }
  // Whether there is one that can match a short name that a disk makes up, otherwise than by its
  // end.
  [[nodiscard]] bool needs_made_up_names() const { return needs_made_up_names_; }
  // Whether a file's answer tells more than that it is there.
  [[nodiscard]] bool tells_matches() const { return patterns_.size() > 1; }

 private:
  struct Pattern {
    FilePattern rule;
    std::size_t units;  // as they count in a path
  };
  template <typename Wanted>
  [[nodiscard]] std::uint32_t word(std::size_t path_units, Wanted wanted) const;

  std::vector<Pattern> patterns_;
  bool first_match_;
  bool takes_every_name_ = true;
  bool ends_decide_ = false;
  bool needs_made_up_names_ = false;
};

}  // namespace quillvane
