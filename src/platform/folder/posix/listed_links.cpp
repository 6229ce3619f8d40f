#include "platform/folder/posix/listed_links.h"

namespace quillvane {

void follow_links(DirectoryListing& listing, const DriveFolder& drive, const std::string& path) {
  using Kind = DirectoryListing::Kind;
  for (auto& entry : listing.entries()) {
    if (entry.kind != Kind::kLink) continue;
    const auto target = drive.follow(path, listing.host_name(entry));
    if (!target) continue;
    if (is_folder(target->status)) entry.kind = Kind::kFolder;
    if (is_file(target->status)) entry.kind = Kind::kLinkToFile;
  }
  listing.drop_if([](const DirectoryListing::Entry& entry) { return entry.kind == Kind::kLink; });
}

}  // namespace quillvane
