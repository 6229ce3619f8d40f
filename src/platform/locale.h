// The user's regional settings.
#pragma once

#include <optional>
#include <string>

namespace quillvane {

class LocaleSettings {
 public:
  virtual ~LocaleSettings() = default;

  // The setting that Windows knows by this number (LOCALE_S..., LOCALE_I...), numbers as their
  // digits; nothing when there is none of that number.
  [[nodiscard]] virtual std::optional<std::string> text(int type) const = 0;
};

}  // namespace quillvane
