#include "platform/folder/win32/folder_entries.h"

#include "platform/folder/win32/held_file.h"
#include "platform/win32/file_beside.h"
#include "platform/win32/folder_listing.h"
#include "platform/win32/long_path.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

std::vector<std::wstring> names_in(const HeldPlace& folder) {
  std::vector<std::wstring> names;
  FolderListing listing(path_below(folder.path, L"*"), FolderListing::ShortNames::kNo);
  while (const WIN32_FIND_DATAW* entry = listing.next()) names.emplace_back(entry->cFileName);
  return names;
}

bool is_link(const HeldPlace& itself) {
  return (itself.status.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

}  // namespace

std::vector<HostFile> read_entries(const HostDrive& drive, const HeldPlace& folder,
                                   const ReadingState& state) {
  std::vector<HostFile> files;
  for (const std::wstring& name : names_in(folder)) {
    if (state.ended()) break;
    if (name.find(L'\\') != std::wstring::npos) continue;
    const auto place = drive.follow(folder, name, Access::kTold);
    if (!place) continue;
    const bool is_link = place->path != path_below(folder.path, name);
    files.push_back({narrow(name), place->status, is_link});
  }
  return files;
}

void remove_entries(const HeldPlace& folder, const std::function<bool(const HeldPlace&)>& is_kept) {
  for (const std::wstring& name : names_in(folder)) {
    {
      const auto below = open_itself(folder, name, Access::kListed);
      if (below && below->is_folder() && !is_link(*below)) remove_entries(*below, is_kept);
    }
    const auto place = open_itself(folder, name, Access::kRemoved);
    if (!place || is_kept(*place)) continue;
    static_cast<void>(change(*place, 0));  // a read-only file goes too
    static_cast<void>(remove_when_closed(place->handle.get()));
  }
}

}  // namespace quillvane
