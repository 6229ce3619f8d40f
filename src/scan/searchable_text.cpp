#include "scan/searchable_text.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

namespace quillvane {

namespace {

constexpr std::size_t kKeyBytes = 8;
// How much of the texts decides their order: more than any path that can be listed.
constexpr std::size_t kDepth = 2048;

bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool begins_path(std::string_view text) {
  return text.size() >= 3 && is_letter(text[0]) && text[1] == ':' && text[2] == '\\';
}

// Eight bytes of the text as a number that sorts like them; zeros behind the end.
std::uint64_t key_at(std::string_view text, std::size_t at) {
  std::uint64_t key = 0;
  if (at < text.size()) {
    std::memcpy(&key, text.data() + at, std::min(kKeyBytes, text.size() - at));
  }
  return __builtin_bswap64(key);
}

using KeyedPlace = std::pair<std::uint64_t, std::uint32_t>;

// Sorts places by the text from `depth` bytes behind them on: by eight bytes at a time, since paths
// share long beginnings.
void sort_places(std::string_view text, std::span<KeyedPlace> places, std::size_t depth) {
  while (places.size() > 1 && depth < kDepth) {
    bool all_equal = true;
    for (KeyedPlace& place : places) {
      place.first = key_at(text, place.second + depth);
      all_equal = all_equal && place.first == places.front().first;
    }
    depth += kKeyBytes;
    if (all_equal) continue;

    std::sort(places.begin(), places.end());
    for (std::size_t begin = 0; begin < places.size();) {
      std::size_t end = begin + 1;
      while (end < places.size() && places[end].first == places[begin].first) ++end;
      sort_places(text, places.subspan(begin, end - begin), depth);
      begin = end;
    }
    return;
  }
}

}  // namespace

void SearchableText::set_text(std::string_view text) {
  text_ = text;
  ++version_;
  indexed_ = false;
}

bool SearchableText::contains(std::string_view wanted) const { return occurs(wanted, 0); }

bool SearchableText::contains_behind_beginning(std::string_view wanted) const {
  return occurs(wanted, 1);
}

bool SearchableText::occurs(std::string_view wanted, std::uint32_t first) const {
  if (wanted.empty() || wanted.size() > text_.size()) return false;
  if (!begins_path(wanted) || wanted.size() > kDepth) {
    return text_.find(wanted, first) != std::string::npos;
  }
  if (!indexed_) build_index();
  auto place = std::lower_bound(places_.begin(), places_.end(), wanted,
                                [this](std::uint32_t at, std::string_view value) {
                                  return from(at).substr(0, value.size()) < value;
                                });
  // Occurrences stand side by side, and only one of them can be at the beginning.
  if (place != places_.end() && *place < first) ++place;
  return place != places_.end() && from(*place).starts_with(wanted);
}

void SearchableText::build_index() const {
  std::vector<KeyedPlace> keyed;
  const std::string_view text = text_;
  for (std::size_t colon = text.find(':'); colon != std::string_view::npos;
       colon = text.find(':', colon + 1)) {
    if (colon > 0 && begins_path(text.substr(colon - 1))) {
      keyed.emplace_back(0, static_cast<std::uint32_t>(colon - 1));
    }
  }
  sort_places(text, keyed, 0);
  places_.clear();
  places_.reserve(keyed.size());
  for (const KeyedPlace& place : keyed) places_.push_back(place.second);
  indexed_ = true;
}

}  // namespace quillvane
