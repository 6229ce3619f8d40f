#include "controls/tray_area.h"

#include <gtest/gtest.h>

#include "forms/window.h"

namespace quillvane {
namespace {

using Notes = std::vector<std::string>;

class NotingTray final : public Tray {
 public:
  void add(const void* /*owner*/, const std::string& tip,
           std::function<void(int message)> told) override {
    notes.push_back("add " + tip);
    mouse = std::move(told);
  }
  void modify(const void* /*owner*/, const std::string& tip) override {
    notes.push_back("modify " + tip);
  }
  void remove(const void* /*owner*/) override { notes.emplace_back("remove"); }

  std::function<void(int message)> mouse;

  Notes notes;
};

struct Stage {
  NotingTray tray;
  Window window{"Form"};
  TrayArea area{window, "TrayArea1", tray, "tip"};
};

TEST(TrayArea, IsAddedAndRemovedOnce) {
  Stage stage;
  stage.area.set_icon_visible(true);
  stage.area.set_icon_visible(true);
  stage.area.set_tool_tip("other");
  stage.area.set_icon_visible(false);
  stage.area.set_icon_visible(false);
  stage.area.set_tool_tip("third");
  EXPECT_EQ(stage.tray.notes, (Notes{"add tip", "modify other", "remove"}));
}

TEST(TrayArea, IsToldByTheIconWhatTheMouseDoes) {
  Stage stage;
  int buttons = 0;
  stage.area.on_mouse_up = [&buttons](int button) { buttons += button; };
  stage.area.set_icon_visible(true);
  stage.tray.mouse(514);
  EXPECT_EQ(buttons, 1);
}

TEST(TrayArea, NoIconHidesIt) {
  Stage stage;
  stage.area.set_icon_visible(true);
  stage.area.set_icon(std::make_shared<const Image>(16, 16));
  stage.area.set_icon(nullptr);
  EXPECT_FALSE(stage.area.icon_visible());
  EXPECT_EQ(stage.tray.notes, (Notes{"add tip", "modify tip", "remove"}));
}

TEST(TrayArea, TakesItsIconAwayAtTheEnd) {
  NotingTray tray;
  Window window("Form");
  {
    TrayArea area(window, "TrayArea1", tray);
    area.set_icon_visible(true);
  }
  EXPECT_EQ(tray.notes, (Notes{"add ", "remove"}));
}

TEST(TrayArea, TellsWhatTheMouseDoes) {
  Stage stage;
  Notes events;
  stage.area.on_mouse_down = [&](int button) {
    events.push_back("down " + std::to_string(button));
  };
  stage.area.on_mouse_up = [&](int button) { events.push_back("up " + std::to_string(button)); };
  stage.area.on_double_click = [&] { events.emplace_back("double"); };
  stage.area.set_icon_visible(true);
  for (int message = 511; message <= 519; ++message) stage.area.mouse_move(message * 15, 15);
  EXPECT_EQ(events, (Notes{"down 1", "up 1", "double", "down 2", "up 2", "double"}));
}

TEST(TrayArea, ItsPropertiesAreStoredAndFoundAgain) {
  Stage stage;
  stage.area.set_icon(std::make_shared<const Image>(16, 16));
  stage.area.set_icon_visible(true);
  PropertyStore store;
  stage.area.write_properties(store);
  Stage other;
  other.area.read_properties(store);
  PropertyStore again;
  other.area.write_properties(again);
  EXPECT_EQ(again, store);
  other.area.read_properties({});
  EXPECT_FALSE(other.area.icon_visible());
  EXPECT_NE(other.area.icon(), nullptr);
  EXPECT_EQ(other.area.tool_tip(), "");
}

}  // namespace
}  // namespace quillvane
