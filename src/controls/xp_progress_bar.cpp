#include "controls/xp_progress_bar.h"

#include <algorithm>
#include <string>

#include "platform/unicode_case.h"

namespace quillvane {

Xp_ProgressBar::Xp_ProgressBar(Window& window, std::string_view name, Dialogs& dialogs,
                               const Design& design)
    : Control(window, name, design), dialogs_(dialogs) {}

void Xp_ProgressBar::tell(std::string_view problem) {
  dialogs_.message_box(std::string(problem), "Error", kBoxIconError);
}

void Xp_ProgressBar::set_minimum(double minimum) {
  if (minimum > maximum_) return tell("Minimum can NOT be biger than maximum !");
  if (minimum < 0) return tell("Minimum can NOT be smaller then 0 !");
  minimum_ = minimum;
}

void Xp_ProgressBar::set_maximum(double maximum) {
  if (maximum < minimum_) return tell("Maximum can NOT be smaller than minimum !");
  maximum_ = maximum;
}

void Xp_ProgressBar::set_value(std::int32_t value) {
  if (value > maximum_) return tell("Value can NOT be higher than Maximum !");
  if (value < minimum_) return tell("Value can NOT be smaller than minimum !");
  value_ = value;
  notify(Change::kValue);
}

void Xp_ProgressBar::set_style(std::int32_t style) { style_ = style; }

void Xp_ProgressBar::set_look(std::int32_t look) {
  look_ = look;
  pc_ = block_pictures(look);
}

void Xp_ProgressBar::read_properties(const PropertyStore& store) {
  // As they stand: what was stored had been looked at before.
  minimum_ = store.number("Min", 0);
  maximum_ = store.number("Max", 100);
  value_ = store.whole("Value", 0);
  style_ = store.whole("Style", 0);
  set_look(store.whole("ProgressLook", 0));
}

void Xp_ProgressBar::write_properties(PropertyStore& store) const {
  store.set("Min", minimum_);
  store.set("Max", maximum_);
  store.set("Value", std::int64_t{value_});
  store.set("Style", std::int64_t{style_});
  store.set("ProgressLook", std::int64_t{look_});
}

Rect Xp_ProgressBar::inner() const { return Rect{0, 0, size_.width, size_.height}.inset(kBarCap); }

int Xp_ProgressBar::target() const {
  const double span = maximum_ - minimum_;
  if (span <= 0) return 0;
  const double share = std::clamp((value_ - minimum_) / span, 0.0, 1.0);
  return static_cast<int>(std::max(0, inner().width) * share);
}

void Xp_ProgressBar::resize(Canvas& canvas, Size size) {
  size_ = size;
  reset(canvas);
}

// The frame, and nothing in it.
void Xp_ProgressBar::reset(Canvas& canvas) {
  drawn_ = 0;
  drawn_value_ = 0;
  if (size_.width <= 0 || size_.height <= 0) return;
  const Image frame = bar_frame(size_.height);
  const auto part = [&](int column, int columns) {
    Image cut(columns, frame.height);
    for (int y = 0; y < frame.height; ++y) {
      for (int x = 0; x < columns; ++x) cut.at(x, y) = frame.at(column + x, y);
    }
    return cut;
  };
  const int cap = std::min(kBarCap, size_.width / 2);
  canvas.picture({cap, 0, size_.width - 2 * cap, size_.height}, part(kBarCap, 1));
  canvas.picture({0, 0, cap, size_.height}, part(0, cap));
  canvas.picture({size_.width - cap, 0, cap, size_.height}, part(frame.width - cap, cap));
  canvas.fill(inner(), kBarBlank);
}

void Xp_ProgressBar::draw(Canvas& canvas) {
  if (value_ == minimum_) {
    reset(canvas);
  } else if (style_ == 0) {
    draw_blocks(canvas);
  } else {
    draw_smooth(canvas);
  }
}

void Xp_ProgressBar::draw_blocks(Canvas& canvas) {
  if (value_ < drawn_value_ || value_ >= maximum_) reset(canvas);
  drawn_value_ = value_;
  const Rect area = inner();
  const int end = target();
  for (; drawn_ < end; drawn_ += kBarBlock) {
    // The last block ends where the frame begins.
    const int width = std::min(kBarBlock, area.width - drawn_);
    Image block(width, pc_.block.height);
    for (int y = 0; y < block.height; ++y) {
      for (int x = 0; x < width; ++x) block.at(x, y) = pc_.block.at(x, y);
    }
    canvas.picture({area.x + drawn_, area.y, width, area.height}, block);
  }
}

void Xp_ProgressBar::draw_smooth(Canvas& canvas) {
  const Rect area = inner();
  const int end = target();
  drawn_value_ = value_;
  if (end > drawn_) {
    canvas.picture({area.x + drawn_, area.y, end - drawn_, area.height}, pc_.fill);
  } else {
    canvas.fill({area.x + end, area.y, drawn_ - end, area.height}, kBarBlank);
  }
  drawn_ = end;
}

std::optional<PropertyValue> Xp_ProgressBar::property(std::string_view name) const {
  const auto number = [](double value) -> PropertyValue {
    const auto whole = static_cast<std::int64_t>(value);
    if (static_cast<double>(whole) == value) return whole;
    return value;
  };
  if (same_name(name, "value")) return std::int64_t{value_};
  if (same_name(name, "min")) return number(minimum_);
  if (same_name(name, "max")) return number(maximum_);
  if (same_name(name, "style")) return std::int64_t{style_};
  if (same_name(name, "progresslook")) return std::int64_t{look_};
  return Control::property(name);
}

}  // namespace quillvane
