// Tabs of a model on the screen.
#pragma once

#include "forms/tabs.h"
#include "view/win32/control_view.h"

namespace quillvane {

// Which tab is chosen is the model's: a click asks the model, and what it then holds is drawn.
class TabsView final : public ControlView {
 public:
  TabsView(ViewHost& host, Tabs& tabs, const ControlPlace& place);

  void restyle() override;
  std::optional<LRESULT> notified(NMHDR& header) override;

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  Tabs& tabs_;
};

}  // namespace quillvane
