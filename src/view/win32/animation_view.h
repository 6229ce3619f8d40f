// A moving picture on the screen, from a GIF file. It plays while it is shown. A file that is
// missing or torn shows nothing: the scan goes on without it.
#pragma once

#include <memory>
#include <vector>

#include "forms/simple_controls.h"
#include "view/win32/control_view.h"

namespace quillvane {

class AnimationView final : public ControlView {
 public:
  AnimationView(ViewHost& host, Animation& animation, const ControlPlace& place);
  ~AnimationView() override;

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  void load();
  void play(bool playing);
  void next_frame();
  void paint();

  Animation& animation_;
  std::vector<char> bytes_;  // of the file, which the picture is read from while it plays
  StreamOwner stream_;
  std::unique_ptr<Gdiplus::Bitmap> picture_;  // null: nothing to show
  std::vector<UINT> delays_ms_;               // of each frame
  std::size_t frame_ = 0;
  bool is_playing_ = false;
};

}  // namespace quillvane
