#include "platform/win32/file_content.h"

#include <algorithm>

#include "platform/win32/file_beside.h"
#include "platform/win32/system_handle.h"

namespace quillvane {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

}  // namespace

ReadFailure read_failure(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_NO_MORE_FILES:
      return ReadFailure::kMissing;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return ReadFailure::kInUse;
    case ERROR_ACCESS_DENIED:
      return ReadFailure::kDenied;
    default:
      return ReadFailure::kUnreadable;
  }
}

FileContent read_to_end(HANDLE file, std::uint64_t most) {
  std::string content;
  std::size_t length = 0;
  for (;;) {
    content.resize(length + kBlockBytes);
    DWORD read = 0;
    if (!ReadFile(file, content.data() + length, static_cast<DWORD>(kBlockBytes), &read, nullptr)) {
      return read_failure(GetLastError());
    }
    length += read;
    if (length > most) return ReadFailure::kTooLarge;
    if (read == 0) break;
  }
  content.resize(length);
  return content;
}

bool write_to_disk(HANDLE file, std::string_view content) {
  while (!content.empty()) {
    const auto wanted = static_cast<DWORD>(std::min(content.size(), kBlockBytes));
    DWORD written = 0;
    if (!WriteFile(file, content.data(), wanted, &written, nullptr) || written == 0) return false;
    content.remove_prefix(written);
  }
  return FlushFileBuffers(file) != 0;
}

FileContent read_whole_file(const std::wstring& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (file.is_valid()) return read_to_end(file.get());
  const ReadFailure failure = read_failure(GetLastError());
  // What bears the name all the same is a folder, or a link that leads nowhere.
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return failure;
  if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) ==
      FILE_ATTRIBUTE_DIRECTORY) {
    return ReadFailure::kFolder;
  }
  return failure == ReadFailure::kMissing ? ReadFailure::kUnreadable : failure;
}

bool replace_whole_file(const std::wstring& path, std::string_view content) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    return false;
  }
  const FileBeside beside = make_file_beside(path.substr(0, path.find_last_of(L"\\/") + 1));
  if (!beside.file.is_valid()) return false;
  if (write_to_disk(beside.file.get(), content) && move_file(beside.file.get(), path, true)) {
    FlushFileBuffers(beside.file.get());  // the name lasts too
    return true;
  }
  const DWORD why = GetLastError();
  static_cast<void>(remove_when_closed(beside.file.get()));
  SetLastError(why);
  return false;
}

}  // namespace quillvane
