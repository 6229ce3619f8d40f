#include "controls/chameleon_button.h"

#include <gtest/gtest.h>

#include "controls/bitmap_canvas.h"
#include "forms/window.h"
#include "platform/virtual/virtual_loop.h"

namespace quillvane {
namespace {

using Notes = std::vector<std::string>;

// A surface that notes what the button asks of it.
class NotingHost final : public ButtonHost {
 public:
  bool cursor_is_over() override { return over; }
  void capture_mouse() override { notes.emplace_back("capture"); }
  void send_keys(std::string_view keys) override { notes.emplace_back(keys); }
  void set_region(const Region& region) override { shape = region; }
  void redraw() override { ++drawn; }
  void repaint_now() override { notes.emplace_back("repaint"); }
  Image background() override { return Image(40, 20, ground); }

  bool over = false;
  int drawn = 0;
  std::uint32_t ground = 0xFF112233;
  Region shape = Region::rectangle({0, 0});
  Notes notes;
};

struct Stage {
  Stage() {
    button.on_click = [this] { ++clicks; };
    button.attach(host, loop);
    button.resize({40, 20});
    button.appear();
    host.drawn = 0;
  }

  void move(bool over, int mouse_button = kNoMouseButton) {
    host.over = over;
    button.mouse_move({.button = mouse_button});
  }
  // How often the button was drawn since this was last asked.
  int drawn() { return std::exchange(host.drawn, 0); }
  [[nodiscard]] bool looks_pressed() const { return button.looks().pressed; }
  [[nodiscard]] bool looks_hovered() const { return button.looks().hovering; }

  NotingHost host;
  VirtualLoop loop{FileTime{}};
  Window window{"Form"};
  chameleonButton button{window, "Command1", {.caption = "&Scan"}};
  int clicks = 0;
};

constexpr MouseEvent kLeftPress{.button = kLeftMouseButton, .x = 3, .y = 4};
constexpr MouseEvent kRightPress{.button = kRightMouseButton};

TEST(ChameleonButton, APressAndAReleaseClick) {
  Stage stage;
  stage.button.mouse_down(kLeftPress);
  EXPECT_TRUE(stage.looks_pressed());
  EXPECT_EQ(stage.drawn(), 1);
  stage.button.mouse_up(kLeftPress);
  EXPECT_FALSE(stage.looks_pressed());
  EXPECT_EQ(stage.clicks, 0);  // the system tells the click
  stage.button.platform_click();
  EXPECT_EQ(stage.clicks, 1);
  EXPECT_EQ(stage.host.notes, Notes{"repaint"});
}

TEST(ChameleonButton, APressThatIsDraggedOffLooksLetGo) {
  Stage stage;
  stage.button.mouse_down(kLeftPress);
  stage.move(false, kLeftMouseButton);
  EXPECT_FALSE(stage.looks_pressed());
  stage.move(true, kLeftMouseButton);
  EXPECT_TRUE(stage.looks_pressed());
  EXPECT_FALSE(stage.button.is_over());
  stage.move(false, kLeftMouseButton);
  stage.button.mouse_up(kLeftPress);  // outside: no click follows
  EXPECT_EQ(stage.clicks, 0);
}

TEST(ChameleonButton, ARightClickPressesNothing) {
  Stage stage;
  stage.button.set_check_box_behaviour(true);
  Notes events;
  stage.button.on_mouse_down = [&](const MouseEvent& e) {
    events.push_back("down " + std::to_string(e.button));
  };
  stage.button.on_mouse_up = [&](const MouseEvent& e) {
    events.push_back("up " + std::to_string(e.button));
  };
  stage.drawn();
  stage.button.mouse_down(kRightPress);
  stage.button.mouse_up(kRightPress);
  stage.button.platform_click();
  EXPECT_EQ(events, (Notes{"down 2", "up 2"}));
  EXPECT_EQ(stage.drawn(), 0);
  EXPECT_FALSE(stage.button.value());
  EXPECT_EQ(stage.clicks, 0);
}

TEST(ChameleonButton, AQuickSecondClickPressesToo) {
  Stage stage;
  std::vector<int> places;
  stage.button.on_mouse_down = [&](const MouseEvent& e) { places.push_back(e.x); };
  stage.button.mouse_down(kLeftPress);
  stage.button.mouse_up(kLeftPress);
  stage.button.double_click();
  EXPECT_TRUE(stage.looks_pressed());
  EXPECT_EQ(places, (std::vector<int>{3, 3}));  // the arguments of the first
  EXPECT_EQ(stage.host.notes, Notes{"capture"});
  stage.button.mouse_up(kLeftPress);
  stage.button.mouse_down(kRightPress);
  stage.button.double_click();
  EXPECT_EQ(stage.host.notes.size(), 1U);
}

TEST(ChameleonButton, HoveringIsNoticedByMovesAndItsEndByTheTimer) {
  Stage stage;
  Notes events;
  stage.button.on_mouse_enter = [&] { events.emplace_back("enter"); };
  stage.button.on_mouse_leave = [&] { events.emplace_back("leave"); };
  stage.move(true);
  stage.move(true);
  EXPECT_TRUE(stage.looks_hovered());
  EXPECT_TRUE(stage.button.over_timer_runs());
  EXPECT_EQ(stage.drawn(), 1);
  stage.loop.wait(std::chrono::milliseconds(10));
  EXPECT_EQ(events, Notes{"enter"});
  stage.move(false);
  EXPECT_TRUE(stage.looks_hovered());
  stage.loop.wait(std::chrono::milliseconds(2));
  EXPECT_FALSE(stage.looks_hovered());
  EXPECT_FALSE(stage.button.over_timer_runs());
  EXPECT_EQ(events, (Notes{"enter", "leave"}));
  EXPECT_EQ(stage.drawn(), 1);
}

TEST(ChameleonButton, ItsTimerTicksEveryThreeMilliseconds) {
  Stage stage;
  stage.move(true);
  stage.host.over = false;
  stage.loop.wait(std::chrono::milliseconds(1));  // two have passed behind it
  EXPECT_TRUE(stage.button.is_over());
  stage.loop.wait(std::chrono::milliseconds(1));  // four
  EXPECT_FALSE(stage.button.is_over());
}

TEST(ChameleonButton, MovesThatChangeNothingDrawNothing) {
  Stage stage;
  for (int i = 0; i < 100; ++i) stage.move(false);
  EXPECT_EQ(stage.drawn(), 0);
  stage.move(true);
  for (int i = 0; i < 100; ++i) stage.move(true);
  EXPECT_EQ(stage.drawn(), 1);
  stage.move(true, kRightMouseButton);
  EXPECT_EQ(stage.drawn(), 0);
}

TEST(ChameleonButton, APressedButtonCountsAsHovered) {
  Stage stage;
  stage.button.key_down(32, 0);
  EXPECT_TRUE(stage.looks_hovered());
  stage.button.key_up(32, 0);
  EXPECT_FALSE(stage.looks_hovered());
}

TEST(ChameleonButton, ACheckBoxStaysDown) {
  Stage stage;
  stage.button.set_check_box_behaviour(true);
  stage.button.click();
  EXPECT_TRUE(stage.button.value());
  EXPECT_TRUE(stage.looks_pressed());
  EXPECT_FALSE(stage.looks_hovered());
  EXPECT_EQ(stage.button.property("Value"), PropertyValue(true));
  stage.button.click();
  EXPECT_FALSE(stage.looks_pressed());
  EXPECT_EQ(stage.clicks, 2);
}

TEST(ChameleonButton, AValueWithoutCheckBoxBehaviourShowsNothing) {
  Stage stage;
  stage.button.set_value(true);
  EXPECT_FALSE(stage.looks_pressed());
  stage.button.click();
  EXPECT_TRUE(stage.button.value());
}

TEST(ChameleonButton, DisabledItClicksNot) {
  Stage stage;
  stage.button.set_check_box_behaviour(true);
  stage.button.set_enabled(false);
  stage.button.mouse_down(kLeftPress);
  stage.button.platform_click();
  stage.button.access_key();
  stage.button.click();
  stage.button.key_down(32, 0);
  stage.button.key_up(32, 0);
  EXPECT_EQ(stage.clicks, 0);
  EXPECT_FALSE(stage.button.value());
  EXPECT_FALSE(stage.button.looks().enabled);
}

TEST(ChameleonButton, TheSpaceBarPressesAndClicks) {
  Stage stage;
  stage.button.set_check_box_behaviour(true);
  stage.button.key_down(32, 0);
  EXPECT_TRUE(stage.looks_pressed());
  EXPECT_EQ(stage.clicks, 0);
  stage.button.key_up(32, 0);
  EXPECT_EQ(stage.clicks, 1);
  EXPECT_TRUE(stage.button.value());
}

TEST(ChameleonButton, ASpaceBarThatIsLetGoElsewhereClicksNothing) {
  Stage stage;
  chameleonButton other(stage.window, "Command2");
  int clicks = 0;
  other.on_click = [&] { ++clicks; };
  stage.button.key_down(32, 0);
  stage.button.leave();
  other.enter();
  other.key_up(32, 0);
  EXPECT_EQ(clicks, 0);
  // And none when the focus comes back with the key held.
  other.leave();
  stage.button.enter();
  stage.button.key_up(32, 0);
  EXPECT_EQ(stage.clicks, 0);
}

TEST(ChameleonButton, AnotherKeyBetweenTakesTheClick) {
  Stage stage;
  stage.button.key_down(32, 0);
  stage.button.key_down(65, 0);
  stage.button.key_up(32, 0);
  EXPECT_EQ(stage.clicks, 0);
}

TEST(ChameleonButton, TheArrowKeysWalkTheTabOrder) {
  Stage stage;
  for (const int code : {37, 38, 39, 40, 65}) stage.button.key_down(code, 0);
  EXPECT_EQ(stage.host.notes, (Notes{"+{Tab}", "+{Tab}", "{Tab}", "{Tab}"}));
}

TEST(ChameleonButton, KeysAreToldBeforeTheyAct) {
  Stage stage;
  Notes events;
  const auto note = [&](const char* what) {
    return [&events, what](int code, int shift) {
      events.push_back(std::string(what) + std::to_string(code) + "+" + std::to_string(shift));
    };
  };
  stage.button.on_key_down = note("down");
  stage.button.on_key_up = note("up");
  stage.button.on_key_press = [&](int ascii) { events.push_back(std::to_string(ascii)); };
  stage.button.on_click = [&] { events.emplace_back("click"); };
  stage.button.key_down(32, 1);
  stage.button.key_press(32);
  stage.button.key_up(32, 2);
  EXPECT_EQ(events, (Notes{"down32+1", "32", "up32+2", "click"}));
}

TEST(ChameleonButton, ItsAccessKeyClicksWhateverTheMouseDidLast) {
  Stage stage;
  stage.button.mouse_down(kRightPress);
  stage.button.access_key();
  EXPECT_EQ(stage.clicks, 1);
}

TEST(ChameleonButton, TheFocusIsDrawnWhenItComesAndGoes) {
  Stage stage;
  stage.button.enter();
  EXPECT_TRUE(stage.button.looks().focused);
  stage.button.leave();
  EXPECT_FALSE(stage.button.looks().focused);
  EXPECT_EQ(stage.drawn(), 2);
  stage.button.set_default(true);
  stage.button.set_default(true);
  EXPECT_TRUE(stage.button.looks().is_default);
  EXPECT_EQ(stage.drawn(), 1);
}

TEST(ChameleonButton, OnlyItsOwnColoursAreDeafToTheWindows) {
  Stage stage;
  stage.button.ambient_changed();
  EXPECT_EQ(stage.drawn(), 1);
  stage.button.set_color_scheme(ColorScheme::kCustom);
  stage.drawn();
  stage.button.ambient_changed();
  EXPECT_EQ(stage.drawn(), 0);
}

TEST(ChameleonButton, NothingIsDrawnWhileItIsHidden) {
  Stage stage;
  stage.button.disappear();
  stage.button.mouse_down(kLeftPress);
  stage.button.set_button_type(7);
  EXPECT_EQ(stage.drawn(), 0);
  stage.button.appear();
  EXPECT_EQ(stage.drawn(), 1);
}

TEST(ChameleonButton, WithoutHeightNothingIsDrawn) {
  Stage stage;
  stage.button.resize({40, 0});
  EXPECT_EQ(stage.drawn(), 0);
}

TEST(ChameleonButton, ItsShapeFollowsItsTypeAndSize) {
  Stage stage;
  stage.button.set_button_type(13);
  EXPECT_EQ(stage.host.shape, Region::ellipse({40, 20}));
  stage.button.resize({10, 10});
  EXPECT_EQ(stage.host.shape, Region::ellipse({10, 10}));
  stage.button.disable_refresh();
  stage.button.resize({30, 10});
  EXPECT_EQ(stage.host.shape, Region::ellipse({10, 10}));
  stage.drawn();
  stage.button.refresh();
  EXPECT_EQ(stage.host.shape, Region::ellipse({30, 10}));
  EXPECT_GE(stage.drawn(), 1);
  stage.button.set_button_type(0);
  stage.button.set_button_type(15);
  EXPECT_EQ(stage.button.button_type(), 13);
}

TEST(ChameleonButton, TheTransparentOneKeepsWhatLiesUnderIt) {
  Stage stage;
  stage.button.set_button_type(11);
  Image picture(40, 20);
  BitmapCanvas canvas(picture, nullptr);
  stage.button.paint(canvas);
  EXPECT_EQ(picture.at(20, 10), 0xFF112233U);
  // Showing it again takes nothing new; choosing the type does.
  stage.host.ground = 0xFF445566;
  stage.button.disappear();
  stage.button.appear();
  stage.button.paint(canvas);
  EXPECT_EQ(picture.at(20, 10), 0xFF112233U);
  stage.button.set_button_type(11);
  stage.button.paint(canvas);
  EXPECT_EQ(picture.at(20, 10), 0xFF445566U);
}

TEST(ChameleonButton, EachPropertyTellsItsKey) {
  Stage stage;
  Notes keys;
  stage.button.on_property_changed = [&](std::string_view key) { keys.emplace_back(key); };
  const auto picture = std::make_shared<const Image>(1, 1);
  stage.button.set_back_color(1);
  stage.button.set_back_over(2);
  stage.button.set_fore_color(3);
  stage.button.set_fore_over(4);
  stage.button.set_mask_color(5);
  stage.button.set_button_type(6);
  stage.button.set_caption("x");
  stage.button.set_enabled(false);
  stage.button.set_font({.pixels = 20});
  stage.button.set_color_scheme(ColorScheme::kFixed);
  stage.button.set_show_focus_rect(false);
  stage.button.set_mouse_pointer(2);
  stage.button.set_mouse_icon(picture);
  stage.button.set_hand_pointer(true);
  stage.button.set_soft_bevel(true);
  stage.button.set_picture_normal(picture);
  stage.button.set_picture_over(picture);
  stage.button.set_picture_position(PicturePosition::kTop);
  stage.button.set_use_mask_color(false);
  stage.button.set_use_greyscale(true);
  stage.button.set_special_effect(1);
  stage.button.set_check_box_behaviour(true);
  stage.button.set_value(true);
  EXPECT_EQ(keys, (Notes{"BCOL", "BCOLO",   "FCOL",   "FCOLO", "MCOL",  "BTYPE", "TX",   "ENAB",
                         "FONT", "COLTYPE", "FOCUSR", "MPTR",  "MICON", "HAND",  "SOFT", "PICN",
                         "PICO", "PICPOS",  "UMCOL",  "NGREY", "FX",    "CHECK", "VALUE"}));
  EXPECT_EQ(stage.button.back_color(), 1U);  // running: the others keep their own
  EXPECT_EQ(stage.button.back_over(), 2U);
  EXPECT_EQ(stage.drawn(), 24);  // the type rebuilds the shape besides
}

TEST(ChameleonButton, AtDesignTimeAColourIsThatUnderTheMouseToo) {
  Stage stage;
  stage.button.set_running(false);
  stage.button.set_back_color(0x111111);
  stage.button.set_fore_color(0x222222);
  EXPECT_EQ(stage.button.back_over(), 0x111111U);
  EXPECT_EQ(stage.button.fore_over(), 0x222222U);
  stage.button.set_running(true);
  stage.button.set_back_color(0x333333);
  EXPECT_EQ(stage.button.back_over(), 0x111111U);
}

TEST(ChameleonButton, WhatIsStoredIsFoundAgain) {
  Stage stage;
  const auto picture = std::make_shared<const Image>(1, 1);
  PropertyStore store;
  const auto whole = [&](const char* key, std::int64_t value) { store.set(key, value); };
  whole("BCOL", 1);
  whole("BCOLO", 2);
  whole("FCOL", 3);
  whole("FCOLO", 4);
  whole("MCOL", 5);
  whole("BTYPE", 6);
  store.set("TX", std::string("Text"));
  store.set("ENAB", false);
  store.set("FONT", FontStyle{.name = "Sans", .pixels = 17, .bold = true});
  whole("COLTYPE", 3);
  store.set("FOCUSR", false);
  whole("MPTR", 99);
  store.set("MICON", StoredPicture(picture));
  store.set("HAND", true);
  store.set("SOFT", true);
  store.set("PICN", StoredPicture(picture));
  store.set("PICH", StoredPicture(picture));
  whole("PICPOS", 4);
  store.set("UMCOL", false);
  store.set("NGREY", true);
  whole("FX", -7);
  store.set("CHECK", true);
  store.set("VALUE", true);
  stage.button.read_properties(store);
  PropertyStore again;
  stage.button.write_properties(again);
  EXPECT_EQ(again, store);
}

TEST(ChameleonButton, WhatIsNotStoredHasItsDefault) {
  Stage stage;
  PropertyStore empty;
  stage.button.read_properties(empty);
  EXPECT_EQ(stage.button.back_color(), 0x8000000FU);
  EXPECT_EQ(stage.button.back_over(), 0x8000000FU);
  EXPECT_EQ(stage.button.fore_color(), 0x80000012U);
  EXPECT_EQ(stage.button.fore_over(), 0x80000012U);
  EXPECT_EQ(stage.button.mask_color(), 0xC0C0C0U);
  EXPECT_EQ(stage.button.button_type(), 2);
  EXPECT_EQ(stage.button.caption(), "");
  EXPECT_TRUE(stage.button.enabled());
  EXPECT_EQ(stage.button.color_scheme(), ColorScheme::kSystem);
  EXPECT_TRUE(stage.button.show_focus_rect());
  EXPECT_TRUE(stage.button.use_mask_color());
  EXPECT_FALSE(stage.button.check_box_behaviour());
  EXPECT_EQ(stage.button.mouse_pointer(), 0);
  EXPECT_EQ(stage.button.picture_normal(), nullptr);
  // A colour under the mouse follows the other.
  PropertyStore colors;
  colors.set("BCOL", std::int64_t{0x123456});
  colors.set("FCOL", std::int64_t{0x654321});
  stage.button.read_properties(colors);
  EXPECT_EQ(stage.button.back_over(), 0x123456U);
  EXPECT_EQ(stage.button.fore_over(), 0x654321U);
}

TEST(ChameleonButton, StoredNumbersOutOfRangeAreTheDefault) {
  Stage stage;
  PropertyStore store;
  store.set("BTYPE", std::int64_t{15});
  store.set("COLTYPE", std::int64_t{0});
  store.set("PICPOS", std::int64_t{5});
  stage.button.read_properties(store);
  EXPECT_EQ(stage.button.button_type(), 2);
  EXPECT_EQ(stage.button.color_scheme(), ColorScheme::kSystem);
  EXPECT_EQ(stage.button.picture_position(), PicturePosition::kLeft);
}

TEST(ChameleonButton, ANewOneIsCalledByItsName) {
  Stage stage;
  stage.button.init_properties();
  EXPECT_EQ(stage.button.caption(), "Command1");
  EXPECT_EQ(chameleonButton::version(), "2.0.6");
}

TEST(ChameleonButton, TheHandIsAPointerOfItsOwn) {
  Stage stage;
  stage.button.set_hand_pointer(true);
  EXPECT_EQ(stage.button.mouse_pointer(), 99);
  stage.button.set_hand_pointer(false);
  EXPECT_EQ(stage.button.mouse_pointer(), 0);
}

TEST(ChameleonButton, WithoutASurfaceItStillClicks) {
  Stage stage;
  stage.move(true);
  stage.button.detach();
  EXPECT_FALSE(stage.button.over_timer_runs());
  stage.button.click();
  stage.move(true);
  EXPECT_EQ(stage.clicks, 1);
}

TEST(ChameleonButton, ANewCaptionIsDrawn) {
  Stage stage;
  stage.button.set_caption("Stop");
  EXPECT_EQ(stage.button.looks().caption, "Stop");
  EXPECT_EQ(stage.drawn(), 1);
}

}  // namespace
}  // namespace quillvane
