// Gives its window a shape, lets it be dragged by its body, and pops up the system menu.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "controls/property_store.h"
#include "controls/shapes.h"
#include "platform/dialogs.h"

namespace quillvane {

// What a TransForm asks of its window. Places are pixels.
class TransFormHost {
 public:
  virtual ~TransFormHost() = default;

  // The picture that the window lies on; null without one.
  [[nodiscard]] virtual const Image* picture() = 0;
  [[nodiscard]] virtual bool has_caption() = 0;
  // Its unit of measure.
  [[nodiscard]] virtual float scale_width() = 0;
  virtual void set_scale_width(float width) = 0;
  virtual void keep_picture() = 0;
  [[nodiscard]] virtual Point to_pixels(double x, double y) = 0;
  // Where the left upper corner of what it shows lies in the whole window, and on the screen.
  [[nodiscard]] virtual Point client_in_window() = 0;
  [[nodiscard]] virtual Point client_on_screen() = 0;
  [[nodiscard]] virtual Point cursor_on_screen() = 0;
  // The window has these boxes and nothing else, counted from its own corner.
  virtual void set_shape(const std::vector<Rect>& boxes) = 0;
  virtual void release_capture() = 0;
  virtual void set_capture() = 0;
  virtual void send_message(std::uint32_t message, std::uint32_t w, Point l) = 0;
  // Shows the system menu and waits; the command chosen, 0 without one or without such a menu.
  [[nodiscard]] virtual int track_system_menu(std::uint32_t flags, Point at) = 0;
  virtual void post_system_command(int command) = 0;
};

enum class AutoDrag { kNever = 0, kAlways = 1, kWithoutCaption = 2 };

// TransForm: seen by nobody. One on a window is enough, and two do nothing.
class TransForm : public Control {
 public:
  TransForm(Window& window, std::string_view name, Dialogs& dialogs);

  void attach(TransFormHost* host) { host_ = host; }

  [[nodiscard]] Color mask_color() const { return mask_color_; }
  void set_mask_color(Color color) { mask_color_ = color; }
  [[nodiscard]] bool transparent() const { return transparent_; }
  void set_transparent(bool transparent) { transparent_ = transparent; }
  [[nodiscard]] AutoDrag auto_drag() const { return auto_drag_; }
  void set_auto_drag(AutoDrag drag) { auto_drag_ = drag; }
  void read_properties(const PropertyStore& store);
  void write_properties(PropertyStore& store) const;

  // When its window has been loaded, in a running program.
  void load();
  // Shapes the window anew; also when its picture has changed.
  void refresh();
  // The mouse went down on the window's body.
  void mouse_down(int button, double x, double y);
  // At (x, y) of the window in its unit, one that is missing counting as 0; without both at the
  // cursor.
  void popup_system_menu(std::uint32_t flags, std::optional<double> x, std::optional<double> y);

 private:
  Dialogs& dialogs_;
  TransFormHost* host_ = nullptr;
  bool disabled_ = false;
  Color mask_color_ = 0xC0C0C0;
  bool transparent_ = true;
  AutoDrag auto_drag_ = AutoDrag::kWithoutCaption;
};

// The pixels of the picture that have another colour, as boxes of one row each.
[[nodiscard]] std::vector<Rect> unmasked_boxes(const Image& picture, Color mask);

}  // namespace quillvane
