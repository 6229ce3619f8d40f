// The URL cache of WinINet.
#pragma once

#include <string>

#include "platform/url_cache.h"

namespace quillvane {

class Win32UrlCache final : public UrlCache {
 public:
  Win32UrlCache() = default;
  ~Win32UrlCache() override;
  Win32UrlCache(const Win32UrlCache&) = delete;
  Win32UrlCache& operator=(const Win32UrlCache&) = delete;

  [[nodiscard]] std::optional<UrlCacheEntry> find_first() override;
  [[nodiscard]] std::optional<UrlCacheEntry> find_next() override;
  void find_close() override;
  [[nodiscard]] bool remove(const std::string& source_url) override;

 private:
  void* listing_ = nullptr;  // the open enumeration
};

}  // namespace quillvane
