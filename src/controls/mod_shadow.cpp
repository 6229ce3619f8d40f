#include "controls/mod_shadow.h"

namespace quillvane {

namespace {

// Where the shadow's window keeps its values.
enum ExtraPlace { kSizePlace = 0, kColorPlace = 4, kCurvePlace = 8, kOpacityPlace = 12 };

// Messages and commands of Windows.
constexpr std::uint32_t kDestroyed = 0x02;
constexpr std::uint32_t kPositionChanged = 0x47;
constexpr std::uint32_t kSystemCommand = 0x112;
constexpr std::uint32_t kMovedOrSized = 0x232;
constexpr std::uintptr_t kMinimise = 0xF020;
constexpr std::uintptr_t kRestore = 0xF120;
constexpr std::uintptr_t kCommandMask = 0xFFF0;  // the lowest bits are the system's own

}  // namespace

void modShadow::create(WindowId host) {
  if (screen_.shadow_of(host) != 0) return;
  const WindowId shadow = screen_.make_shadow(host);
  if (shadow == 0) return;
  screen_.set_shadow_of(host, shadow);
  screen_.watch(host);
  render(host, shadow, ShadowLook{});
}

void modShadow::remove(WindowId host) {
  const WindowId shadow = screen_.shadow_of(host);
  if (shadow == 0) return;
  screen_.unwatch(host);
  screen_.destroy(shadow);
  screen_.remove_shadow_of(host);
  drawn_.erase(shadow);
}

void modShadow::set_size(WindowId host, int size) {
  const WindowId shadow = screen_.shadow_of(host);
  if (shadow == 0 || size < kLeastShadow || size > kMostShadow) return;
  ShadowLook changed = stored_look(shadow);
  changed.size = size;
  render(host, shadow, changed);
}

void modShadow::set_color(WindowId host, Color color) {
  const WindowId shadow = screen_.shadow_of(host);
  if (shadow == 0) return;
  ShadowLook changed = stored_look(shadow);
  changed.color = color;
  render(host, shadow, changed);
}

std::optional<ShadowLook> modShadow::look(WindowId host) {
  const WindowId shadow = screen_.shadow_of(host);
  if (shadow == 0) return std::nullopt;
  return stored_look(shadow);
}

ShadowLook modShadow::stored_look(WindowId shadow) {
  return {screen_.extra(shadow, kSizePlace), static_cast<Color>(screen_.extra(shadow, kColorPlace)),
          screen_.extra(shadow, kCurvePlace), screen_.extra(shadow, kOpacityPlace)};
}

void modShadow::render(WindowId host, WindowId shadow, const ShadowLook& look) {
  screen_.set_extra(shadow, kSizePlace, look.size);
  screen_.set_extra(shadow, kColorPlace, static_cast<std::int32_t>(look.color));
  screen_.set_extra(shadow, kCurvePlace, look.curve);
  screen_.set_extra(shadow, kOpacityPlace, look.opacity);
  follow(host, shadow);
}

// Brings the shadow to where its host is now, or away with it.
void modShadow::follow(WindowId host, WindowId shadow) {
  if (!screen_.is_shown(host) || screen_.is_minimised(host)) {
    screen_.hide(shadow);
    return;
  }
  const ShadowLook look = stored_look(shadow);
  const Rect bounds = screen_.bounds(host);
  // A window that is only moved keeps its shadow's picture.
  const Drawn wanted{{bounds.width, bounds.height}, look};
  Drawn& drawn = drawn_[shadow];
  if (drawn != wanted) {
    screen_.set_picture(shadow, premultiplied(shadow_picture(wanted.window, look)));
    drawn = wanted;
  }
  screen_.place(shadow, host, {bounds.x - look.size, bounds.y - look.size});
}

void modShadow::message(WindowId host, std::uint32_t message, std::uintptr_t w) {
  const WindowId shadow = screen_.shadow_of(host);
  if (shadow == 0) return;
  const std::uintptr_t command = w & kCommandMask;
  const bool follows = message == kPositionChanged || message == kMovedOrSized ||
                       (message == kSystemCommand && (command == kMinimise || command == kRestore));
  if (message == kDestroyed) {
    remove(host);
  } else if (follows) {
    follow(host, shadow);
  }
}

}  // namespace quillvane
