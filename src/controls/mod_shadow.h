// Soft shadows of windows without a border, each in a window of its own.
#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "controls/shadow_picture.h"

namespace quillvane {

// A window of the system; 0 is none.
using WindowId = std::uintptr_t;

// What the shadows ask of the system. Places are pixels of the screen.
class ShadowScreen {
 public:
  virtual ~ShadowScreen() = default;

  // A layered window that takes no click, without size; 0 when it cannot be made. `host` has a
  // watch then whose messages go to modShadow::message.
  [[nodiscard]] virtual WindowId make_shadow(WindowId host) = 0;
  virtual void watch(WindowId host) = 0;
  virtual void unwatch(WindowId host) = 0;
  virtual void destroy(WindowId shadow) = 0;
  // The host's property that names its shadow ("TrickShadow").
  [[nodiscard]] virtual WindowId shadow_of(WindowId host) = 0;
  virtual void set_shadow_of(WindowId host, WindowId shadow) = 0;
  virtual void remove_shadow_of(WindowId host) = 0;
  // 32-bit values that a shadow's window keeps, by their place in bytes.
  [[nodiscard]] virtual std::int32_t extra(WindowId shadow, int place) = 0;
  virtual void set_extra(WindowId shadow, int place, std::int32_t value) = 0;
  [[nodiscard]] virtual Rect bounds(WindowId window) = 0;
  [[nodiscard]] virtual bool is_shown(WindowId window) = 0;
  [[nodiscard]] virtual bool is_minimised(WindowId window) = 0;
  // The picture's colours are multiplied by their alpha.
  virtual void set_picture(WindowId shadow, const Image& picture) = 0;
  // Puts the shadow right behind its host, and shows it.
  virtual void place(WindowId shadow, WindowId host, Point at) = 0;
  virtual void hide(WindowId shadow) = 0;
};

// modShadow: the shadows of all windows, keyed by the window that has one.
class modShadow {
 public:
  explicit modShadow(ShadowScreen& screen) : screen_(screen) {}

  // Does nothing for a window that has one.
  void create(WindowId host);
  void remove(WindowId host);
  // Out of kLeastShadow to kMostShadow nothing changes.
  void set_size(WindowId host, int size);
  void set_color(WindowId host, Color color);
  [[nodiscard]] std::optional<ShadowLook> look(WindowId host);

  // What Windows tells the host; passed on by the caller in every case. Of a command to minimise or
  // restore this is called when it has been done.
  void message(WindowId host, std::uint32_t message, std::uintptr_t w);

 private:
  [[nodiscard]] ShadowLook stored_look(WindowId shadow);
  void render(WindowId host, WindowId shadow, const ShadowLook& look);
  void follow(WindowId host, WindowId shadow);

  // What a shadow's picture was made for.
  struct Drawn {
    Size window;
    ShadowLook look;

    bool operator==(const Drawn&) const = default;
  };

  ShadowScreen& screen_;
  std::map<WindowId, Drawn> drawn_;  // by the shadow
};

}  // namespace quillvane
