// The machine behind the console: what the program works on, and what else the console needs of
// it. Time is virtual: what the windows spend waiting passes at once.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/platform.h"
#include "platform/virtual/effect_log.h"
#include "platform/virtual/queued_dialogs.h"
#include "platform/virtual/virtual_loop.h"

namespace quillvane {

class ConsoleMachine {
 public:
  // Why a machine cannot do a thing; nothing when it was done.
  using Problem = std::optional<std::string>;

  virtual ~ConsoleMachine() = default;

  // All of these live as long as the machine.
  [[nodiscard]] virtual Platform platform() = 0;
  [[nodiscard]] virtual VirtualLoop& loop() = 0;
  [[nodiscard]] virtual QueuedDialogs& dialogs() = 0;
  [[nodiscard]] virtual EffectLog& effects() = 0;

  // Another way to the machine's registry, for a thread beside the one that works on the platform;
  // null when it cannot be opened.
  [[nodiscard]] virtual std::unique_ptr<Registry> another_registry() = 0;

  // What a script sets up before the windows are made. It holds for as long as this object; nothing
  // of it is stored.
  [[nodiscard]] virtual Problem set_environment(const std::string& name,
                                                const std::string& value) = 0;
  [[nodiscard]] virtual Problem add_process(std::uint32_t id, const std::string& name) = 0;
  [[nodiscard]] virtual Problem add_in_use(const std::string& path) = 0;
  [[nodiscard]] virtual Problem add_denied(const std::string& folder) = 0;
  [[nodiscard]] virtual Problem add_url_cache_entry(const std::string& url,
                                                    const std::string& file) = 0;
  [[nodiscard]] virtual Problem add_window(const std::string& title) = 0;
};

}  // namespace quillvane
