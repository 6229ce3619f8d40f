// Measures how long the controls take to paint:
//
//   quillvane_bench_controls
//
// The whole gallery without its file, one button that the mouse comes over, and a bar that goes on
// by one step. Each line is the median of some runs; the last column is its part of the gallery.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "app/picture_tools.h"
#include "controls/bitmap_canvas.h"
#include "controls/chameleon_button.h"
#include "controls/xp_progress_bar.h"
#include "forms/window.h"
#include "platform/virtual/queued_dialogs.h"
#include "platform/virtual/virtual_loop.h"
#include "view/console/paint/gallery.h"

namespace quillvane::bench {

namespace {

// Microseconds of one of `times` calls, in the middle of `runs` of them.
double median(int runs, int times, const std::function<void()>& work) {
  using Clock = std::chrono::steady_clock;
  std::vector<double> taken;
  for (int run = 0; run < runs; ++run) {
    const auto begin = Clock::now();
    for (int i = 0; i < times; ++i) work();
    const std::chrono::duration<double, std::micro> passed = Clock::now() - begin;
    taken.push_back(passed.count() / times);
  }
  std::ranges::sort(taken);
  return taken[taken.size() / 2];
}

// A button that is painted at once whenever it asks for it.
class PaintingHost final : public ButtonHost {
 public:
  bool cursor_is_over() override { return over; }
  void capture_mouse() override {}
  void send_keys(std::string_view /*keys*/) override {}
  void set_region(const Region& /*region*/) override {}
  void redraw() override { button->paint(canvas); }
  void repaint_now() override {}
  Image background() override { return image; }

  bool over = false;
  chameleonButton* button = nullptr;
  Image image{92, 26};
  BitmapCanvas canvas{image, &picture_tools().text};
};

void tell(const char* what, double micros, double whole) {
  std::printf("%-28s %12.1f us  %8.4f\n", what, micros, micros / whole);
}

int run() {
  const auto problem = picture_tools().text.problem();
  if (problem) {
    std::fprintf(stderr, "%s\n", problem->c_str());
    return 1;
  }
  const double gallery =
      median(5, 1, [] { static_cast<void>(make_gallery(picture_tools().text)); });

  Window window("bench");
  VirtualLoop loop{FileTime{}};
  PaintingHost host;
  chameleonButton button(window, "button", {.caption = "&Scan"});
  host.button = &button;
  button.set_button_type(3);
  button.attach(host, loop);
  button.resize({92, 26});
  button.appear();
  const double hover = median(9, 200, [&] {
    host.over = !host.over;
    button.mouse_move({});
    loop.wait(std::chrono::milliseconds(3));
  });
  const double still = median(9, 10000, [&] { button.mouse_move({}); });

  EffectLog effects;
  QueuedDialogs dialogs(effects);
  Image image(600, 20);
  BitmapCanvas canvas(image, nullptr);
  Xp_ProgressBar bar(window, "bar", dialogs);
  bar.set_maximum(1'000'000);
  bar.resize(canvas, {600, 20});
  const double step = median(9, 10000, [&] {
    bar.set_value(bar.value() + 1);
    bar.draw(canvas);
  });

  tell("gallery", gallery, gallery);
  tell("a button under the mouse", hover, gallery);
  tell("a move that changes nothing", still, gallery);
  tell("a step of a bar", step, gallery);
  return gallery < 1e6 ? 0 : 1;
}

}  // namespace

}  // namespace quillvane::bench

int main() { return quillvane::bench::run(); }
