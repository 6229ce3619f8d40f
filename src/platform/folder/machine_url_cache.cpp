#include "platform/folder/machine_url_cache.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <utility>

#include "support/file_date.h"

namespace quillvane {

namespace {

// "2013-03-07 09:05:00", UTC. 1601 for a text of another form.
FileTime last_access(const std::string& text) {
  DateTime date;
  const int parts = std::sscanf(text.c_str(), "%d-%d-%d %d:%d:%d", &date.year, &date.month,
                                &date.day, &date.hour, &date.minute, &date.second);
  const bool is_day =
      std::chrono::year_month_day{std::chrono::year{date.year},
                                  std::chrono::month(static_cast<unsigned>(date.month)),
                                  std::chrono::day(static_cast<unsigned>(date.day))}
          .ok();
  return parts == 6 && is_day ? file_time_of(date) : FileTime{};
}

}  // namespace

MachineUrlCache::MachineUrlCache(MachineState& state, std::function<void()> save)
    : state_(state), save_(std::move(save)) {}

std::optional<UrlCacheEntry> MachineUrlCache::find_first() {
  find_close();
  listing_ = state_.url_cache;
  open_ = true;
  return find_next();
}

std::optional<UrlCacheEntry> MachineUrlCache::find_next() {
  if (next_ >= listing_.size()) return std::nullopt;
  const MachineCacheEntry& entry = listing_[next_++];
  return UrlCacheEntry{entry.url, entry.file, last_access(entry.last_access)};
}

void MachineUrlCache::find_close() {
  listing_.clear();
  next_ = 0;
  open_ = false;
  if (unsaved_) save_();
  unsaved_ = false;
}

bool MachineUrlCache::remove(const std::string& source_url) {
  const auto entry = std::find_if(state_.url_cache.begin(), state_.url_cache.end(),
                                  [&](const MachineCacheEntry& e) { return e.url == source_url; });
  if (entry == state_.url_cache.end()) return false;
  state_.url_cache.erase(entry);
  unsaved_ = true;
  if (!open_) find_close();
  return true;
}

}  // namespace quillvane
