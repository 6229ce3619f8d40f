// A line of text that the user types, on the screen. It stands in the middle of its frame, for
// which the view draws what is around it: by itself the control has its line at the top.
#pragma once

#include <string>

#include "forms/text_box.h"
#include "view/win32/control_view.h"
#include "view/win32/gdi_objects.h"

namespace quillvane {

class EditView final : public ControlView {
 public:
  EditView(ViewHost& host, TextBox& box, const ControlPlace& place);

  void commanded(int code) override;
  HBRUSH prepare(HDC dc) override;

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  void keep_room(RECT& line) const;
  void paint_frame() const;

  TextBox& box_;
  // What model and control last agreed on. The user may have typed on since the model was told:
  // then the control is ahead, and nothing is drawn over it.
  std::string agreed_;
  BrushOwner ground_;
};

}  // namespace quillvane
