// The regional settings of a machine folder: those of the United States.
#pragma once

#include "platform/locale.h"

namespace quillvane {

class MachineLocale final : public LocaleSettings {
 public:
  [[nodiscard]] std::optional<std::string> text(int type) const override;
};

}  // namespace quillvane
