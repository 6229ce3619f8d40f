#include "drivesearch/leave_out_names.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "support/characters.h"
#include "support/like.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::string_view kWildcards = "*?#[";

bool is_pattern(std::string_view text) {
  return text.find_first_of(kWildcards) != std::string_view::npos;
}

// A pattern taken apart. Requires: it is well formed.
struct PatternParts {
  explicit PatternParts(std::string_view pattern) {
    while (!pattern.empty()) {
      const std::string_view text = pattern.substr(0, pattern.find_first_of(kWildcards));
      if (!text.empty()) texts.push_back(text);
      characters += character_count(text);
      pattern.remove_prefix(text.size());
      if (pattern.empty()) return;
      const std::size_t length = pattern[0] == '[' ? pattern.find(']') + 1 : 1;
      takes_any_number = takes_any_number || pattern[0] == '*';
      if (pattern.substr(0, length) != "[]") ++characters;
      pattern.remove_prefix(length);
    }
  }

  std::vector<std::string_view> texts;  // what stands for itself, between the wildcards
  std::size_t characters = 0;           // of a text that is like it ...
  bool takes_any_number = false;        // ... unless there is a "*"
};

std::uint32_t piece_of(std::string_view text) {
  auto piece = static_cast<std::uint32_t>(text.size());
  for (const char byte : text) piece = piece << 8U | static_cast<unsigned char>(byte);
  return piece;
}

std::size_t filter_bit(std::uint32_t piece, std::size_t bits) {
  constexpr std::uint32_t kSpreading = 2654435761U;
  return (piece * kSpreading >> 8U) & (bits - 1);
}

}  // namespace

LeaveOutNames::LeaveOutNames(std::vector<std::string> items)
    : items_(std::move(items)), filter_(std::make_unique<std::bitset<kFilterBits>>()) {
  const std::unordered_set<std::string_view> different(items_.begin(), items_.end());
  for (const std::string_view item : different) {
    by_length_[character_count(item)].push_back(item);
    if (!is_pattern(item)) {
      plain_.insert(item);
    } else if (likeness({}, item) == Likeness::kIllFormed) {
      keeps_all_out_ = true;
    } else {
      add_pattern(item);
    }
  }
  for (auto& [length, sorted] : by_length_) std::sort(sorted.begin(), sorted.end());
}

// Under the longest piece there is, and of those the one with the fewest patterns until now.
void LeaveOutNames::add_pattern(std::string_view item) {
  const std::vector<std::string_view> texts = PatternParts(item).texts;
  std::size_t length = 0;
  for (const std::string_view text : texts) {
    length = std::max(length, std::min(text.size(), kLongestPiece));
  }
  if (length == 0) {
    bare_patterns_.push_back(item);
    return;
  }
  Piece rarest = 0;
  std::size_t fewest = std::numeric_limits<std::size_t>::max();
  for (const std::string_view text : texts) {
    for (std::size_t i = 0; i + length <= text.size(); ++i) {
      const Piece piece = piece_of(text.substr(i, length));
      const auto known = patterns_.find(piece);
      const std::size_t count = known == patterns_.end() ? 0 : known->second.size();
      if (count < fewest) {
        fewest = count;
        rarest = piece;
      }
    }
  }
  patterns_[rarest].push_back(item);
  piece_lengths_.set(length);
  filter_->set(filter_bit(rarest, kFilterBits));
}

bool LeaveOutNames::keeps_out(std::string_view name) const {
  if (items_.empty()) return false;
  return keeps_all_out_ || plain_.contains(name) || is_like_an_item(name) || an_item_is_like(name);
}

bool LeaveOutNames::is_like_an_item(std::string_view name) const {
  for (std::size_t length = 1; length <= kLongestPiece; ++length) {
    if (!piece_lengths_.test(length)) continue;
    for (std::size_t i = 0; i + length <= name.size(); ++i) {
      const Piece piece = piece_of(name.substr(i, length));
      if (filter_->test(filter_bit(piece, kFilterBits)) && is_like_an_item_with(piece, name)) {
        return true;
      }
    }
  }
  return std::any_of(bare_patterns_.begin(), bare_patterns_.end(),
                     [name](std::string_view pattern) { return Like(name, pattern); });
}

bool LeaveOutNames::is_like_an_item_with(Piece piece, std::string_view name) const {
  const auto found = patterns_.find(piece);
  return found != patterns_.end() &&
         std::any_of(found->second.begin(), found->second.end(),
                     [name](std::string_view pattern) { return Like(name, pattern); });
}

// Few names are patterns; any other is like itself alone.
bool LeaveOutNames::an_item_is_like(std::string_view name) const {
  if (!is_pattern(name)) return false;
  if (likeness({}, name) == Likeness::kIllFormed) return true;
  const auto is_like = [name](std::string_view item) { return Like(item, name); };
  const PatternParts parts(name);
  if (parts.takes_any_number) return std::any_of(items_.begin(), items_.end(), is_like);
  const auto items = by_length_.find(parts.characters);
  if (items == by_length_.end()) return false;
  const std::string_view beginning = name.substr(0, name.find_first_of(kWildcards));
  auto item = std::lower_bound(items->second.begin(), items->second.end(), beginning);
  for (; item != items->second.end() && item->starts_with(beginning); ++item) {
    if (is_like(*item)) return true;
  }
  return false;
}

}  // namespace quillvane
