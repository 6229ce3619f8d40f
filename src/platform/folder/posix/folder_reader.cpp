#include "platform/folder/posix/folder_reader.h"

#include <algorithm>
#include <string_view>

#include "platform/folder/posix/listed_links.h"
#include "platform/folder/posix/ntfs_disk.h"

namespace quillvane {

namespace {

using Entry = DirectoryListing::Entry;
using Kind = DirectoryListing::Kind;

// So many are told at a time: the count is one word for all reading threads.
constexpr std::uint32_t kFilesAtATime = 64;

ListedFolder::FixedRecord record_of(const HostStatus& status, FileTime created,
                                    std::size_t name_end) {
  using SplitTime = ListedFolder::SplitTime;
  return {static_cast<std::uint32_t>(status.stx_size),
          static_cast<std::uint32_t>(status.stx_size >> 32U),
          SplitTime::of(created),
          SplitTime::of(file_time(status.stx_atime)),
          SplitTime::of(file_time(status.stx_mtime)),
          static_cast<std::uint32_t>(name_end)};
}

}  // namespace

std::size_t FolderReader::read(const FolderInWork& work) {
  names_read_ = 0;
  if (state_.ended() || !work.descriptor.is_open()) return 0;
  state_.enter(*work.folder);
  if (!listing_.read(work.descriptor.number())) return 0;
  names_read_ = listing_.entries().size();
  if (listing_.has_links()) {
    follow_links(listing_, scope_.drive, work.route->path_of(*work.folder));
  }
  work.folder->set_entry_count(static_cast<std::uint32_t>(names_read_));
  scope_.filter.apply(listing_, work.path_units);
  const std::size_t subfolders =
      scope_.can_list_subfolders(work.path_units) ? add_subfolders(*work.folder) : 0;
  add_files(work);
  return subfolders;
}

std::size_t FolderReader::add_subfolders(ListedFolder& folder) {
  std::size_t count = 0;
  ListedFolder* last = nullptr;
  for (const Entry& entry : listing_.entries()) {
    if (entry.kind != Kind::kFolder) continue;
    ListedFolder* next = ListedFolder::make(arena_, listing_.name(entry), &folder);
    last == nullptr ? folder.set_first_subfolder(next) : last->set_next_sibling(next);
    last = next;
    ++count;
  }
  return count;
}

// The records are written where they stay. Of a file that is gone meanwhile only the room is left.
void FolderReader::add_files(const FolderInWork& work) {
  std::size_t names_length = 0;
  listing_.drop_if([](const Entry& entry) { return entry.kind == Kind::kFolder; });
  for (const Entry& entry : listing_.entries()) names_length += entry.name_length;
  const auto listed = static_cast<std::uint32_t>(listing_.entries().size());
  if (listed == 0) return;

  auto* records = work.folder->allocate_files(arena_, listed, names_length);
  std::uint32_t kept = 0;
  std::size_t name_end = 0;
  for (Entry& entry : listing_.entries()) {
    HostStatus status;
    FileTime created;
    if (state_.ended() || !read_file_status(work, entry, status, created)) {
      entry.matches = 0;
      continue;
    }
    name_end += entry.name_length;
    records[kept++] = record_of(status, created, name_end);
    if (kept % kFilesAtATime == 0) state_.add_files(kFilesAtATime);
  }
  state_.add_files(kept % kFilesAtATime);
  if (kept < listed) {
    listing_.drop_if([](const Entry& entry) { return entry.matches == 0; });
    work.folder->keep_files(kept);
  }
  add_names(*work.folder, reinterpret_cast<char*>(records + kept));
}

bool FolderReader::read_file_status(const FolderInWork& work, const Entry& entry,
                                    HostStatus& status, FileTime& created) const {
  const char* name = listing_.host_name(entry);
  if (entry.kind == Kind::kLinkToFile) {
    const auto target = scope_.drive.follow(work.route->path_of(*work.folder), name);
    if (!target) return false;
    status = target->status;
    created = created_time(*target);
    return is_file(status);
  }
  const int folder = work.descriptor.number();
  if (!quillvane::read_status(folder, name, status) || !is_file(status)) return false;
  const auto stored = scope_.drive.is_on_ntfs() ? NtfsObject(folder, name).created() : std::nullopt;
  created = stored.value_or(created_time(status));
  return true;
}

void FolderReader::add_names(ListedFolder& folder, char* names) {
  for (const Entry& entry : listing_.entries()) {
    const std::string_view name = listing_.name(entry);
    names = std::copy(name.begin(), name.end(), names);
  }
  if (!scope_.filter.tells_matches()) return;
  std::uint32_t* matches = folder.allocate_matches(arena_);
  for (const Entry& entry : listing_.entries()) *matches++ = entry.matches;
}

}  // namespace quillvane
