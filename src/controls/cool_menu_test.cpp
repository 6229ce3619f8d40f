#include "controls/cool_menu.h"

#include <gtest/gtest.h>

#include <map>

#include "controls/bitmap_canvas.h"
#include "tests/support/block_raster.h"

namespace quillvane {
namespace {

using Notes = std::vector<std::string>;

constexpr std::uintptr_t kWindow = 5;
constexpr MenuId kBar = 1;
constexpr MenuId kFile = 2;
constexpr MenuId kMore = 3;

class NotingHost final : public MenuHost {
 public:
  void replace_procedure(std::uintptr_t window) override {
    notes.push_back("replace " + std::to_string(window));
  }
  void restore_procedure(std::uintptr_t window) override {
    notes.push_back("restore " + std::to_string(window));
  }
  MenuId menu_bar(std::uintptr_t /*window*/) override { return kBar; }
  std::vector<SystemMenuItem> items(MenuId menu) override { return menus[menu]; }
  void own(MenuId menu, std::size_t place, std::uint32_t type, CMyItemDatas::Key key) override {
    menus[menu][place].type = type;
    menus[menu][place].data = key;
  }

  std::map<MenuId, std::vector<SystemMenuItem>> menus = {
      {kBar, {{0, "&File", kFile}, {0, "&Help"}}},
      {kFile, {{0, "&Scan now\tF5"}, {kMenuSeparator, ""}, {0, "&More", kMore}, {0, "&Stop"}}},
      {kMore, {{0, "Clean..."}}}};
  Notes notes;
};

struct Stage {
  Stage() { menu.set_button_names({"clean", "scan"}); }

  [[nodiscard]] const CMyItemData& item(MenuId of, std::size_t place) {
    return *menu.item_datas().item(host.menus[of][place].data);
  }

  NotingHost host;
  CoolMenu menu{host};
};

TEST(CoolMenu, ConvertsTheBarAndAllBelowItAtOnce) {
  Stage stage;
  stage.menu.install(kWindow, nullptr, true);
  EXPECT_EQ(stage.host.notes, Notes{"replace 5"});
  EXPECT_EQ(stage.menu.item_datas().count(), 7U);
  EXPECT_EQ(stage.item(kBar, 0), (CMyItemData{true, -1, 0, "&File"}));
  EXPECT_EQ(stage.item(kFile, 0), (CMyItemData{false, 1, 0, "&Scan now\tF5"}));
  EXPECT_EQ(stage.item(kFile, 1), (CMyItemData{false, -1, kMenuSeparator, ""}));
  EXPECT_EQ(stage.item(kMore, 0), (CMyItemData{false, 0, 0, "Clean..."}));
  EXPECT_EQ(stage.host.menus[kFile][1].type, kMenuSeparator | kMenuOwnerDrawn);
}

TEST(CoolMenu, OrConvertsEachMenuWhenItOpens) {
  Stage stage;
  stage.menu.install(kWindow, nullptr, false);
  EXPECT_EQ(stage.menu.item_datas().count(), 0U);
  stage.menu.menu_opens(kMore);
  stage.menu.menu_opens(kMore);
  EXPECT_EQ(stage.menu.item_datas().count(), 1U);
  EXPECT_FALSE(stage.item(kMore, 0).bMainMenu);
}

TEST(CoolMenu, AnEmptyWindowTakesItAway) {
  Stage stage;
  stage.menu.install(0, nullptr, true);
  EXPECT_TRUE(stage.host.notes.empty());
  stage.menu.install(kWindow, nullptr, true);
  stage.menu.install(0, nullptr, true);
  EXPECT_EQ(stage.host.notes, (Notes{"replace 5", "restore 5"}));
  EXPECT_EQ(stage.menu.item_datas().count(), 0U);
  EXPECT_FALSE(stage.menu.installed());
  stage.menu.menu_opens(kFile);
  EXPECT_EQ(stage.menu.item_datas().count(), 0U);
}

TEST(CoolMenu, ItsEndGivesTheProcedureBack) {
  NotingHost host;
  {
    CoolMenu menu(host);
    menu.install(kWindow, nullptr, true);
  }
  EXPECT_EQ(host.notes, (Notes{"replace 5", "restore 5"}));
}

TEST(CoolMenu, ThePictureIsThatOfTheLeadingWord) {
  Stage stage;
  EXPECT_EQ(stage.menu.button_index("S&can now\tF5"), 1);
  EXPECT_EQ(stage.menu.button_index("&CLEAN..."), 0);
  EXPECT_EQ(stage.menu.button_index("Cleaning"), -1);
  EXPECT_EQ(stage.menu.button_index(""), -1);
}

TEST(CoolMenu, ALetterChoosesTheNextEntryThatHasIt) {
  Stage stage;
  stage.menu.install(kWindow, nullptr, true);
  EXPECT_EQ(stage.menu.entry_of_key(kFile, "S", -1), 0U);
  EXPECT_EQ(stage.menu.entry_of_key(kFile, "s", 0), 3U);
  EXPECT_EQ(stage.menu.entry_of_key(kFile, "s", 3), 0U);
  EXPECT_EQ(stage.menu.entry_of_key(kFile, "m", 3), 2U);
  EXPECT_EQ(stage.menu.entry_of_key(kFile, "x", 0), std::nullopt);
  EXPECT_EQ(stage.menu.entry_of_key(kFile, "", 0), std::nullopt);
}

TEST(CoolMenu, AnEntryIsAsLargeAsItsTexts) {
  Stage stage;
  stage.menu.install(kWindow, nullptr, true);
  Image image(1, 1);
  BlockRaster raster;
  BitmapCanvas canvas(image, &raster);
  const auto size = [&](MenuId menu, std::size_t place) {
    return stage.menu.measure(canvas, stage.host.menus[menu][place].data, 18, 24);
  };
  // "File" is 24 wide and 10 high.
  EXPECT_EQ(size(kBar, 0), (Size{24, 18}));
  // "Scan now" and "F5" are 48 and 12 wide; before each a gutter of 24, and 6 at both ends.
  EXPECT_EQ(size(kFile, 0), (Size{120, 24}));
  EXPECT_EQ(size(kFile, 1), (Size{0, 8}));
  EXPECT_EQ(stage.menu.measure(canvas, 999, 18, 24), std::nullopt);
}

struct PaintedEntry {
  PaintedEntry(CoolMenu& menu, CMyItemDatas::Key key, const MenuItemState& state) {
    CanvasColors colors = bitmap_colors();
    colors.system[4] = 0x040404;
    colors.system[7] = 0x070707;
    colors.system[14] = 0x141414;
    colors.system[17] = 0x171717;
    BitmapCanvas canvas(image, &raster, colors);
    menu.draw(canvas, key, {0, 0, 120, 24}, state);
  }

  [[nodiscard]] Color at(int x, int y) const { return image.at(x, y) & 0xFFFFFFU; }

  BlockRaster raster;
  Image image{120, 24};
};

TEST(CoolMenu, AnEntryIsDrawnInTheColoursOfMenus) {
  Stage stage;
  const Image picture(16, 16, 0xFF123456);
  stage.menu.install(
      kWindow, [&](int number) { return number == 1 ? &picture : nullptr; }, true);
  const auto key = stage.host.menus[kFile][0].data;
  // The caption begins at 30 and stands in rows 7 to 16, covered from 9 on; the short-cut ends at
  // 114; the picture lies in the gutter from (4, 4) on.
  const PaintedEntry plain(stage.menu, key, {});
  EXPECT_EQ(plain.at(0, 0), 0x040404U);
  EXPECT_EQ(plain.at(30, 10), 0x070707U);
  EXPECT_EQ(plain.at(102, 10), 0x070707U);
  EXPECT_EQ(plain.at(12, 12), 0x123456U);
  const PaintedEntry selected(stage.menu, key, {.selected = true});
  EXPECT_EQ(selected.at(0, 0), 0xD77800U);
  EXPECT_EQ(selected.at(30, 10), 0x141414U);
  EXPECT_EQ(selected.at(12, 2), 0xFFFFFFU);  // raised
  EXPECT_EQ(selected.at(12, 21), 0xA0A0A0U);
  const PaintedEntry disabled(stage.menu, key, {.disabled = true});
  EXPECT_EQ(disabled.at(30, 10), 0x171717U);
  EXPECT_EQ(disabled.at(12, 12), 0xA0A0A0U);
  EXPECT_EQ(disabled.at(20, 20), 0xFFFFFFU);  // etched
}

TEST(CoolMenu, ASeparatorIsAnEtchedLineAndTheBarKeepsItsColour) {
  Stage stage;
  stage.menu.install(kWindow, nullptr, true);
  const PaintedEntry line(stage.menu, stage.host.menus[kFile][1].data, {});
  EXPECT_EQ(line.at(60, 11), 0xA0A0A0U);
  EXPECT_EQ(line.at(60, 12), 0xFFFFFFU);
  EXPECT_EQ(line.at(60, 13), 0x040404U);
  const PaintedEntry bar(stage.menu, stage.host.menus[kBar][0].data, {.selected = true});
  EXPECT_EQ(bar.at(0, 0), 0x040404U);
  EXPECT_EQ(bar.at(48, 10), 0x070707U);  // "File" stands in the middle
}

TEST(CoolMenu, TheFontIsAskedForOnceAndAgainWhenSettingsChange) {
  Stage stage;
  stage.menu.install(kWindow, nullptr, true);
  int asked = 0;
  stage.menu.system_font = [&] {
    ++asked;
    return FontStyle{};
  };
  const auto key = stage.host.menus[kFile][0].data;
  const PaintedEntry one(stage.menu, key, {});
  const PaintedEntry two(stage.menu, key, {});
  EXPECT_EQ(asked, 1);
  stage.menu.settings_changed();
  const PaintedEntry three(stage.menu, key, {});
  EXPECT_EQ(asked, 2);
}

TEST(CMyItemDatas, AKeyStaysItsOwn) {
  CMyItemDatas items;
  const auto one = items.add({.sMenuText = "one"});
  const auto two = items.add({.sMenuText = "two"});
  items.remove(one);
  EXPECT_EQ(items.count(), 1U);
  EXPECT_EQ(items.item(one), nullptr);
  EXPECT_EQ(items.item(two)->sMenuText, "two");
  EXPECT_NE(items.add({}), one);
}

}  // namespace
}  // namespace quillvane
