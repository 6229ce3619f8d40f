#include "platform/folder/name_filter.h"

#include <string>

#include "platform/folder/short_name.h"

namespace quillvane {

NameFilter::NameFilter(const TreeRequest& request, Folders folders)
    : patterns_(request), takes_all_folders_(folders == Folders::kAll) {}

void NameFilter::apply(NameListing& listing, std::size_t path_units) const {
  const std::uint32_t every_name =
      patterns_.takes_every_name() ? patterns_.every_name(path_units) : 0;
  for (auto& entry : listing.entries()) {
    entry.matches =
        patterns_.takes_every_name() ? every_name : by_name(listing.name(entry), path_units);
  }
  // Short names are numbered in the order of the listing, among all names of the folder.
  const bool needs_numbers = patterns_.needs_made_up_names();
  if (needs_numbers) {
    listing.sort();
    add_short_matches(listing, path_units);
  }
  listing.drop_if([this](const NameListing::Entry& entry) {
    const bool is_folder = entry.kind == NameListing::Kind::kFolder;
    return entry.matches == 0 && !(is_folder && takes_all_folders_);
  });
  if (!needs_numbers) listing.sort();
}

std::uint32_t NameFilter::by_name(std::string_view name, std::size_t path_units) const {
  const std::uint32_t matches = patterns_.matches(name, path_units);
  if (!patterns_.ends_decide() || name.find('.') == std::string_view::npos || is_short_name(name)) {
    return matches;
  }
  return patterns_.either(matches,
                          patterns_.matches_by_ending("~" + short_extension(name), path_units));
}

void NameFilter::add_short_matches(NameListing& listing, std::size_t path_units) const {
  ShortNames names;
  for (const auto& entry : listing.entries()) {
    if (is_short_name(listing.name(entry))) names.reserve(listing.name(entry));
  }
  for (auto& entry : listing.entries()) {
    if (is_short_name(listing.name(entry))) continue;
    const std::uint32_t by_short = patterns_.matches(names.make(listing.name(entry)), path_units);
    entry.matches = patterns_.either(entry.matches, by_short);
  }
}

}  // namespace quillvane
