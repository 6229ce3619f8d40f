#include "platform/folder/posix/listed_links.h"

namespace quillvane {

void follow_links(DirectoryListing& listing, const DriveFolder& drive, const std::string& path) {
  using EntryKind = DirectoryListing::Kind;
  for (auto& entry : listing.entries()) {
    if (entry.kind != EntryKind::kLink) continue;
    const auto target = drive.follow(path, listing.host_name(entry));
    if (!target) continue;
    if (is_folder(target->status)) entry.kind = EntryKind::kFolder;
    if (is_file(target->status)) entry.kind = EntryKind::kLinkToFile;
  }
  listing.drop_if(
      [](const DirectoryListing::Entry& entry) { return entry.kind == EntryKind::kLink; });
}

}  // namespace quillvane
