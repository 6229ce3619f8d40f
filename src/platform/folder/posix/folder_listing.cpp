#include "platform/folder/posix/folder_listing.h"

#include <utility>

#include "platform/folder/name_filter.h"
#include "platform/folder/posix/directory_listing.h"
#include "platform/folder/posix/named_file.h"

namespace quillvane {

namespace {

FolderEntry entry_of(const std::string& name, const NamedFile& file) {
  const HostPlace& place = file.place();
  const HostStatus& status = place.status;
  return {name,
          file.attributes(),
          is_folder(status) ? 0 : status.stx_size,
          created_time(place),
          file_time(status.stx_atime),
          file_time(status.stx_mtime)};
}

}  // namespace

std::vector<FolderEntry> list_entries(const DriveFolder& drive, HostPlace folder,
                                      const std::string& pattern) {
  const Descriptor readable = open_for_listing(folder);
  DirectoryListing listing;
  if (!readable.is_open() || !listing.read(readable.number())) return {};
  NameFilter({pattern}, NameFilter::Folders::kMatched).apply(listing, 0);

  std::vector<FolderEntry> entries;
  HostEntry entry{std::move(folder), {}};
  for (const auto& listed : listing.entries()) {
    entry.name = listing.name(listed);
    if (const auto file = open_named(drive, entry)) entries.push_back(entry_of(entry.name, *file));
  }
  return entries;
}

}  // namespace quillvane
