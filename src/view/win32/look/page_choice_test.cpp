#include "view/win32/look/page_choice.h"

#include <gtest/gtest.h>

#include "forms/buttons.h"
#include "forms/simple_controls.h"
#include "forms/text_box.h"

namespace quillvane {
namespace {

constexpr PageGrid kPages[] = {
    {"Run", {}, {}, {}}, {"Result", {}, {}, {}}, {"First", {}, {}, {}}, {{}, {}, {}, {}}};
constexpr PageSet kSet = {.own_tab = "Own",
                          .pages_tab = "Pages",
                          .tab_row = 1,
                          .first_page = "ToFirst",
                          .shared_page = "Result",
                          .run_page = "Run",
                          .own_work = "Stop",
                          .pages_work = "Working",
                          .pages = kPages};

// A window that opens with the shared page before the first one.
struct Stage {
  void bring_to_front(Frame& page) {
    for (Frame* frame : {&run, &result, &first}) frame->set_visible(frame == &page);
    choice.look();
  }

  Window window{"W"};
  Frame first{window, "First"};
  Frame run{window, "Run", {.hidden = true}};
  Frame result{window, "Result"};
  Button stop{window, "Stop", {.disabled = true}};
  TextBox working{window, "Working"};
  PageChoice choice{kSet, window};
};

TEST(PageChoice, BeginsWithTheWindowsOwnControls) {
  Stage stage;
  stage.choice.look();

  EXPECT_FALSE(stage.choice.shows_pages());
  EXPECT_TRUE(stage.choice.shows(nullptr));
  for (const PageGrid& page : kPages) EXPECT_FALSE(stage.choice.shows(&page)) << page.frame;
}

TEST(PageChoice, TheOtherTabBeginsWithTheFirstPage) {
  Stage stage;

  EXPECT_EQ(stage.choice.choose(true), "ToFirst");
  stage.bring_to_front(stage.first);

  EXPECT_FALSE(stage.choice.shows(nullptr));
  EXPECT_TRUE(stage.choice.shows(&kPages[2]));
  EXPECT_TRUE(stage.choice.shows(&kPages[3]));  // on all pages
  EXPECT_FALSE(stage.choice.shows(&kPages[0]));
}

TEST(PageChoice, GoesBackToThePageThatWasLeft) {
  Stage stage;
  EXPECT_EQ(stage.choice.choose(true), "ToFirst");
  stage.bring_to_front(stage.first);

  EXPECT_EQ(stage.choice.choose(false), "");
  EXPECT_TRUE(stage.choice.shows(nullptr));
  EXPECT_EQ(stage.choice.choose(true), "");
  EXPECT_TRUE(stage.choice.shows(&kPages[2]));
}

TEST(PageChoice, APageThatTheProgramBringsToTheFrontShows) {
  Stage stage;
  stage.bring_to_front(stage.first);
  EXPECT_TRUE(stage.choice.shows(&kPages[2]));
}

TEST(PageChoice, TheSharedPageStaysOnTheSideWhoseJobFilledIt) {
  Stage stage;
  stage.bring_to_front(stage.first);
  stage.bring_to_front(stage.run);
  stage.bring_to_front(stage.result);

  EXPECT_TRUE(stage.choice.shows(&kPages[1]));
  EXPECT_TRUE(stage.choice.holds_result_of_pages());
  EXPECT_EQ(stage.choice.choose(false), "");
  EXPECT_EQ(stage.choice.choose(true), "");
  EXPECT_TRUE(stage.choice.shows(&kPages[1]));
}

TEST(PageChoice, TheWindowsOwnJobBringsItsControlsBack) {
  Stage stage;
  stage.bring_to_front(stage.first);
  stage.bring_to_front(stage.run);
  stage.stop.set_enabled(true);
  stage.bring_to_front(stage.result);
  EXPECT_TRUE(stage.choice.shows(nullptr));
  EXPECT_FALSE(stage.choice.holds_result_of_pages());

  stage.stop.set_enabled(false);
  stage.choice.look();
  EXPECT_EQ(stage.choice.choose(true), "ToFirst");
}

TEST(PageChoice, NoTabIsChosenWhileAJobRuns) {
  Stage stage;
  stage.stop.set_enabled(true);
  stage.choice.look();
  EXPECT_TRUE(stage.choice.is_locked());
  EXPECT_EQ(stage.choice.choose(true), "");
  EXPECT_TRUE(stage.choice.shows(nullptr));

  stage.stop.set_enabled(false);
  stage.working.set_text("1");
  stage.bring_to_front(stage.run);
  EXPECT_TRUE(stage.choice.is_locked());
  EXPECT_EQ(stage.choice.choose(false), "");
  EXPECT_TRUE(stage.choice.shows(&kPages[0]));
  EXPECT_FALSE(stage.choice.shows(&kPages[3]));  // nothing that leads away from the run

  stage.working.set_text("0");
  stage.choice.look();
  EXPECT_FALSE(stage.choice.is_locked());
}

}  // namespace
}  // namespace quillvane
