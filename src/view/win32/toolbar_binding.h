// A tool bar on the screen: pictures without text.
#pragma once

#include "forms/toolbar.h"
#include "view/win32/control_view.h"

namespace quillvane {

class ToolbarBinding final : public ControlView {
 public:
  ToolbarBinding(ViewHost& host, Toolbar& bar, const ControlPlace& place);

  void restyle() override;
  [[nodiscard]] int wanted_width() const override;
  bool press() override;
  void commanded(int code) override;
  std::optional<LRESULT> notified(NMHDR& header) override;

  // Windows tells a press by the button's own number, which begins here.
  static constexpr int kFirstCommand = 1000;

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  void add_buttons();
  void show_states();
  void move_hot(int step);  // to the next button that can be pressed
  void click(int number);

  Toolbar& bar_;
  ImageListOwner images_;
  ImageListOwner gray_images_;
};

}  // namespace quillvane
