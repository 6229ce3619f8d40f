#include "platform/folder/win32/host_drive.h"

#include <utility>

#include "platform/folder/windows_path.h"
#include "platform/unicode_case.h"
#include "platform/win32/folder_listing.h"
#include "platform/win32/long_path.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

bool lies_in(const std::wstring& path, const std::wstring& folder) {
  return path == folder || path.starts_with(path_below(folder, L""));
}

// The first name of the listing that differs from `name` only by case.
std::optional<std::wstring> name_of_other_case(const HeldPlace& folder, const std::string& name) {
  FolderListing listing(path_below(folder.path, L"*"), FolderListing::ShortNames::kNo);
  std::optional<std::string> found;
  std::wstring stored;
  while (const WIN32_FIND_DATAW* entry = listing.next()) {
    std::string other = narrow(entry->cFileName);
    if (!same_name(other, name) || (found && *found <= other)) continue;
    found = std::move(other);
    stored = entry->cFileName;
  }
  if (!found) return std::nullopt;
  return stored;
}

// The name as stored, for a name in any case. The host may answer to short names as well, which a
// machine folder does not know.
std::optional<std::wstring> stored_name(const HeldPlace& folder, const std::string& name) {
  const std::wstring wide = widen(name);
  // Windows would read a pattern or a stream in such a name, or cannot say it.
  if (!can_be_created(name) || narrow(wide) != name) return std::nullopt;
  FolderListing exact(path_below(folder.path, wide), FolderListing::ShortNames::kNo);
  const WIN32_FIND_DATAW* entry = exact.next();
  if (entry != nullptr && entry->cFileName == wide) return wide;
  return name_of_other_case(folder, name);
}

}  // namespace

HostDrive::HostDrive(const std::string& host_folder) {
  const auto folder = open_place(long_path(host_folder), Access::kTold, Links::kFollowed);
  if (folder && folder->is_folder()) root_ = folder->path;
}

std::optional<HeldPlace> HostDrive::open(const std::wstring& path, Access access) const {
  if (root_.empty()) return std::nullopt;
  auto place = open_place(path, access, Links::kFollowed);
  if (!place || !lies_in(place->path, root_)) return std::nullopt;
  return place;
}

std::optional<HeldPlace> HostDrive::find(std::span<const std::string> names, Access access) const {
  if (names.empty()) return open(root_, access);
  const auto entry = find_entry(names);
  return entry ? follow(entry->folder, entry->name, access) : std::nullopt;
}

std::optional<HeldEntry> HostDrive::find_entry(std::span<const std::string> names) const {
  if (names.empty()) return std::nullopt;
  auto folder = open(root_, Access::kPassed);
  for (;;) {
    if (!folder || !folder->is_folder()) return std::nullopt;
    auto name = stored_name(*folder, names.front());
    if (!name) return std::nullopt;
    if (names.size() == 1) return HeldEntry{std::move(*folder), std::move(*name)};
    // The folder stays open until the next one is.
    auto next = follow(*folder, *name, Access::kPassed);
    folder = std::move(next);
    names = names.subspan(1);
  }
}

std::optional<HeldEntry> HostDrive::entry_of(const HeldPlace& place) const {
  if (place.path == root_) return std::nullopt;
  const std::size_t slash = place.path.rfind(L'\\');
  const std::wstring above = place.path.substr(0, slash);
  auto folder = open(above.size() < root_.size() ? root_ : above, Access::kPassed);
  if (!folder || !folder->is_folder()) return std::nullopt;
  return HeldEntry{std::move(*folder), place.path.substr(slash + 1)};
}

std::optional<HeldPlace> HostDrive::follow(const HeldPlace& folder, const std::wstring& name,
                                           Access access) const {
  return open(path_below(folder.path, name), access);
}

std::optional<HeldPlace> open_itself(const HeldPlace& folder, const std::wstring& name,
                                     Access access) {
  const std::wstring path = path_below(folder.path, name);
  auto place = open_place(path, access, Links::kItself);
  if (!place) return std::nullopt;
  if (place->path != path) {
    SetLastError(ERROR_NOT_SUPPORTED);
    return std::nullopt;
  }
  return place;
}

}  // namespace quillvane
