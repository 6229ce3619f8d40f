// The names that a search leaves out: patterns and texts in a list, asked for each file found.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace quillvane {

// Both sides are in small letters. An item keeps a name out when the name is like the item or the
// item is like the name, each taken for the pattern once; an ill-formed pattern, be it item or
// name, keeps it out too. What a question costs hardly grows with the list.
class LeaveOutNames {
 public:
  explicit LeaveOutNames(std::vector<std::string> items);
  LeaveOutNames(const LeaveOutNames&) = delete;
  LeaveOutNames& operator=(const LeaveOutNames&) = delete;

  [[nodiscard]] bool keeps_out(std::string_view name) const;

 private:
  using Items = std::vector<std::string_view>;
  // Up to three bytes of text and their number, packed into one.
  using Piece = std::uint32_t;
  static constexpr std::size_t kLongestPiece = 3;
  static constexpr std::size_t kFilterBits = std::size_t{1} << 20U;

  void add_pattern(std::string_view item);
  [[nodiscard]] bool is_like_an_item(std::string_view name) const;
  [[nodiscard]] bool is_like_an_item_with(Piece piece, std::string_view name) const;
  [[nodiscard]] bool an_item_is_like(std::string_view name) const;

  const std::vector<std::string> items_;
  bool keeps_all_out_ = false;                  // an item is ill formed
  std::unordered_set<std::string_view> plain_;  // the items that are no patterns
  Items bare_patterns_;                         // patterns without a piece of text: "*", "??"
  // Each other pattern stands under one piece of its text, which every name like it holds.
  std::unordered_map<Piece, Items> patterns_;
  std::bitset<kLongestPiece + 1> piece_lengths_;      // that are in use
  std::unique_ptr<std::bitset<kFilterBits>> filter_;  // tells of most pieces that none stands there
  std::unordered_map<std::size_t, Items> by_length_;  // all items by their characters, sorted
};

}  // namespace quillvane
