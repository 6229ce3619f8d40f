// Boxes with a tick, and choices, with their captions on the screen.
#pragma once

#include "forms/buttons.h"
#include "view/win32/control_view.h"
#include "view/win32/gdi_objects.h"

namespace quillvane {

// A press of Enter is left to the window's default button. The tick is the model's: a click asks
// the model, and what it then holds is drawn.
class CheckBoxView final : public ControlView {
 public:
  CheckBoxView(ViewHost& host, CheckBox& box, const ControlPlace& place);

  void commanded(int code) override;
  HBRUSH prepare(HDC dc) override;

 protected:
  void show_changes(const Changes& changes) override;

 private:
  CheckBox& box_;
  BrushOwner page_;
};

// One of a group of choices. The choice is the model's too.
class OptionView final : public ControlView {
 public:
  OptionView(ViewHost& host, OptionButton& option, const ControlPlace& place);

  [[nodiscard]] int wanted_width() const override;
  void commanded(int code) override;
  HBRUSH prepare(HDC dc) override;

 protected:
  void show_changes(const Changes& changes) override;

 private:
  OptionButton& option_;
  BrushOwner page_;
};

}  // namespace quillvane
