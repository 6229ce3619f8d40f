// The machine host of this build; the build picks the source.
#pragma once

#include <memory>

#include "view/console/machine_host.h"

namespace quillvane {

[[nodiscard]] std::unique_ptr<MachineHost> make_machine_host();

}  // namespace quillvane
