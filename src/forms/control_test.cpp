#include "forms/control.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "forms/simple_controls.h"
#include "forms/window.h"
#include "tests/support/change_list.h"

namespace quillvane {
namespace {

using Changes = std::vector<Change>;

TEST(Control, BeginsEnabledAndVisible) {
  Window window("Form");
  const Frame frame(window, "Frame1");
  EXPECT_TRUE(frame.enabled());
  EXPECT_TRUE(frame.visible());
  EXPECT_EQ(frame.name(), "Frame1");
}

TEST(Control, TellsItsObserversWhatChanged) {
  Window window("Form");
  Frame frame(window, "Frame1");
  ChangeList seen;
  frame.observe(seen);

  frame.set_enabled(false);
  frame.hide();
  frame.set_back_color(128);
  frame.move(10, 20);
  frame.refresh();

  EXPECT_EQ(seen.changes, (Changes{Change::kEnabled, Change::kVisible, Change::kColor,
                                   Change::kPosition, Change::kRefresh}));
}

TEST(Control, TellsNothingWhenAPropertyStaysAsItWas) {
  Window window("Form");
  Frame frame(window, "Frame1");
  ChangeList seen;
  frame.observe(seen);

  frame.set_enabled(true);
  frame.show();
  frame.set_fore_color(frame.fore_color());
  frame.set_back_color(frame.back_color());
  frame.move(frame.left(), frame.top());

  EXPECT_EQ(seen.changes, Changes{});
}

TEST(Control, StaysDisabledWhileItIsLocked) {
  Window window("Form");
  Frame frame(window, "Frame1");
  ChangeList seen;
  frame.observe(seen);

  frame.set_locked(true);
  frame.set_enabled(false);
  frame.set_enabled(true);
  EXPECT_FALSE(frame.enabled());
  EXPECT_EQ(frame.property("Enabled"), PropertyValue(false));
  frame.set_locked(false);
  EXPECT_TRUE(frame.enabled());
  EXPECT_EQ(seen.changes, (Changes{Change::kEnabled, Change::kEnabled}));

  frame.set_locked(true);
  frame.set_enabled(false);
  frame.set_locked(false);
  EXPECT_FALSE(frame.enabled());
}

TEST(Control, TellsNothingToAnObserverThatWasRemoved) {
  Window window("Form");
  Frame frame(window, "Frame1");
  ChangeList removed;
  ChangeList kept;
  frame.observe(removed);
  frame.observe(kept);

  frame.unobserve(removed);
  frame.hide();

  EXPECT_EQ(removed.changes, Changes{});
  EXPECT_EQ(kept.changes, Changes{Change::kVisible});
}

TEST(Control, MovesToWhereAnotherStands) {
  Window window("Form");
  Frame frame(window, "Frame1");
  Frame other(window, "Frame2");
  other.move(120, 450);
  frame.move_to(other);
  EXPECT_EQ(frame.left(), 120);
  EXPECT_EQ(frame.top(), 450);
}

TEST(Control, PropertiesAreReadByNameInAnyCase) {
  Window window("Form");
  Shape shape(window, "Shape1");
  shape.set_back_color(128);
  shape.set_fore_color(7);
  shape.set_enabled(false);

  EXPECT_EQ(shape.property("Enabled"), PropertyValue(false));
  EXPECT_EQ(shape.property("VISIBLE"), PropertyValue(true));
  EXPECT_EQ(shape.property("backcolor"), PropertyValue(std::int64_t{128}));
  EXPECT_EQ(shape.property("ForeColor"), PropertyValue(std::int64_t{7}));
  EXPECT_EQ(shape.property("Flavour"), std::nullopt);
}

TEST(Animation, HoldsItsFile) {
  Window window("Form");
  Animation animation(window, "Gif");
  ChangeList seen;
  animation.observe(seen);
  animation.set_file("C:\\search.gif");
  EXPECT_EQ(animation.file(), "C:\\search.gif");
  EXPECT_EQ(seen.changes, Changes{Change::kText});
}

}  // namespace
}  // namespace quillvane
