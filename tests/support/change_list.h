// What a control told its observers, in order.
#pragma once

#include <vector>

#include "forms/control.h"

namespace quillvane {

class ChangeList final : public ControlObserver {
 public:
  void changed(Control&, Change what) override { changes.push_back(what); }

  std::vector<Change> changes;
};

}  // namespace quillvane
