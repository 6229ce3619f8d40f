#include "platform/folder/posix/folder_file_system.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <span>
#include <thread>
#include <utility>

#include "platform/folder/posix/drive_file.h"
#include "platform/folder/posix/file_attributes.h"
#include "platform/folder/posix/folder_contents.h"
#include "platform/folder/posix/folder_listing.h"
#include "platform/folder/posix/folder_walk.h"
#include "platform/folder/posix/named_file.h"
#include "platform/folder/posix/tree_scope.h"
#include "platform/unicode_case.h"
#include "platform/watched_reading.h"

namespace quillvane {

namespace {

// More threads than this only wait for each other in the host's file system.
constexpr unsigned kMostReadingThreads = 4;

unsigned worthwhile_threads() {
  return std::clamp(std::thread::hardware_concurrency(), 1U, kMostReadingThreads);
}

RemoveResult result_of(int error) {
  switch (error) {
    case ENOENT:
      return RemoveResult::kMissing;
    case EBUSY:
    case ETXTBSY:
      return RemoveResult::kInUse;
    case EIO:
      return RemoveResult::kUnreadable;
    case EROFS:
      return RemoveResult::kWriteProtected;
    default:
      return RemoveResult::kDenied;
  }
}

// What it means that a file was not found.
RemoveResult not_found(const std::string& path, int error) {
  if (!fits_path_limit(path)) return RemoveResult::kTooLong;
  return means_missing(error) ? RemoveResult::kMissing : RemoveResult::kUnreadable;
}

RemoveResult remove_name(int folder, const std::string& name) {
  return unlinkat(folder, name.c_str(), 0) == 0 ? RemoveResult::kRemoved : result_of(errno);
}

bool is_read_only(std::uint32_t attributes) { return (attributes & kAttributeReadOnly) != 0; }

// A name that is there, and what stands under it.
struct FoundFile {
  DriveFolder drive;
  HostEntry entry;
  NamedFile file;
};

// Nothing with errno as DriveFolder has it.
std::optional<FoundFile> find_named(const MachinePaths& paths, const std::string& path) {
  const auto parsed = paths.parse(path);
  if (!parsed) return missing();
  DriveFolder drive = paths.drive(parsed->drive);
  auto entry = drive.find_entry(parsed->names);
  auto file = entry ? open_named(drive, *entry) : std::nullopt;
  if (!file) return std::nullopt;
  return FoundFile{std::move(drive), std::move(*entry), std::move(*file)};
}

// A name that is free, in a folder that is there. Nothing when something bears it, be it what
// Windows does not know or a link that leads nowhere.
std::optional<HostEntry> free_name(const MachinePaths& paths, const std::string& path) {
  const auto parsed = paths.parse(path);
  if (!parsed || parsed->names.empty() || !can_be_created(parsed->names.back())) {
    return std::nullopt;
  }
  const DriveFolder drive = paths.drive(parsed->drive);
  if (drive.find_entry(parsed->names)) return std::nullopt;
  auto folder = drive.find(std::span(parsed->names).first(parsed->names.size() - 1));
  if (!folder || !is_folder(folder->status)) return std::nullopt;
  return HostEntry{std::move(*folder), parsed->names.back()};
}

bool write_new_file(const MachinePaths& paths, const std::string& path, const FillFile& fill) {
  const auto entry = free_name(paths, path);
  return entry && replace_drive_file(*entry, nullptr, fill);
}

}  // namespace

FolderFileSystem::FolderFileSystem(const MachineState& machine, unsigned reading_threads)
    : paths_(machine),
      reading_threads_(reading_threads == 0 ? worthwhile_threads() : reading_threads) {}

std::shared_ptr<const FolderTree> FolderFileSystem::read_tree_watched(const std::string& folder,
                                                                      const TreeRequest& request,
                                                                      TreeReading* watch) const {
  const auto path = paths_.parse(folder);
  if (!path || !FolderTree::can_tell(request)) return nullptr;
  const DriveFolder drive = paths_.drive(path->drive);
  const auto place = drive.find(path->names);
  if (!place || !is_folder(place->status)) return nullptr;

  const TreeScope scope(drive, request, paths_.denied());
  const std::size_t path_units = utf16_length(with_backslash(folder));
  if (!scope.can_list(path_units) || scope.is_denied(HostIdentity::of(place->status))) {
    return nullptr;
  }
  Descriptor readable = open_for_listing(*place);
  if (!readable.is_open()) return nullptr;
  auto tree = std::make_shared<FolderTree>();
  std::shared_ptr<FolderTree> given_up;  // `state` may still tell of a folder in it
  ReadingState state;
  read_watched(watch, folder, state, [&] {
    FolderWalk(scope, reading_threads_, *tree, state).read(*place, std::move(readable), path_units);
    if (reading_threads_ == 1 || !tree->left_out_links()) return;
    given_up = std::exchange(tree, std::make_shared<FolderTree>());
    FolderWalk(scope, 1, *tree, state).read(*place, open_for_listing(*place), path_units);
  });
  if (state.ended()) tree->set_ended_early();
  return tree;
}

std::vector<FolderEntry> FolderFileSystem::list_folder(const std::string& folder,
                                                       const std::string& pattern) const {
  const auto path = paths_.parse(folder);
  if (!path || !fits_path_limit(utf16_length(with_backslash(folder) + pattern))) return {};
  const DriveFolder drive = paths_.drive(path->drive);
  auto place = drive.find(path->names);
  if (!place || !is_folder(place->status)) return {};
  const auto denied = paths_.denied();
  if (std::find(denied.begin(), denied.end(), HostIdentity::of(place->status)) != denied.end()) {
    return {};
  }
  return list_entries(drive, std::move(*place), pattern);
}

std::optional<std::uint32_t> FolderFileSystem::attributes(const std::string& path) const {
  if (const auto found = find_named(paths_, path)) return found->file.attributes();
  // The drive itself has no name.
  const auto place = paths_.find(path);
  return place && place->path.empty() ? std::optional(kAttributeFolder) : std::nullopt;
}

bool FolderFileSystem::set_attributes(const std::string& path, std::uint32_t bits) {
  const auto found = find_named(paths_, path);
  if (!found || found->file.is_link()) return false;
  if (paths_.is_in_use(HostIdentity::of(found->file.named.status))) return false;
  return write_file_attributes(found->file.named, bits);
}

std::optional<std::uint64_t> FolderFileSystem::file_size(const std::string& path) const {
  if (is_just_removed(path)) return std::nullopt;
  const auto place = paths_.find(path);
  if (!place || !is_file(place->status)) return std::nullopt;
  return place->status.stx_size;
}

FileContent FolderFileSystem::read_file(const std::string& path) const {
  if (!fits_path_limit(path)) return ReadFailure::kTooLong;
  const auto parsed = paths_.parse(path);
  if (!parsed) return ReadFailure::kMissing;
  const DriveFolder drive = paths_.drive(parsed->drive);
  if (const auto place = drive.find(parsed->names)) return read_drive_file(*place);
  const int error = errno;
  if (!means_missing(error)) return read_failure(error);
  // A link that leads nowhere bears the name all the same.
  return drive.find_entry(parsed->names) ? ReadFailure::kUnreadable : ReadFailure::kMissing;
}

bool FolderFileSystem::write_file(const std::string& path, std::string_view content) {
  return put_file(path, text_of(content));
}

bool FolderFileSystem::put_file(const std::string& path, const FillFile& fill) {
  const auto found = find_named(paths_, path);
  if (!found) return write_new_file(paths_, path, fill);
  const HostPlace& old = found->file.place();
  if (!is_file(old.status) || is_read_only(read_file_attributes(old))) return false;
  if (paths_.is_in_use(HostIdentity::of(old.status))) return false;
  if (!found->file.is_link()) return replace_drive_file(found->entry, &old, fill);
  const auto entry = found->drive.entry_of(old);
  return entry && replace_drive_file(*entry, &old, fill);
}

bool FolderFileSystem::can_open(const std::string& path) const {
  const auto place = paths_.find(path);
  return place && can_read_drive_file(*place);
}

bool FolderFileSystem::rename_file(const std::string& from, const std::string& to) {
  const auto found = find_named(paths_, from);
  if (!found || !is_file(found->file.place().status)) return false;
  if (paths_.is_in_use(HostIdentity::of(found->file.place().status))) return false;
  const auto entry = free_name(paths_, to);
  if (!entry) return false;
  // A name that was taken meanwhile stays with its owner.
  return renameat2(found->entry.folder.object.number(), found->entry.name.c_str(),
                   entry->folder.object.number(), entry->name.c_str(), RENAME_NOREPLACE) == 0;
}

bool FolderFileSystem::copy_file(const std::string& from, const std::string& to) {
  const auto original = paths_.find(from);
  if (!original || !put_file(to, content_of(*original))) return false;
  // The copy is there; a time or attribute that it cannot take is left out.
  if (const auto copy = find_named(paths_, to)) {
    const auto& written = original->status.stx_mtime;
    const timespec times[] = {{0, UTIME_OMIT}, {written.tv_sec, written.tv_nsec}};
    static_cast<void>(utimensat(copy->entry.folder.object.number(), copy->entry.name.c_str(), times,
                                AT_SYMLINK_NOFOLLOW));
    static_cast<void>(write_file_attributes(copy->file.place(), read_file_attributes(*original)));
  }
  return true;
}

bool FolderFileSystem::make_folder(const std::string& path) {
  const auto entry = free_name(paths_, path);
  return entry && mkdirat(entry->folder.object.number(), entry->name.c_str(), 0777) == 0;
}

void FolderFileSystem::remove_contents(const std::string& folder) {
  const auto place = paths_.find(folder);
  if (!place || !is_folder(place->status)) return;
  remove_folder_contents(*place,
                         [this](const HostIdentity& file) { return paths_.is_in_use(file); });
}

// What is known of the file is asked for at this moment, by the handle of its folder.
RemoveResult FolderFileSystem::remove_file(const std::string& path) {
  removed_path_.clear();
  if (const HostPlace* folder = in_hand_.folder_of(path)) {
    const std::string name = FolderInHand::name_in(path);
    HostStatus status;
    if (read_status(folder->object.number(), name.c_str(), status) && is_file(status)) {
      return remove_in_hand(path, *folder, name, status);
    }
  }
  return remove_looking(path);
}

RemoveResult FolderFileSystem::remove_in_hand(const std::string& path, const HostPlace& folder,
                                              const std::string& name, const HostStatus& status) {
  if (paths_.is_in_use(HostIdentity::of(status))) return RemoveResult::kInUse;
  if (is_read_only(read_file_attributes(folder, name, status))) return RemoveResult::kDenied;
  paths_.names().forget_if_twin(folder.object.number(), name, name);
  const NameIndex::State before = paths_.names().state();
  const RemoveResult result = remove_name(folder.object.number(), name);
  if (result == RemoveResult::kRemoved) {
    removed_path_ = path;
    removed_since_ = before;
  }
  return result;
}

RemoveResult FolderFileSystem::remove_looking(const std::string& path) {
  const auto found = find_named(paths_, path);
  if (!found) return not_found(path, errno);
  const HostStatus& status = found->file.place().status;
  if (!is_file(status)) return RemoveResult::kDenied;
  if (paths_.is_in_use(HostIdentity::of(status))) return RemoveResult::kInUse;
  if (is_read_only(found->file.attributes())) return RemoveResult::kDenied;
  const int folder = found->entry.folder.object.number();
  paths_.names().forget_if_twin(folder, found->entry.name, FolderInHand::name_in(path));
  return remove_name(folder, found->entry.name);
}

// Nothing has come to any watched folder since, nor has one been moved.
bool FolderFileSystem::is_just_removed(const std::string& path) const {
  return !removed_path_.empty() && path == removed_path_ &&
         paths_.names().state() == removed_since_;
}

std::unique_ptr<MachineFiles> make_machine_files(const MachineState& machine) {
  return std::make_unique<FolderFileSystem>(machine);
}

}  // namespace quillvane
