#include "platform/win32/win32_url_cache.h"

#include <windows.h>

#include <wininet.h>

#include <vector>

#include "platform/win32/wide_text.h"
#include "platform/win32/windows_time.h"

namespace quillvane {

namespace {

// Room for one entry, as large as Windows last asked for.
class EntryBuffer {
 public:
  [[nodiscard]] INTERNET_CACHE_ENTRY_INFOW* entry() {
    return reinterpret_cast<INTERNET_CACHE_ENTRY_INFOW*>(bytes_.data());
  }
  [[nodiscard]] DWORD size() const { return static_cast<DWORD>(bytes_.size()); }
  void resize(DWORD size) { bytes_.resize(size); }

  [[nodiscard]] UrlCacheEntry read() {
    const INTERNET_CACHE_ENTRY_INFOW& info = *entry();
    UrlCacheEntry result;
    if (info.lpszSourceUrlName != nullptr) result.source_url = narrow(info.lpszSourceUrlName);
    if (info.lpszLocalFileName != nullptr) result.local_file = narrow(info.lpszLocalFileName);
    result.last_access = file_time(info.LastAccessTime);
    return result;
  }

 private:
  std::vector<char> bytes_ = std::vector<char>(sizeof(INTERNET_CACHE_ENTRY_INFOW) + 4096);
};

// Calls `find(entry, size)`, a second time with the room it asks for when the first was too small.
template <typename Find>
bool find_entry(EntryBuffer& buffer, Find find) {
  DWORD size = buffer.size();
  if (find(buffer.entry(), &size)) return true;
  if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) return false;
  buffer.resize(size);
  return find(buffer.entry(), &size);
}

}  // namespace

Win32UrlCache::~Win32UrlCache() { find_close(); }

std::optional<UrlCacheEntry> Win32UrlCache::find_first() {
  find_close();
  EntryBuffer buffer;
  const bool found = find_entry(buffer, [this](INTERNET_CACHE_ENTRY_INFOW* entry, DWORD* size) {
    listing_ = FindFirstUrlCacheEntryW(nullptr, entry, size);
    return listing_ != nullptr;
  });
  if (!found) return std::nullopt;
  return buffer.read();
}

std::optional<UrlCacheEntry> Win32UrlCache::find_next() {
  if (listing_ == nullptr) return std::nullopt;
  EntryBuffer buffer;
  const bool found = find_entry(buffer, [this](INTERNET_CACHE_ENTRY_INFOW* entry, DWORD* size) {
    return FindNextUrlCacheEntryW(listing_, entry, size) != FALSE;
  });
  if (!found) return std::nullopt;
  return buffer.read();
}

void Win32UrlCache::find_close() {
  if (listing_ != nullptr) FindCloseUrlCache(listing_);
  listing_ = nullptr;
}

bool Win32UrlCache::remove(const std::string& source_url) {
  return DeleteUrlCacheEntryW(widen(source_url).c_str()) != FALSE;
}

}  // namespace quillvane
