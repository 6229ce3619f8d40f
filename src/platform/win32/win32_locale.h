// The regional settings of this PC's user.
#pragma once

#include "platform/locale.h"

namespace quillvane {

class Win32Locale final : public LocaleSettings {
 public:
  [[nodiscard]] std::optional<std::string> text(int type) const override;
};

}  // namespace quillvane
