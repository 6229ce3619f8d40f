#include "platform/folder/win32/held_file.h"

#include <utility>

#include "platform/file_system.h"
#include "platform/win32/file_beside.h"
#include "platform/win32/file_content.h"
#include "platform/win32/long_path.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kSettable =
    kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeArchive;

bool change_basics(HANDLE handle, std::uint32_t attributes, std::optional<FILETIME> written) {
  FILE_BASIC_INFO info{};  // what is 0 stays as it is
  attributes &= kSettable;
  info.FileAttributes = attributes == 0 ? kAttributeNormal : attributes;
  if (written) {
    info.LastWriteTime.LowPart = written->dwLowDateTime;
    info.LastWriteTime.HighPart = static_cast<LONG>(written->dwHighDateTime);
  }
  return SetFileInformationByHandle(handle, FileBasicInfo, &info, sizeof info) != 0;
}

// Not valid when none can be made there.
FileHandle make_beside(const HeldPlace& folder) {
  FileBeside beside = make_file_beside(path_below(folder.path, L""));
  if (beside.file.is_valid() && place_of(beside.file.get()) != beside.path) {
    // Made elsewhere: something has been put in the way.
    static_cast<void>(remove_when_closed(beside.file.get()));
    return {};
  }
  return std::move(beside.file);
}

}  // namespace

std::uint32_t machine_attributes(const HostStatus& status) {
  const std::uint32_t kind = is_folder(status) ? kAttributeFolder : 0;
  const std::uint32_t bits = (status.dwFileAttributes & kSettable) | kind;
  return bits == 0 ? kAttributeNormal : bits;
}

bool change(const HeldPlace& place, std::uint32_t attributes, std::optional<FILETIME> written) {
  return change_basics(place.handle.get(), attributes, written);
}

bool move_to(HANDLE file, const HeldPlace& folder, const std::wstring& name, Taken taken) {
  return move_file(file, path_below(folder.path, name), taken == Taken::kIsReplaced);
}

FileContent read_content(const HeldPlace& file) {
  if (file.is_folder()) return ReadFailure::kFolder;
  const auto& status = file.status;
  if ((std::uint64_t{status.nFileSizeHigh} << 32U | status.nFileSizeLow) > kMostFileContent) {
    return ReadFailure::kTooLarge;
  }
  return read_to_end(file.handle.get());
}

bool put_file(const HeldEntry& entry, Taken taken, std::uint32_t attributes,
              std::string_view content) {
  const FileHandle beside = make_beside(entry.folder);
  if (!beside.is_valid()) return false;
  const bool done = write_to_disk(beside.get(), content) &&
                    change_basics(beside.get(), attributes, std::nullopt) &&
                    move_to(beside.get(), entry.folder, entry.name, taken);
  if (!done) static_cast<void>(remove_when_closed(beside.get()));
  return done;
}

}  // namespace quillvane
