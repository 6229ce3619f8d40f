#include "platform/folder/posix/named_file.h"

#include <utility>

#include "platform/file_system.h"
#include "platform/folder/posix/file_attributes.h"

namespace quillvane {

std::uint32_t NamedFile::attributes() const {
  if (!is_link()) return read_file_attributes(named);
  return is_folder(target->status) ? kAttributeFolder : kAttributeArchive;
}

std::optional<NamedFile> open_named(const DriveFolder& drive, const HostEntry& entry) {
  auto named = open_entry(entry);
  if (!named) return std::nullopt;
  NamedFile file{std::move(*named), std::nullopt};
  if (quillvane::is_link(file.named.status)) {
    file.target = drive.follow(entry.folder.path, entry.name);
    if (!file.target) return std::nullopt;
  }
  const HostStatus& status = file.place().status;
  if (!is_file(status) && !is_folder(status)) return missing();
  return file;
}

}  // namespace quillvane
