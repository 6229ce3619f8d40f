#include "platform/folder/posix/folder_in_hand.h"

#include <algorithm>
#include <span>
#include <utility>

namespace quillvane {

namespace {

// Whether the name stands for nothing but itself in a path.
bool is_plain_name(std::string_view name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

}  // namespace

const HostPlace* FolderInHand::folder_of(std::string_view path) {
  const std::size_t name = path.rfind('\\') + 1;
  if (name == 0 || !is_plain_name(path.substr(name)) || !fits_path_limit(path)) return nullptr;
  const std::string_view text = path.substr(0, name);
  if (text != text_ || !is_as_it_was()) {
    text_ = text;
    if (!take(text)) place_.reset();
  }
  return place_ ? &*place_ : nullptr;
}

bool FolderInHand::is_as_it_was() {
  return drive_ && paths_.names().state().moves == watched_since_.moves &&
         paths_.host_folder(letter_) == host_folder_;
}

bool FolderInHand::take(std::string_view text) {
  const auto parsed = paths_.parse(text);
  if (!parsed) return false;
  const std::string host_folder = paths_.host_folder(parsed->drive);
  if (!is_as_it_was() || parsed->drive != letter_) {
    if (!begin_at(parsed->drive, host_folder)) return false;
  }
  const std::span<const std::string> names(parsed->names);
  const auto [ours, theirs] = std::mismatch(way_.begin(), way_.end(), names.begin(), names.end());
  way_.erase(ours, way_.end());
  place_.reset();
  if (way_.size() == names.size()) place_ = drive_->find_as_stored(joined_names(names));
  while (way_.size() < names.size()) {
    place_ = enter(joined_names(names.first(way_.size() + 1)));
    if (!place_) return false;
    way_.push_back(names[way_.size()]);
  }
  return place_ && is_folder(place_->status) && is_as_it_was();
}

bool FolderInHand::begin_at(char letter, const std::string& host_folder) {
  watched_since_ = paths_.names().state();
  letter_ = letter;
  host_folder_ = host_folder;
  way_.clear();
  drive_.emplace(paths_.drive(letter));
  const auto root = drive_->find_as_stored("");
  // What an NTFS disk holds is told of each file by the longer way.
  if (!root || drive_->is_on_ntfs() || root->on_ntfs ||
      !paths_.names().watch(root->object.number())) {
    drive_.reset();
    return false;
  }
  // It may have been moved before it was watched.
  const auto again = paths_.drive(letter).find_as_stored("");
  if (again && HostIdentity::of(again->status) == HostIdentity::of(root->status)) return true;
  drive_.reset();
  return false;
}

// A folder of the way. One that is moved between the look and the watch is seen by the second look.
std::optional<HostPlace> FolderInHand::enter(const std::string& path) const {
  auto place = drive_->find_as_stored(path);
  if (!place || place->on_ntfs || !is_folder(place->status) ||
      !paths_.names().watch(place->object.number())) {
    return std::nullopt;
  }
  const auto again = drive_->find_as_stored(path);
  if (!again || HostIdentity::of(again->status) != HostIdentity::of(place->status)) {
    return std::nullopt;
  }
  return place;
}

}  // namespace quillvane
