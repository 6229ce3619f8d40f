#include "platform/folder/name_filter.h"

#include <algorithm>

#include "platform/folder/short_name.h"

namespace quillvane {

NameFilter::NameFilter(std::span<const std::string> patterns, Folders folders)
    : patterns_(patterns.begin(), patterns.end()), takes_all_folders_(folders == Folders::kAll) {
  takes_every_name_ =
      std::all_of(patterns_.begin(), patterns_.end(),
                  [](const FilePattern& pattern) { return pattern.matches_every_name(); });
  needs_numbers_ = !std::all_of(patterns_.begin(), patterns_.end(), [](const FilePattern& pattern) {
    return pattern.matches_every_name() || pattern.ends_decide() ||
           pattern.matches_no_made_up_name();
  });
  ends_decide_ = std::any_of(patterns_.begin(), patterns_.end(),
                             [](const FilePattern& pattern) { return pattern.ends_decide(); });
}

void NameFilter::apply(NameListing& listing, std::uint32_t usable) const {
  for (auto& entry : listing.entries()) {
    const std::string_view name = listing.name(entry);
    entry.matches = takes_every_name_ ? ~0U : by_name(name) | by_short_ending(name);
  }
  // Short names are numbered in the order of the listing, among all names of the folder.
  if (needs_numbers_) {
    listing.sort();
    add_short_matches(listing);
  }
  for (auto& entry : listing.entries()) entry.matches &= usable;
  listing.drop_if([this](const NameListing::Entry& entry) {
    const bool is_folder = entry.kind == NameListing::Kind::kFolder;
    return entry.matches == 0 && !(is_folder && takes_all_folders_);
  });
  if (!needs_numbers_) listing.sort();
}

std::uint32_t NameFilter::by_name(std::string_view name) const {
  std::uint32_t matches = 0;
  for (std::size_t i = 0; i < patterns_.size(); ++i) {
    if (patterns_[i].matches(name)) matches |= 1U << i;
  }
  return matches;
}

std::uint32_t NameFilter::by_short_ending(std::string_view name) const {
  if (!ends_decide_ || name.find('.') == std::string_view::npos || is_short_name(name)) return 0;
  const std::string ending = "~" + short_extension(name);
  std::uint32_t matches = 0;
  for (std::size_t i = 0; i < patterns_.size(); ++i) {
    if (patterns_[i].ends_decide() && patterns_[i].matches(ending)) matches |= 1U << i;
  }
  return matches;
}

void NameFilter::add_short_matches(NameListing& listing) const {
  ShortNames names;
  for (const auto& entry : listing.entries()) {
    if (is_short_name(listing.name(entry))) names.reserve(listing.name(entry));
  }
  for (auto& entry : listing.entries()) {
    if (!is_short_name(listing.name(entry)))
      entry.matches |= by_name(names.make(listing.name(entry)));
  }
}

}  // namespace quillvane
