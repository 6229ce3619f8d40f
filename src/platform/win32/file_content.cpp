#include "platform/win32/file_content.h"

#include <algorithm>
#include <limits>

#include "platform/win32/file_beside.h"
#include "platform/win32/system_handle.h"

namespace quillvane {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;
}  // namespace

std::optional<std::string> read_to_end(HANDLE file, std::uint64_t most) {
  std::string content;
  std::size_t length = 0;
  for (;;) {
    content.resize(length + kBlockBytes);
    DWORD read = 0;
    if (!ReadFile(file, content.data() + length, static_cast<DWORD>(kBlockBytes), &read, nullptr)) {
      return std::nullopt;
    }
    length += read;
    if (length > most) return std::nullopt;
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

std::optional<std::string> read_whole_file(const std::wstring& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (!file.is_valid()) return std::nullopt;
  return read_to_end(file.get(), std::numeric_limits<std::uint64_t>::max());
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
