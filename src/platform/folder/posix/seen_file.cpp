#include "platform/folder/posix/seen_file.h"

#include <algorithm>

#include "platform/folder/posix/directory_listing.h"
#include "platform/folder/posix/file_attributes.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

constexpr std::chrono::milliseconds kFolderIsBelieved{2};

// Reading the names of a large folder takes long, so they are believed longer: at most a tenth of
// the time goes into reading, however many files are removed one by one.
constexpr int kReadingShare = 10;

}  // namespace

std::optional<SeenFile> FileLook::look(const std::shared_ptr<const LookedAtFolder>& folder,
                                       const std::string& name) {
  if (!enter(folder)) return std::nullopt;
  SeenFile file;
  file.since = std::chrono::steady_clock::now();
  file.name = name;
  if (!read_status(place_->object.number(), name.c_str(), file.status) || !is_file(file.status)) {
    return std::nullopt;
  }
  file.attributes = read_file_attributes(*place_, name, file.status);
  const auto same = spelt_so_.find(upper_case(name));
  file.only_name = same != spelt_so_.end() && same->second == 1;
  file.folder = place_;
  return file;
}

bool FileLook::enter(const std::shared_ptr<const LookedAtFolder>& folder) {
  const auto now = std::chrono::steady_clock::now();
  if (folder != folder_ || !place_ || now >= place_until_) {
    auto place = folder->drive->find(folder->names);
    if (!place || !is_folder(place->status)) {
      place_.reset();
      return false;
    }
    const bool unmoved =
        place_ && HostIdentity::of(place->status) == HostIdentity::of(place_->status);
    if (!unmoved) read_until_ = {};
    folder_ = folder;
    place_ = std::make_shared<const HostPlace>(std::move(*place));
    place_until_ = now + kFolderIsBelieved;
  }
  return now < read_until_ || read_names();
}

bool FileLook::read_names() {
  const auto begin = std::chrono::steady_clock::now();
  const Descriptor readable = open_for_listing(*place_);
  DirectoryListing listing;
  if (!readable.is_open() || !listing.read(readable.number())) return false;
  spelt_so_.clear();
  for (const auto& entry : listing.entries()) ++spelt_so_[upper_case(listing.name(entry))];
  const auto end = std::chrono::steady_clock::now();
  read_until_ = end + std::max<std::chrono::steady_clock::duration>(kFolderIsBelieved,
                                                                    kReadingShare * (end - begin));
  return true;
}

}  // namespace quillvane
