// What a chameleonButton stores of itself.

#include "controls/chameleon_button.h"

namespace quillvane {

namespace {

// A stored number that is none of the property's stands for the default.
int in_range(int value, int least, int most, int otherwise) {
  return value >= least && value <= most ? value : otherwise;
}

}  // namespace

void chameleonButton::init_properties() {
  PropertyStore fresh;
  fresh.set("TX", name());
  read_properties(fresh);
}

void chameleonButton::read_properties(const PropertyStore& store) {
  reading_ = true;
  back_seen_ = store.color("BCOL", kButtonFace);
  set_back_color(back_seen_);
  set_back_over(store.color("BCOLO", back_seen_));
  fore_seen_ = store.color("FCOL", kButtonText);
  set_fore_color(fore_seen_);
  fore_over_ = store.color("FCOLO", fore_seen_);
  mask_color_ = store.color("MCOL", 0xC0C0C0);
  set_caption(store.get<std::string>("TX", {}));
  set_enabled(store.get("ENAB", true));
  font_ = store.get("FONT", FontStyle{});
  scheme_ = static_cast<ColorScheme>(
      in_range(store.whole("COLTYPE", 1), kFirstColorScheme, kLastColorScheme, 1));
  show_focus_rect_ = store.get("FOCUSR", true);
  set_hand_pointer(store.get("HAND", false));
  mouse_pointer_ = store.whole("MPTR", mouse_pointer_);
  mouse_icon_ = store.get("MICON", StoredPicture());
  soft_bevel_ = store.get("SOFT", false);
  picture_normal_ = store.get("PICN", StoredPicture());
  picture_over_ = store.get("PICH", StoredPicture());
  picture_position_ = static_cast<PicturePosition>(in_range(store.whole("PICPOS", 0), 0, 4, 0));
  use_mask_color_ = store.get("UMCOL", true);
  use_greyscale_ = store.get("NGREY", false);
  special_effect_ = store.whole("FX", 0);
  check_box_behaviour_ = store.get("CHECK", false);
  value_ = store.get("VALUE", false);
  type_ = in_range(store.whole("BTYPE", 2), kFirstButtonType, kLastButtonType, 2);
  reading_ = false;
  rebuild_shape();
}

void chameleonButton::write_properties(PropertyStore& store) const {
  const auto whole = [&](std::string_view key, auto value) {
    store.set(key, static_cast<std::int64_t>(value));
  };
  whole("BCOL", back_color());
  whole("BCOLO", back_over());
  whole("FCOL", fore_color());
  whole("FCOLO", fore_over_);
  whole("MCOL", mask_color_);
  whole("BTYPE", type_);
  store.set("TX", caption());
  store.set("ENAB", enabled());
  store.set("FONT", font_);
  whole("COLTYPE", scheme_);
  store.set("FOCUSR", show_focus_rect_);
  whole("MPTR", mouse_pointer_);
  store.set("MICON", mouse_icon_);
  store.set("HAND", hand_pointer_);
  store.set("SOFT", soft_bevel_);
  store.set("PICN", picture_normal_);
  store.set("PICH", picture_over_);
  whole("PICPOS", picture_position_);
  store.set("UMCOL", use_mask_color_);
  store.set("NGREY", use_greyscale_);
  whole("FX", special_effect_);
  store.set("CHECK", check_box_behaviour_);
  store.set("VALUE", value_);
}

}  // namespace quillvane
