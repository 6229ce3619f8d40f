// What changes the files of a machine folder on Windows.
#include <algorithm>
#include <span>
#include <utility>

#include "platform/folder/machine_path.h"
#include "platform/folder/win32/folder_entries.h"
#include "platform/folder/win32/held_file.h"
#include "platform/folder/win32/windows_machine_files.h"
#include "platform/win32/disk_error.h"
#include "platform/win32/file_beside.h"
#include "platform/win32/long_path.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

bool is_read_only(std::uint32_t attributes) { return (attributes & kAttributeReadOnly) != 0; }

// Why a file was not found that is in no listing, as the system's last error has it. Looking
// through a listing to its end is no error.
RemoveResult not_found(const std::string& path, DWORD error) {
  if (!fits_path_limit(path)) return RemoveResult::kTooLong;
  return cannot_be_told(error) ? RemoveResult::kUnreadable : RemoveResult::kMissing;
}

// What stands in the way of a file that was refused for removal.
RemoveResult refused(DWORD error) {
  if (error != ERROR_ACCESS_DENIED && cannot_be_told(error)) return RemoveResult::kUnreadable;
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return RemoveResult::kMissing;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return RemoveResult::kInUse;
    case ERROR_WRITE_PROTECT:
      return RemoveResult::kWriteProtected;
    default:
      return RemoveResult::kDenied;
  }
}

}  // namespace

std::optional<HeldEntry> WindowsMachineFiles::free_name(const std::string& path) const {
  const auto parsed = parse_machine_path(machine_, path);
  if (!parsed || parsed->names.empty()) return std::nullopt;
  const std::string& name = parsed->names.back();
  const std::wstring wide = widen(name);
  if (!can_be_created(name) || narrow(wide) != name) return std::nullopt;
  const HostDrive on = drive(*parsed);
  if (on.find_entry(parsed->names)) return std::nullopt;
  auto folder = on.find(std::span(parsed->names).first(parsed->names.size() - 1), Access::kPassed);
  if (!folder || !folder->is_folder()) return std::nullopt;
  return HeldEntry{std::move(*folder), wide};
}

bool WindowsMachineFiles::set_attributes(const std::string& path, std::uint32_t bits) {
  const auto found = find_named(path);
  if (!found || found->is_link() || is_in_use(found->target)) return false;
  const auto file = found->open(Access::kChanged);
  return file && change(*file, bits);
}

bool WindowsMachineFiles::write_file(const std::string& path, std::string_view content) {
  if (auto found = find_named(path)) return replace_file(std::move(*found), content);
  const auto entry = free_name(path);
  return entry && put_file(*entry, Taken::kFails, kAttributeArchive, content);
}

bool WindowsMachineFiles::replace_file(Named old, std::string_view content) {
  const std::uint32_t attributes = machine_attributes(old.target.status);
  if (old.target.is_folder() || is_read_only(attributes) || is_in_use(old.target)) return false;
  auto entry = old.is_link() ? old.drive.entry_of(old.target) : std::move(old.entry);
  old.target.handle = {};  // a file that is open cannot be replaced
  return entry && put_file(*entry, Taken::kIsReplaced, attributes, content);
}

bool WindowsMachineFiles::rename_file(const std::string& from, const std::string& to) {
  const auto found = find_named(from);
  if (!found || found->target.is_folder() || is_in_use(found->target)) return false;
  const auto entry = free_name(to);
  const auto file = entry ? found->open(Access::kMoved) : std::nullopt;
  // A name that was taken meanwhile stays with its owner.
  return file && move_to(file->handle.get(), entry->folder, entry->name, Taken::kFails);
}

bool WindowsMachineFiles::copy_file(const std::string& from, const std::string& to) {
  const auto original = find(from, Access::kRead);
  const FileContent content = original ? read_content(*original) : ReadFailure::kMissing;
  if (!content || !write_file(to, *content)) return false;
  // The copy is there; a time or attribute that it cannot take is left out.
  if (const auto copy = find(to, Access::kChanged)) {
    static_cast<void>(
        change(*copy, machine_attributes(original->status), original->status.ftLastWriteTime));
  }
  return true;
}

bool WindowsMachineFiles::make_folder(const std::string& path) {
  const auto entry = free_name(path);
  return entry && CreateDirectoryW(path_below(entry->folder.path, entry->name).c_str(), nullptr);
}

RemoveResult WindowsMachineFiles::remove_file(const std::string& path) {
  SetLastError(ERROR_SUCCESS);
  const auto found = find_named(path);
  if (!found) return not_found(path, GetLastError());
  if (found->target.is_folder()) return RemoveResult::kDenied;
  if (is_in_use(found->target)) return RemoveResult::kInUse;
  if (!found->is_link() && is_read_only(found->target.status.dwFileAttributes)) {
    return RemoveResult::kDenied;
  }
  const auto file = found->open(Access::kMoved);  // a folder's rights alone may allow that
  if (!file) return refused(GetLastError());
  // A program that runs can be opened for removal, but nothing more.
  return remove_when_closed(file->handle.get()) ? RemoveResult::kRemoved : RemoveResult::kInUse;
}

void WindowsMachineFiles::remove_contents(const std::string& folder) {
  const auto place = find(folder, Access::kListed);
  if (!place || !place->is_folder()) return;
  remove_entries(*place, [this](const HeldPlace& file) { return is_in_use(file); });
}

}  // namespace quillvane
