// Makes what draws a control.
#pragma once

#include <memory>

#include "view/win32/control_view.h"

namespace quillvane {

// Null when the model is not of the kind that the table says.
[[nodiscard]] std::unique_ptr<ControlView> make_control_view(ViewHost& host, Control& model,
                                                             const ControlPlace& place);

}  // namespace quillvane
