// A progress bar that is put together from small pictures.
#pragma once

#include <cstdint>
#include <string_view>

#include "controls/bar_pictures.h"
#include "controls/canvas.h"
#include "controls/property_store.h"
#include "platform/dialogs.h"

namespace quillvane {

// Xp_ProgressBar: the bar of a scan or a repair. A value that does not fit raises a message box and
// changes nothing.
class Xp_ProgressBar : public Control {
 public:
  Xp_ProgressBar(Window& window, std::string_view name, Dialogs& dialogs,
                 const Design& design = {});

  [[nodiscard]] double minimum() const { return minimum_; }
  [[nodiscard]] double maximum() const { return maximum_; }
  [[nodiscard]] std::int32_t value() const { return value_; }
  // 0: in blocks; anything else: without gaps.
  [[nodiscard]] std::int32_t style() const { return style_; }
  // ProgressLook: the colour of the blocks, 0 to 7.
  [[nodiscard]] std::int32_t look() const { return look_; }

  // Neither redraws: the next value does.
  void set_minimum(double minimum);
  void set_maximum(double maximum);
  void set_value(std::int32_t value);
  void set_style(std::int32_t style);
  void set_look(std::int32_t look);

  void read_properties(const PropertyStore& store);
  void write_properties(PropertyStore& store) const;

  // The canvas, whose content the bar finds again each time, has this size now.
  void resize(Canvas& canvas, Size size);
  // Brings what the canvas shows from the value drawn last to that of now, and draws no more than
  // that needs.
  void draw(Canvas& canvas);

  // Besides the common ones: Value, Min, Max, Style, ProgressLook.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

 private:
  void tell(std::string_view problem);
  void reset(Canvas& canvas);
  void draw_blocks(Canvas& canvas);
  void draw_smooth(Canvas& canvas);
  // How far the value reaches in the inner area, in pixels.
  [[nodiscard]] int target() const;
  [[nodiscard]] Rect inner() const;

  Dialogs& dialogs_;
  double minimum_ = 0;
  double maximum_ = 100;
  std::int32_t value_ = 0;
  std::int32_t style_ = 0;
  std::int32_t look_ = 0;
  BlockPictures pc_ = block_pictures(0);  // the pictures of the look
  Size size_;
  int drawn_ = 0;                 // the edge of what is drawn, in the inner area
  std::int32_t drawn_value_ = 0;  // that edge's value
};

}  // namespace quillvane
