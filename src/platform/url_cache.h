// The URL cache of the system: what Internet Explorer keeps, reached by calls of its own.
#pragma once

#include <optional>
#include <string>

#include "platform/file_time.h"

namespace quillvane {

struct UrlCacheEntry {
  std::string source_url;
  std::string local_file;  // empty when the entry has none
  FileTime last_access;    // UTC
};

class UrlCache {
 public:
  virtual ~UrlCache() = default;

  // Begins a listing and answers its first entry; nothing when the cache is empty. One listing is
  // open at a time: an open one is closed first.
  [[nodiscard]] virtual std::optional<UrlCacheEntry> find_first() = 0;
  // The next entry of the open listing; nothing behind the last one or when none is open.
  [[nodiscard]] virtual std::optional<UrlCacheEntry> find_next() = 0;
  virtual void find_close() = 0;

  // Removes an entry; the listing that is open goes on. True when it was there.
  [[nodiscard]] virtual bool remove(const std::string& source_url) = 0;
};

}  // namespace quillvane
