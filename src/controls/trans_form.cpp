#include "controls/trans_form.h"

#include <algorithm>

#include "forms/window.h"

namespace quillvane {

namespace {

// Of Windows.
constexpr std::uint32_t kMessageCaptionPressed = 161;
constexpr std::uint32_t kOnCaption = 2;
constexpr std::uint32_t kMenuReturnsCommand = 0x100;

constexpr int kLeftButton = 1;
constexpr float kPixelScaleWidth = 480.0F;  // of a window that is measured in pixels

}  // namespace

TransForm::TransForm(Window& window, std::string_view name, Dialogs& dialogs)
    : Control(window, name, kHidden), dialogs_(dialogs) {}

void TransForm::read_properties(const PropertyStore& store) {
  mask_color_ = store.color("MaskColor", 0xC0C0C0);
  transparent_ = store.get("Transparent", true);
  const int drag = store.whole("AutoDrag", 2);
  auto_drag_ = drag >= 0 && drag <= 2 ? static_cast<AutoDrag>(drag) : AutoDrag::kWithoutCaption;
}

void TransForm::write_properties(PropertyStore& store) const {
  store.set("MaskColor", std::int64_t{mask_color_});
  store.set("Transparent", transparent_);
  store.set("AutoDrag", static_cast<std::int64_t>(auto_drag_));
}

void TransForm::load() {
  const auto is_one = [](const Control* control) {
    return dynamic_cast<const TransForm*>(control) != nullptr;
  };
  if (std::ranges::count_if(window().controls(), is_one) > 1) {
    dialogs_.message_box(
        "Only one TransForm control is allowed or needed on a single form.\r\n"
        "All TransForm functionality will be disabled for this form.",
        "Multiple TransForm Controls", kBoxIconWarning);
    disabled_ = true;
    return;
  }
  if (host_ == nullptr) return;
  host_->keep_picture();
  if (host_->scale_width() != kPixelScaleWidth) host_->set_scale_width(kPixelScaleWidth);
  refresh();
}

void TransForm::refresh() {
  if (disabled_ || !transparent_ || host_ == nullptr) return;
  const Image* picture = host_->picture();
  if (picture == nullptr) return;
  std::vector<Rect> boxes = unmasked_boxes(*picture, mask_color_);
  // A window without any pixel could not be found again.
  if (boxes.empty()) return;
  const Point client = host_->client_in_window();
  for (Rect& box : boxes) box = box.moved(client.x, client.y);
  host_->set_shape(boxes);
}

void TransForm::mouse_down(int button, double x, double y) {
  if (disabled_ || host_ == nullptr || button != kLeftButton) return;
  const bool drags = auto_drag_ == AutoDrag::kAlways ||
                     (auto_drag_ == AutoDrag::kWithoutCaption && !host_->has_caption());
  if (!drags) return;
  const Point at = host_->to_pixels(x, y);
  host_->release_capture();
  host_->send_message(kMessageCaptionPressed, kOnCaption, at);
  host_->set_capture();
}

void TransForm::popup_system_menu(std::uint32_t flags, std::optional<double> x,
                                  std::optional<double> y) {
  if (host_ == nullptr) return;
  Point at = host_->cursor_on_screen();
  if (x || y) {
    const Point inside = host_->to_pixels(x.value_or(0), y.value_or(0));
    const Point client = host_->client_on_screen();
    at = {client.x + inside.x, client.y + inside.y};
  }
  const int command = host_->track_system_menu(flags | kMenuReturnsCommand, at);
  if (command != 0) host_->post_system_command(command);
}

std::vector<Rect> unmasked_boxes(const Image& picture, Color mask) {
  const auto is_masked = [&](int x, int y) { return (picture.at(x, y) & 0xFFFFFFU) == mask; };
  std::vector<Rect> boxes;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (is_masked(x, y)) continue;
      const int begin = x;
      while (x < picture.width && !is_masked(x, y)) ++x;
      boxes.push_back({begin, y, x - begin, 1});
    }
  }
  return boxes;
}

}  // namespace quillvane
