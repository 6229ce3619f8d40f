// The way through the pages of the drive search.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/search_fixture.h"

namespace quillvane {
namespace {

// Which of the frames is shown, by its name; all of them when it is more than one.
std::string shown(const Form7& form) {
  std::string names;
  for (const Frame* frame :
       {&form.Frame2, &form.Frame4, &form.Frame6, &form.Frame8, &form.Frame80}) {
    if (frame->visible()) names += frame->name() + " ";
  }
  return names;
}

TEST(SearchPages, LeadFromTheDrivesOverTypesAndListsToTheRun) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  Form7& form = fixture.start_with_drives({1});
  form.chameleonButton6.click();
  EXPECT_EQ(form.wizardstep, 0);
  EXPECT_EQ(shown(form), "Frame2 ");
  EXPECT_FALSE(form.chameleonButton8.enabled());

  form.chameleonButton10.click();
  EXPECT_EQ(form.wizardstep, 1);
  EXPECT_EQ(shown(form), "Frame4 ");
  EXPECT_TRUE(form.chameleonButton8.enabled());
  form.chameleonButton10.click();
  EXPECT_EQ(form.wizardstep, 2);
  EXPECT_EQ(shown(form), "Frame6 ");
  form.chameleonButton10.click();

  // A run stands at the page before it.
  EXPECT_EQ(form.wizardstep, 2);
  EXPECT_EQ(shown(form), "Frame8 Frame80 ");
  EXPECT_EQ(rows(form.view1), Texts{"C:\\a.tmp"});
  EXPECT_FALSE(form.chameleonButton10.enabled());
  EXPECT_FALSE(form.chameleonButton8.enabled());
  for (const Button* button : {&form.orvbutton2, &form.orvbutton3, &form.chameleonButton3,
                               &form.chameleonButton4, &form.chameleonButton11}) {
    EXPECT_TRUE(button->enabled()) << button->name();
  }
}

TEST(SearchPages, LeadBackToTheDrives) {
  SearchFixture fixture;
  Form7& form = fixture.start();
  form.chameleonButton10.click();
  form.chameleonButton10.click();
  form.chameleonButton8.click();
  EXPECT_EQ(form.wizardstep, 1);
  EXPECT_EQ(shown(form), "Frame4 ");
  form.chameleonButton8.click();
  EXPECT_EQ(form.wizardstep, 0);
  EXPECT_EQ(shown(form), "Frame2 ");
  EXPECT_FALSE(form.chameleonButton8.enabled());
}

TEST(SearchPages, ARunWithoutHitsLocksTheResults) {
  SearchFixture fixture;
  Form7& form = fixture.start_with_drives({1});
  form.orvbutton5.click();
  for (const Button* button : {&form.orvbutton2, &form.orvbutton3, &form.chameleonButton3,
                               &form.chameleonButton4, &form.chameleonButton11}) {
    EXPECT_FALSE(button->enabled()) << button->name();
  }
  EXPECT_EQ(shown(form), "Frame8 ");
}

TEST(SearchPages, ARunBeginsWithAClearPage) {
  SearchFixture fixture;
  Form7& form = fixture.start_with_drives({1});
  form.command811.set_enabled(true);
  form.command911.set_enabled(true);
  form.Label7.set_caption("9");
  form.Label10.set_caption("9");
  form.nodrivepicked = 1;
  std::string middle;
  fixture.at_serving(
      1, [&] { middle = shown(form) + form.Label7.caption() + form.Label10.caption(); });
  form.orvbutton5.click();
  EXPECT_EQ(middle, "Frame8 ");
  EXPECT_FALSE(form.command811.enabled());
  EXPECT_FALSE(form.command911.enabled());
  EXPECT_EQ(form.nodrivepicked, 0);
}

TEST(SearchPages, WithoutADriveTheWayLeadsBackToTheDrives) {
  SearchFixture fixture;
  Form7& form = fixture.start();
  for (int i = 0; i < 3; ++i) form.chameleonButton10.click();
  EXPECT_EQ(fixture.machine.dialogs().take_boxes().size(), 1U);
  EXPECT_EQ(shown(form), "Frame2 ");
  EXPECT_EQ(form.wizardstep, 0);
  // The way on comes back by the button that leaves the run.
  EXPECT_FALSE(form.chameleonButton10.enabled());
  form.orvbutton10.click();
  EXPECT_TRUE(form.chameleonButton10.enabled());
  EXPECT_TRUE(form.chameleonButton8.enabled());
}

TEST(SearchPages, LeavingTheRunOpensThePagesAgain) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  Form7& form = fixture.start_with_drives({1});
  form.orvbutton5.click();
  form.orvbutton10.click();
  EXPECT_EQ(form.Text4.text(), "1");
  EXPECT_EQ(form.orvbutton10.caption(), "Exit");
  EXPECT_EQ(shown(form), "Frame80 ");
  for (const Button* button : {&form.orvbutton8, &form.chameleonButton1, &form.chameleonButton8,
                               &form.chameleonButton10}) {
    EXPECT_TRUE(button->enabled()) << button->name();
  }
}

TEST(SearchPages, LeavingARunWithoutHitsLeadsToTheLists) {
  SearchFixture fixture;
  Form7& form = fixture.start_with_drives({1});
  form.orvbutton5.click();
  form.orvbutton10.click();
  EXPECT_EQ(shown(form), "Frame6 ");
  EXPECT_EQ(form.wizardstep, 2);
  EXPECT_FALSE(form.orvbutton2.enabled());
}

TEST(SearchPages, TheButtonSaysCancelWhileTheSearchRuns) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  Form7& form = fixture.start_with_drives({1});
  EXPECT_EQ(form.orvbutton10.caption(), "Exit");
  std::string during;
  std::string behind_the_click;
  fixture.when([&] { return !form.Label5.caption().empty(); },
               [&] {
                 during = form.orvbutton10.caption();
                 form.orvbutton10.click();
                 behind_the_click = form.orvbutton10.caption();
               });
  form.orvbutton5.click();
  EXPECT_EQ(during, "Cancel");
  EXPECT_EQ(behind_the_click, "Exit");
}

TEST(SearchPages, TheResultsAreRemovedByTheCleaning) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  fixture.machine.add_file("C:\\b.doc", 10);
  Form7& form = fixture.start_with_drives({1});
  form.orvbutton5.click();
  form.orvbutton2.click();
  EXPECT_FALSE(fixture.machine.has_file("C:\\a.tmp"));
  EXPECT_TRUE(fixture.machine.has_file("C:\\b.doc"));
}

TEST(SearchPages, NothingIsRemovedWithoutTheIgnoreList) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  Form7& form = fixture.start_with_drives({1});
  form.ignore_problem = "cannot be read";
  form.lock_removers();
  form.orvbutton5.click();
  EXPECT_FALSE(form.orvbutton2.enabled());
  form.orvbutton2.click();
  EXPECT_TRUE(fixture.machine.has_file("C:\\a.tmp"));
}

}  // namespace
}  // namespace quillvane
