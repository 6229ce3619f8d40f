// The URL cache that a machine folder plays: the list of its machine.json, in that order.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "platform/folder/machine_state.h"
#include "platform/url_cache.h"

namespace quillvane {

class MachineUrlCache final : public UrlCache {
 public:
  // A removed entry leaves `state` and, through `save`, machine.json: when the listing in which it
  // was removed is closed, otherwise at once. Its file stays.
  MachineUrlCache(MachineState& state, std::function<void()> save);

  [[nodiscard]] std::optional<UrlCacheEntry> find_first() override;
  [[nodiscard]] std::optional<UrlCacheEntry> find_next() override;
  void find_close() override;
  [[nodiscard]] bool remove(const std::string& source_url) override;

 private:
  MachineState& state_;
  std::function<void()> save_;
  bool unsaved_ = false;                    // entries were removed since the last saving
  bool open_ = false;                       // a listing is
  std::vector<MachineCacheEntry> listing_;  // as it stood when it was begun
  std::size_t next_ = 0;
};

}  // namespace quillvane
