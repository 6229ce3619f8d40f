#include "platform/win32/win32_file_system.h"

#include <windows.h>

#include "platform/watched_reading.h"
#include "platform/win32/disk_error.h"
#include "platform/win32/file_content.h"
#include "platform/win32/folder_listing.h"
#include "platform/win32/tree_reader.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_path.h"
#include "platform/win32/windows_time.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kSettableAttributes =
    kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeArchive;

std::uint64_t joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; }

struct FileStatus {
  DWORD attributes;
  std::uint64_t size;
};

// A file that waits for its removal, or that the system keeps for itself, cannot be asked; its
// folder lists it all the same.
std::optional<FileStatus> status_of(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) {
    return FileStatus{data.dwFileAttributes, joined(data.nFileSizeHigh, data.nFileSizeLow)};
  }
  const DWORD error = GetLastError();
  if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) return std::nullopt;
  WIN32_FIND_DATAW listed;
  const HANDLE found = FindFirstFileW(path.c_str(), &listed);
  if (found == INVALID_HANDLE_VALUE) return std::nullopt;
  FindClose(found);
  return FileStatus{listed.dwFileAttributes, joined(listed.nFileSizeHigh, listed.nFileSizeLow)};
}

FolderEntry folder_entry(const WIN32_FIND_DATAW& entry) {
  return {narrow(entry.cFileName),
          entry.dwFileAttributes,
          joined(entry.nFileSizeHigh, entry.nFileSizeLow),
          file_time(entry.ftCreationTime),
          file_time(entry.ftLastAccessTime),
          file_time(entry.ftLastWriteTime)};
}

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// The path, unless it means another file than it says: Windows drops blanks and dots at the end of
// a name.
std::optional<std::wstring> exact_path(const std::string& path) {
  auto wide = openable_path(path);
  if (wide && (wide->back() == L'.' || wide->back() == L' ')) return std::nullopt;
  return wide;
}

// What becomes of a removal whose path has no exact_path. A name that ends in a blank or a dot may
// be there, made by a program that goes around these rules.
RemoveResult not_opened(const std::string& path) {
  if (!is_usable_path(path)) return RemoveResult::kMissing;
  return openable_path(path) ? RemoveResult::kUnreadable : RemoveResult::kTooLong;
}

bool has_attribute(const std::wstring& path, DWORD attribute) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

// What a refused deletion means. A program that runs can be opened for deletion, but not deleted;
// Windows calls that "access denied" although nothing but the program stands in the way.
RemoveResult refused(const std::wstring& path) {
  const auto status = status_of(path);
  if (!status) return RemoveResult::kUnreadable;
  if ((status->attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) {
    return RemoveResult::kDenied;
  }
  const FileHandle file(
      CreateFileW(path.c_str(), DELETE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
  return file.is_valid() ? RemoveResult::kInUse : RemoveResult::kDenied;
}

}  // namespace

std::shared_ptr<const FolderTree> Win32FileSystem::read_tree_watched(const std::string& folder,
                                                                     const TreeRequest& request,
                                                                     TreeReading* watch) const {
  auto prefix = folder_prefix(folder);
  if (!prefix || request.patterns.empty() || !FolderTree::can_tell(request)) return nullptr;
  auto tree = std::make_shared<FolderTree>();
  ReadingState state;
  TreeReader reader(request, *tree, state);
  bool could_be_listed = false;
  read_watched(watch, folder, state, [&] { could_be_listed = reader.read(std::move(*prefix)); });
  if (!could_be_listed) return nullptr;
  if (state.ended()) tree->set_ended_early();
  return tree;
}

std::vector<FolderEntry> Win32FileSystem::list_folder(const std::string& folder,
                                                      const std::string& pattern) const {
  const auto prefix = folder_prefix(folder);
  // A pattern is for names; with a separator Windows would look in another folder.
  if (!prefix || pattern.find_first_of(std::string_view("\\/\0", 3)) != std::string::npos)
    return {};
  const std::wstring search = *prefix + widen(pattern);
  if (search.size() >= kPathLimit) return {};

  std::vector<FolderEntry> entries;
  FolderListing listing(search, FolderListing::ShortNames::kNo);
  while (const WIN32_FIND_DATAW* entry = listing.next()) entries.push_back(folder_entry(*entry));
  return entries;
}

std::optional<std::uint32_t> Win32FileSystem::attributes(const std::string& path) const {
  const auto wide = openable_path(path);
  if (!wide) return std::nullopt;
  const auto status = status_of(*wide);
  if (!status) return std::nullopt;
  return status->attributes;
}

bool Win32FileSystem::set_attributes(const std::string& path, std::uint32_t bits) {
  const auto wide = openable_path(path);
  const DWORD settable = bits & kSettableAttributes;
  return wide &&
         SetFileAttributesW(wide->c_str(), settable == 0 ? kAttributeNormal : settable) != 0;
}

std::optional<std::uint64_t> Win32FileSystem::file_size(const std::string& path) const {
  const auto wide = openable_path(path);
  const auto status = wide ? status_of(*wide) : std::nullopt;
  if (!status || (status->attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
  return status->size;
}

FileContent Win32FileSystem::read_file(const std::string& path) const {
  const auto wide = openable_path(path);
  if (wide) return read_whole_file(*wide);
  return widen(path).size() >= kPathLimit ? ReadFailure::kTooLong : ReadFailure::kMissing;
}

bool Win32FileSystem::write_file(const std::string& path, std::string_view content) {
  const auto wide = openable_path(path);
  return wide && replace_whole_file(*wide, content);
}

bool Win32FileSystem::can_open(const std::string& path) const {
  const auto wide = openable_path(path);
  if (!wide) return false;
  const FileHandle file(
      CreateFileW(wide->c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
  return file.is_valid();
}

bool Win32FileSystem::rename_file(const std::string& from, const std::string& to) {
  const auto wide_from = exact_path(from);
  const auto wide_to = exact_path(to);
  return wide_from && wide_to && !has_attribute(*wide_from, FILE_ATTRIBUTE_DIRECTORY) &&
         MoveFileExW(wide_from->c_str(), wide_to->c_str(), /*dwFlags=*/0) != 0;
}

bool Win32FileSystem::copy_file(const std::string& from, const std::string& to) {
  const auto wide_from = exact_path(from);
  const auto wide_to = exact_path(to);
  // Not every disk keeps a copy from a read-only file by itself.
  return wide_from && wide_to && !has_attribute(*wide_to, FILE_ATTRIBUTE_READONLY) &&
         CopyFileW(wide_from->c_str(), wide_to->c_str(), /*bFailIfExists=*/FALSE) != 0;
}

bool Win32FileSystem::make_folder(const std::string& path) {
  const auto wide = exact_path(path);
  return wide && CreateDirectoryW(wide->c_str(), nullptr) != 0;
}

RemoveResult Win32FileSystem::remove_file(const std::string& path) {
  const auto wide = exact_path(path);
  if (!wide) return not_opened(path);
  if (DeleteFileW(wide->c_str())) return RemoveResult::kRemoved;
  const DWORD error = GetLastError();
  if (error != ERROR_ACCESS_DENIED && cannot_be_told(error)) return RemoveResult::kUnreadable;
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
      return RemoveResult::kMissing;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return RemoveResult::kInUse;
    case ERROR_WRITE_PROTECT:
      return RemoveResult::kWriteProtected;
    default:
      return refused(*wide);
  }
}

}  // namespace quillvane
