// A push button on the screen, drawn by the program: a command with its caption, a picture in the
// title bar, or a link.
#pragma once

#include <string>

#include "forms/buttons.h"
#include "view/win32/control_view.h"
#include "view/win32/gdi_objects.h"

namespace quillvane {

class ButtonView final : public ControlView {
 public:
  ButtonView(ViewHost& host, Clickable& button, const ControlPlace& place);

  void restyle() override;
  [[nodiscard]] int wanted_width() const override;
  [[nodiscard]] int overhang() const override;
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

  [[nodiscard]] bool is(ControlKind kind) const { return place().kind == kind; }
  [[nodiscard]] HFONT font() const;
  [[nodiscard]] std::string caption() const;
  [[nodiscard]] Look look(bool enabled, bool pressed) const;
  [[nodiscard]] Look command_look(bool enabled, bool pressed) const;
  [[nodiscard]] Look title_look(bool pressed) const;
  [[nodiscard]] Look link_look() const;
  void draw_caption(HDC dc, RECT area, const Look& look) const;
  void mouse_is_over(bool over);

  Clickable& button_;
  FontOwner link_font_;
  bool over_ = false;
};

}  // namespace quillvane
