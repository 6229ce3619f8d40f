#include "forms/window.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/buttons.h"

namespace quillvane {
namespace {

class TestWindow final : public Window {
 public:
  TestWindow() : Window("Form7") {
    add_field("totalfiles", [this] { return PropertyValue(totalfiles); });
  }

  double totalfiles = 0;
  std::vector<WindowState> resizes;

 protected:
  void resized() override { resizes.push_back(state()); }
};

TEST(Window, BeginsHidden) {
  const TestWindow window;
  EXPECT_FALSE(window.visible());
  EXPECT_EQ(window.state(), WindowState::kNormal);
}

TEST(Window, FindsItsControlsByNameInAnyCase) {
  TestWindow window;
  const Button start(window, "cmd_start");
  const Label second(window, "Label12(1)");
  EXPECT_EQ(window.find("CMD_Start"), &start);
  EXPECT_EQ(window.find("label12(1)"), &second);
  EXPECT_EQ(window.find("cmd"), nullptr);
}

TEST(Window, KeepsItsControlsInTheirOrder) {
  TestWindow window;
  Button b(window, "b");
  Button a(window, "a");
  EXPECT_EQ(window.controls(), (std::vector<Control*>{&b, &a}));
}

TEST(Window, ReadsItsFieldsByNameInAnyCase) {
  TestWindow window;
  window.totalfiles = 12;
  EXPECT_EQ(window.field("TotalFiles"), PropertyValue(12.0));
  EXPECT_EQ(window.field("nosuchfield"), std::nullopt);
}

TEST(Window, EachChangeOfStateRunsItsResize) {
  TestWindow window;
  window.minimise();
  window.restore();
  EXPECT_EQ(window.resizes, (std::vector{WindowState::kMinimised, WindowState::kNormal}));
}

TEST(Window, TellsItsViewWhenItIsShownHiddenOrMinimised) {
  TestWindow window;
  int told = 0;
  window.on_view_change = [&] { ++told; };
  window.show();
  window.minimise();
  window.hide();
  EXPECT_EQ(told, 3);
}

TEST(Window, TellsItsViewOnceWhenItComesAboveTheOthers) {
  TestWindow window;
  int told = 0;
  window.on_view_change = [&] { ++told; };
  EXPECT_FALSE(window.topmost());
  window.set_topmost(true);
  window.set_topmost(true);
  EXPECT_TRUE(window.topmost());
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace quillvane
