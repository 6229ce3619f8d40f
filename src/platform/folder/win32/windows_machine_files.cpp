#include "platform/folder/win32/windows_machine_files.h"

#include <algorithm>
#include <utility>

#include "platform/folder/collected_names.h"
#include "platform/folder/machine_path.h"
#include "platform/folder/name_filter.h"
#include "platform/folder/win32/folder_entries.h"
#include "platform/folder/win32/held_file.h"
#include "platform/folder/win32/tree_walk.h"
#include "platform/unicode_case.h"
#include "platform/watched_reading.h"
#include "platform/win32/disk_error.h"
#include "platform/win32/file_content.h"
#include "platform/win32/long_path.h"
#include "platform/win32/windows_time.h"

namespace quillvane {

namespace {

std::uint64_t size_of(const HostStatus& status) {
  return std::uint64_t{status.nFileSizeHigh} << 32U | status.nFileSizeLow;
}

// Those of a link say no more than whether it leads to a folder: its target's are not its own.
std::uint32_t named_attributes(const HostStatus& status, bool is_link) {
  if (!is_link) return machine_attributes(status);
  return is_folder(status) ? kAttributeFolder : kAttributeArchive;
}

FolderEntry entry_of(const HostFile& file) {
  const HostStatus& status = file.status;
  return {file.name,
          named_attributes(status, file.is_link),
          is_folder(status) ? 0 : size_of(status),
          file_time(status.ftCreationTime),
          file_time(status.ftLastAccessTime),
          file_time(status.ftLastWriteTime)};
}

bool contains(const std::vector<HostIdentity>& places, const HeldPlace& place) {
  return std::find(places.begin(), places.end(), HostIdentity::of(place.status)) != places.end();
}

}  // namespace

bool WindowsMachineFiles::Named::is_link() const {
  return target.path != path_below(entry.folder.path, entry.name);
}

std::optional<HeldPlace> WindowsMachineFiles::Named::open(Access access) const {
  return open_itself(entry.folder, entry.name, access);
}

HostDrive WindowsMachineFiles::drive(const WindowsPath& path) const {
  return HostDrive(drive_host_folder(machine_, path.drive));
}

std::optional<HeldPlace> WindowsMachineFiles::find(const std::string& path, Access access) const {
  const auto parsed = parse_machine_path(machine_, path);
  return parsed ? drive(*parsed).find(parsed->names, access) : std::nullopt;
}

std::optional<WindowsMachineFiles::Named> WindowsMachineFiles::find_named(
    const std::string& path) const {
  const auto parsed = parse_machine_path(machine_, path);
  if (!parsed) return std::nullopt;
  HostDrive on = drive(*parsed);
  auto entry = on.find_entry(parsed->names);
  auto target = entry ? on.follow(entry->folder, entry->name, Access::kTold) : std::nullopt;
  if (!target) return std::nullopt;
  return Named{std::move(on), std::move(*entry), std::move(*target)};
}

bool WindowsMachineFiles::is_in_use(const HeldPlace& file) const {
  return std::any_of(machine_.in_use.begin(), machine_.in_use.end(), [&](const std::string& path) {
    const auto place = find(path, Access::kTold);
    return place && HostIdentity::of(place->status) == HostIdentity::of(file.status);
  });
}

std::vector<HostIdentity> WindowsMachineFiles::denied() const {
  std::vector<HostIdentity> folders;
  for (const std::string& path : machine_.denied) {
    const auto place = find(path, Access::kTold);
    if (place) folders.push_back(HostIdentity::of(place->status));
  }
  return folders;
}

std::shared_ptr<const FolderTree> WindowsMachineFiles::read_tree_watched(const std::string& folder,
                                                                         const TreeRequest& request,
                                                                         TreeReading* watch) const {
  const auto path = parse_machine_path(machine_, folder);
  if (!path || !FolderTree::can_tell(request)) return nullptr;
  const HostDrive on = drive(*path);
  const auto place = on.find(path->names, Access::kListed);
  const auto denied_folders = denied();
  if (!place || !place->is_folder() || contains(denied_folders, *place)) return nullptr;

  const TreePatterns looked_for(request);
  const std::size_t path_units = utf16_length(with_backslash(folder));
  if (!looked_for.can_list(path_units)) return nullptr;
  auto tree = std::make_shared<FolderTree>();
  ReadingState state;
  read_watched(watch, folder, state, [&] {
    TreeWalk(on, looked_for, denied_folders, *tree, state).read(*place, path_units);
  });
  if (state.ended()) tree->set_ended_early();
  return tree;
}

std::vector<FolderEntry> WindowsMachineFiles::list_folder(const std::string& folder,
                                                          const std::string& pattern) const {
  const auto path = parse_machine_path(machine_, folder);
  if (!path || !fits_path_limit(utf16_length(with_backslash(folder) + pattern))) return {};
  const HostDrive on = drive(*path);
  const auto place = on.find(path->names, Access::kListed);
  if (!place || !place->is_folder() || contains(denied(), *place)) return {};

  ReadingState whole;
  std::vector<HostFile> files = read_entries(on, *place, whole);
  CollectedNames names;
  for (const HostFile& file : files) {
    names.add(file.name,
              is_folder(file.status) ? NameListing::Kind::kFolder : NameListing::Kind::kFile);
  }
  NameFilter({pattern}, NameFilter::Folders::kMatched).apply(names, 0);
  const auto by_name = [](const HostFile& left, const HostFile& right) {
    return left.name < right.name;
  };
  std::sort(files.begin(), files.end(), by_name);
  std::vector<FolderEntry> entries;
  for (const auto& entry : names.entries()) {
    const HostFile wanted{std::string(names.name(entry)), {}, false};
    entries.push_back(entry_of(*std::lower_bound(files.begin(), files.end(), wanted, by_name)));
  }
  return entries;
}

std::optional<std::uint32_t> WindowsMachineFiles::attributes(const std::string& path) const {
  if (const auto found = find_named(path)) {
    return named_attributes(found->target.status, found->is_link());
  }
  // The drive itself has no name.
  const auto parsed = parse_machine_path(machine_, path);
  const bool is_drive =
      parsed && parsed->names.empty() && drive(*parsed).find({}, Access::kTold).has_value();
  return is_drive ? std::optional(kAttributeFolder) : std::nullopt;
}

std::optional<std::uint64_t> WindowsMachineFiles::file_size(const std::string& path) const {
  const auto place = find(path, Access::kTold);
  if (!place || place->is_folder()) return std::nullopt;
  return size_of(place->status);
}

FileContent WindowsMachineFiles::read_file(const std::string& path) const {
  if (!fits_path_limit(path)) return ReadFailure::kTooLong;
  const auto parsed = parse_machine_path(machine_, path);
  if (!parsed) return ReadFailure::kMissing;
  const HostDrive on = drive(*parsed);
  SetLastError(ERROR_FILE_NOT_FOUND);  // what stands when the search ends without an error
  const auto not_found = [] {
    const DWORD error = GetLastError();
    return cannot_be_told(error) ? read_failure(error) : ReadFailure::kMissing;
  };
  if (parsed->names.empty()) {
    return on.find({}, Access::kTold) ? ReadFailure::kFolder : not_found();
  }
  const auto entry = on.find_entry(parsed->names);
  if (!entry) return not_found();
  if (const auto place = on.follow(entry->folder, entry->name, Access::kRead)) {
    return read_content(*place);
  }
  // A link that leads nowhere bears the name all the same.
  const ReadFailure failure = read_failure(GetLastError());
  return failure == ReadFailure::kMissing ? ReadFailure::kUnreadable : failure;
}

bool WindowsMachineFiles::can_open(const std::string& path) const {
  const auto place = find(path, Access::kRead);
  return place && !place->is_folder();
}

std::unique_ptr<MachineFiles> make_machine_files(const MachineState& machine) {
  return std::make_unique<WindowsMachineFiles>(machine);
}

}  // namespace quillvane
