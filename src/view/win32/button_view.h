// A push button on the screen, drawn by the program: a command with its caption, or a picture in
// the title bar.
#pragma once

#include "forms/buttons.h"
#include "view/win32/control_view.h"

namespace quillvane {

class ButtonView final : public ControlView {
 public:
  ButtonView(ViewHost& host, Clickable& button, const ControlPlace& place);

  [[nodiscard]] int wanted_width() const override;
  bool press() override;
  void commanded(int code) override;
  void draw(const DRAWITEMSTRUCT& item) override;

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  struct Look {
    COLORREF back;
    COLORREF edge;
    COLORREF text;
  };

  [[nodiscard]] bool in_title() const { return place().kind == ControlKind::kTitleButton; }
  [[nodiscard]] Look command_look(bool enabled, bool pressed) const;
  [[nodiscard]] Look title_look(bool pressed) const;
  void draw_caption(HDC dc, RECT area, const Look& look) const;
  void mouse_is_over(bool over);

  Clickable& button_;
  bool over_ = false;
};

}  // namespace quillvane
