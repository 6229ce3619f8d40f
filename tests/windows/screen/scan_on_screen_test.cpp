// A scan as a user sees and works it.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/windows/screen/console_result.h"
#include "tests/windows/screen/junk_page.h"

namespace quillvane {
namespace {

using ScanOnScreen = JunkPage;
using Json = nlohmann::json;

constexpr COLORREF kFoundColor = 192;  // of a node with files
constexpr COLORREF kFoundMark = 128;   // beside the summary

TEST_F(ScanOnScreen, FindsWhatTheConsoleFinds) {
  have_result();

  const Json found = Json::parse(console_output(L"scan --json --list"));
  EXPECT_EQ(summary(), found["summary"]);
  std::vector<std::string> captions;
  for (const Json& category : found["categories"]) captions.push_back(category["caption"]);
  std::vector<std::string> texts;
  for (const ScreenNode& node : program_.nodes()) texts.push_back(node.text);
  EXPECT_EQ(texts, captions);
  std::vector<std::string> paths;
  std::vector<std::string> sizes;
  std::vector<std::string> dates;
  for (const Json& file : found["files"]) {
    paths.push_back(file["path"]);
    sizes.push_back(file["size"]);
    dates.push_back(file["date"]);
  }
  EXPECT_GE(paths.size(), 4U);
  for (const HWND list : {category_list(), whole_list()}) {
    EXPECT_EQ(program_.row_texts(list, 0), paths);
    EXPECT_EQ(program_.row_texts(list, 1), sizes);
    EXPECT_EQ(program_.row_texts(list, 2), dates);
  }
}

TEST_F(ScanOnScreen, ShowsCountsAndColoursOfTheCategories) {
  have_result();

  const std::vector<ScreenNode> nodes = program_.nodes();
  EXPECT_EQ(nodes[6].text, "Log Files ( 1 files, 512 B )");
  EXPECT_EQ(nodes[8].text, "Downloaded Programs ( 1 files, 10 B )");
  EXPECT_EQ(nodes[23].text, "Custom Files and Folders");
  EXPECT_TRUE(nodes[0].selected);
  EXPECT_TRUE(shows_color(program_.node_area(nodes[6]), kFoundColor));
  EXPECT_FALSE(shows_color(program_.node_area(nodes[10]), kFoundColor));  // nothing was found
  EXPECT_TRUE(shows_color(area_of(program_.control("Result mark")), kFoundMark));
  EXPECT_TRUE(program_.is_enabled("Create Report"));
  EXPECT_TRUE(program_.tool_enabled(14));
  keep_picture("window-scanned", program_.area());
}

TEST_F(ScanOnScreen, CancelEndsItAndAnotherCanBegin) {
  program_.click("Start");
  ASSERT_TRUE(eventually("a scan", [this] { return program_.is_enabled("Cancel"); }));
  EXPECT_FALSE(program_.is_enabled("Start"));
  ASSERT_TRUE(eventually("the animation", [this] { return is_at_work(); }));
  keep_picture("window-scanning", program_.area());

  program_.click("Cancel");

  // The cancel came in the pause before the first file.
  ASSERT_TRUE(eventually("an empty result", [this] {
    return summary().starts_with("Junk files found : ( 0 ) files , Size : ( 0 B ) - Click");
  }));
  ASSERT_TRUE(eventually("rest", [this] { return !is_at_work(); }));
  EXPECT_EQ(program_.rows(whole_list()), 0);
  scan();
  EXPECT_GE(program_.rows(whole_list()), 4);
}

TEST_F(ScanOnScreen, TheToolBarStartsItToo) {
  program_.click_tool(5);
  ASSERT_TRUE(eventually("a scan", [this] { return program_.tool_enabled(7); }));
  EXPECT_FALSE(program_.tool_enabled(5));
  ASSERT_TRUE(eventually("the scan's end", [this] { return program_.tool_enabled(5); }));

  for (const int button : {5, 6, 9, 10, 12, 13})
    EXPECT_TRUE(program_.tool_enabled(button)) << button;
  EXPECT_GE(program_.rows(whole_list()), 4);
}

TEST_F(ScanOnScreen, AClickedNodeShowsItsFilesAlone) {
  have_result();

  program_.click_node("Log Files");

  ASSERT_TRUE(eventually("one row", [this] { return program_.rows(category_list()) == 1; }));
  EXPECT_EQ(program_.row_text(category_list(), 0, 0), "C:\\windows\\Logs\\CBS\\qv-setup.log");
  EXPECT_EQ(program_.row_text(category_list(), 0, 1), "512 B");
  keep_picture("window-category", program_.area());
}

TEST_F(ScanOnScreen, TheTickOfAGroupTicksItsNodesAndRows) {
  have_result();
  ASSERT_FALSE(program_.row_ticked(category_list(), 0));

  program_.tick_node("Windows (");

  ASSERT_TRUE(eventually("ticks", [this] { return program_.nodes()[10].ticked; }));
  const std::vector<ScreenNode> nodes = program_.nodes();
  for (std::size_t i = 0; i < nodes.size(); ++i) EXPECT_EQ(nodes[i].ticked, i <= 10) << i;
  for (int row = 0; row < program_.rows(category_list()); ++row) {
    EXPECT_TRUE(program_.row_ticked(category_list(), row)) << row;
  }
  keep_picture("window-ticked", program_.area());
}

TEST_F(ScanOnScreen, AClickOnAColumnSortsAllFilesAndAnotherTurnsTheOrder) {
  have_result();
  choose_all_files();
  const HWND list = whole_list();
  // The sizes' column, left of that of the dates.
  const RECT area = area_of(list);
  const POINT header{area.right - GetSystemMetrics(SM_CXVSCROLL) - 200, area.top + 10};
  const auto place_of = [&](const std::string& path) {
    const std::vector<std::string> texts = program_.row_texts(list, 0);
    return std::find(texts.begin(), texts.end(), path) - texts.begin();
  };
  const auto large_before_log = [&] {
    return place_of("C:\\windows\\Temp\\qv-large.tmp") <
           place_of("C:\\windows\\Logs\\CBS\\qv-setup.log");
  };
  ASSERT_TRUE(large_before_log());  // as they were found

  // By text: the first click turns rising into falling, so that "512 B" comes before "1.43 MB".
  click_at(header);
  ASSERT_TRUE(eventually("falling sizes", [&] { return !large_before_log(); }));
  keep_picture("window-sorted", program_.area());
  click_at({header.x + 20, header.y});  // at the same place it would be a double click
  ASSERT_TRUE(eventually("rising sizes", large_before_log));
}

TEST_F(ScanOnScreen, ThePopUpOfAListTicksAllItsRows) {
  have_result();

  right_click_at(middle(program_.row_area(category_list(), 0)));
  ASSERT_TRUE(eventually("a menu", [] { return FindWindowW(L"#32768", nullptr) != nullptr; }));
  keep_picture("window-menu", program_.area());
  press_keys("Down Down Down Down Down Return");  // the fifth entry: "Select All"

  ASSERT_TRUE(eventually("ticks", [this] { return program_.row_ticked(category_list(), 0); }));
}

TEST_F(ScanOnScreen, TheSpaceBarTicksTheRowInHand) {
  have_result();

  click_at(middle(program_.row_area(category_list(), 1)));
  press_keys("space");

  ASSERT_TRUE(eventually("a tick", [this] { return program_.row_ticked(category_list(), 1); }));
  EXPECT_FALSE(program_.row_ticked(category_list(), 0));
}

}  // namespace
}  // namespace quillvane
