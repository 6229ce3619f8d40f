#include "controls/trans_form.h"

#include <gtest/gtest.h>

#include "forms/window.h"
#include "platform/virtual/queued_dialogs.h"

namespace quillvane {
namespace {

using Notes = std::vector<std::string>;

std::string text_of(Point point) { return std::to_string(point.x) + "," + std::to_string(point.y); }

class NotingHost final : public TransFormHost {
 public:
  const Image* picture() override { return has_picture ? &shown : nullptr; }
  bool has_caption() override { return caption; }
  float scale_width() override { return scale; }
  void set_scale_width(float width) override { scale = width; }
  void keep_picture() override { notes.emplace_back("keep"); }
  Point to_pixels(double x, double y) override {
    return {static_cast<int>(x / 15), static_cast<int>(y / 15)};
  }
  Point client_in_window() override { return {3, 20}; }
  Point client_on_screen() override { return {100, 200}; }
  Point cursor_on_screen() override { return {7, 8}; }
  void set_shape(const std::vector<Rect>& boxes) override { shape = boxes; }
  void release_capture() override { notes.emplace_back("release"); }
  void set_capture() override { notes.emplace_back("capture"); }
  void send_message(std::uint32_t message, std::uint32_t w, Point l) override {
    notes.push_back("send " + std::to_string(message) + " " + std::to_string(w) + " " + text_of(l));
  }
  int track_system_menu(std::uint32_t flags, Point at) override {
    notes.push_back("menu " + std::to_string(flags) + " at " + text_of(at));
    return chosen;
  }
  void post_system_command(int command) override {
    notes.push_back("post " + std::to_string(command));
  }

  bool has_picture = true;
  Image shown{3, 2, 0xFF0000FF};
  bool caption = false;
  float scale = 480.0F;
  int chosen = 0;
  std::vector<Rect> shape;
  Notes notes;
};

struct Stage {
  Stage() { trans_form.attach(&host); }

  EffectLog effects;
  QueuedDialogs dialogs{effects};
  Window window{"Form"};
  NotingHost host;
  TransForm trans_form{window, "TransForm1", dialogs};
};

TEST(TransForm, ShapesItsWindowByThePicturesOtherColours) {
  Stage stage;
  stage.host.shown.at(1, 0) = 0xFFC0C0C0;
  stage.trans_form.load();
  EXPECT_EQ(stage.host.shape, (std::vector<Rect>{{3, 20, 1, 1}, {5, 20, 1, 1}, {3, 21, 3, 1}}));
  stage.trans_form.set_mask_color(0x0000FF);
  stage.trans_form.refresh();
  EXPECT_EQ(stage.host.shape, (std::vector<Rect>{{4, 20, 1, 1}}));
}

TEST(TransForm, ShapesNothingWithoutAPictureOrAPixelOrTheWish) {
  Stage without;
  without.host.has_picture = false;
  without.trans_form.load();
  EXPECT_TRUE(without.host.shape.empty());
  Stage masked;
  masked.trans_form.set_mask_color(0x0000FF);
  masked.trans_form.load();
  EXPECT_TRUE(masked.host.shape.empty());
  Stage off;
  off.trans_form.set_transparent(false);
  off.trans_form.load();
  EXPECT_TRUE(off.host.shape.empty());
}

TEST(TransForm, MeasuresItsWindowInPixels) {
  Stage stage;
  stage.host.scale = 7200.0F;
  stage.trans_form.load();
  EXPECT_EQ(stage.host.scale, 480.0F);
  EXPECT_EQ(stage.host.notes, Notes{"keep"});
}

TEST(TransForm, TwoOnAWindowDoNothingAndSaySo) {
  Stage stage;
  TransForm second(stage.window, "TransForm2", stage.dialogs);
  second.attach(&stage.host);
  stage.trans_form.load();
  second.load();
  const auto boxes = stage.dialogs.take_boxes();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0].title, "Multiple TransForm Controls");
  EXPECT_EQ(boxes[0].style, 48U);
  EXPECT_EQ(boxes[0].text,
            "Only one TransForm control is allowed or needed on a single form.\r\n"
            "All TransForm functionality will be disabled for this form.");
  second.refresh();
  stage.trans_form.refresh();
  stage.trans_form.mouse_down(1, 0, 0);
  EXPECT_TRUE(stage.host.shape.empty());
  EXPECT_TRUE(stage.host.notes.empty());
}

TEST(TransForm, AWindowWithoutCaptionIsDraggedByItsBody) {
  Stage stage;
  stage.trans_form.mouse_down(1, 150, 300);
  EXPECT_EQ(stage.host.notes, (Notes{"release", "send 161 2 10,20", "capture"}));
  stage.host.notes.clear();
  stage.trans_form.mouse_down(2, 150, 300);
  stage.host.caption = true;
  stage.trans_form.mouse_down(1, 150, 300);
  EXPECT_TRUE(stage.host.notes.empty());
  stage.trans_form.set_auto_drag(AutoDrag::kAlways);
  stage.trans_form.mouse_down(1, 0, 0);
  EXPECT_EQ(stage.host.notes.size(), 3U);
  stage.host.caption = false;
  stage.trans_form.set_auto_drag(AutoDrag::kNever);
  stage.trans_form.mouse_down(1, 0, 0);
  EXPECT_EQ(stage.host.notes.size(), 3U);
}

TEST(TransForm, TheSystemMenuComesAtItsPlaceAndIsObeyed) {
  Stage stage;
  stage.trans_form.popup_system_menu(2, std::nullopt, std::nullopt);
  EXPECT_EQ(stage.host.notes, Notes{"menu 258 at 7,8"});
  stage.host.notes.clear();
  stage.host.chosen = 61536;
  stage.trans_form.popup_system_menu(0, std::nullopt, 30.0);
  stage.trans_form.popup_system_menu(0, 15.0, std::nullopt);
  EXPECT_EQ(stage.host.notes,
            (Notes{"menu 256 at 100,202", "post 61536", "menu 256 at 101,200", "post 61536"}));
}

TEST(TransForm, ItsPropertiesAreStoredAndFoundAgain) {
  Stage stage;
  PropertyStore store;
  stage.trans_form.write_properties(store);
  EXPECT_EQ(store.whole("MaskColor", 0), 0xC0C0C0);
  EXPECT_TRUE(store.get("Transparent", false));
  EXPECT_EQ(store.whole("AutoDrag", 0), 2);
  store.set("MaskColor", std::int64_t{1});
  store.set("Transparent", false);
  store.set("AutoDrag", std::int64_t{1});
  stage.trans_form.read_properties(store);
  PropertyStore again;
  stage.trans_form.write_properties(again);
  EXPECT_EQ(again, store);
  store.set("AutoDrag", std::int64_t{3});
  stage.trans_form.read_properties(store);
  EXPECT_EQ(stage.trans_form.auto_drag(), AutoDrag::kWithoutCaption);
}

}  // namespace
}  // namespace quillvane
