// The view's own words on a page: a heading, and below it lines that are broken where they must be.
#pragma once

#include "view/win32/control_view.h"

namespace quillvane {

// They stand in the table, and show while their model does: the page's frame, or the control behind
// them.
class NoteView final : public ControlView {
 public:
  NoteView(ViewHost& host, Control& model, const ControlPlace& place);

  [[nodiscard]] int wanted_width() const override;  // of a caption

 protected:
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  void paint();
};

}  // namespace quillvane
