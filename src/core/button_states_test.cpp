// Which buttons are enabled when.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

// The names of the command buttons that are enabled.
Texts enabled(const Form7& form) {
  Texts names;
  for (const Button* button :
       {&form.cmd_start, &form.cmd_cancel, &form.cmd_clean, &form.cmd_all, &form.cmd_non,
        &form.cmd_custom, &form.cmd_ignore, &form.cmd_report}) {
    if (button->enabled()) names.push_back(button->name().substr(4));
  }
  return names;
}

const Texts kFresh{"start", "custom", "ignore"};
const Texts kScanning{"cancel"};
const Texts kCustomGroup{};
const Texts kDoneWithFiles{"start", "clean", "all", "non", "custom", "ignore", "report"};
const Texts kDoneWithout{"start", "clean", "all", "non", "custom", "ignore"};
const Texts kCancellingWithRows{"start", "clean", "all", "non", "custom", "ignore"};
const Texts kCancellingWithout{"start", "custom", "ignore"};

// Calls `act` when a control changes.
class OnChange final : public ControlObserver {
 public:
  explicit OnChange(std::function<void()> act) : act_(std::move(act)) {}
  void changed(Control&, Change) override { act_(); }

 private:
  std::function<void()> act_;
};

// The window, with or without a file to be found.
struct Staged : ScanFixture {
  explicit Staged(bool junk = true) {
    if (junk) machine.add_file("C:\\Windows\\Temp\\a.tmp", 10);
    if (junk) machine.add_file("C:\\Windows\\Temp\\b.tmp", 10);
  }
};

TEST(ButtonStates, FreshAfterLoad) {
  Staged staged;
  EXPECT_EQ(enabled(staged.start()), kFresh);
}

TEST(ButtonStates, FreshAfterSwitchDHasNoStart) {
  Staged staged;
  EXPECT_EQ(enabled(staged.start("d")), (Texts{"custom", "ignore"}));
}

TEST(ButtonStates, ScanningOnlyOffersTheCancel) {
  Staged staged;
  Form7& form = staged.start();
  Texts seen;
  staged.at_serving(1, [&] { seen = enabled(form); });
  form.cmd_start.click();
  EXPECT_EQ(seen, kScanning);
}

TEST(ButtonStates, ScanningAgainTakesTheReportBack) {
  Staged staged;
  Form7& form = staged.start();
  form.cmd_start.click();
  EXPECT_EQ(enabled(form), kDoneWithFiles);
  Texts seen;
  staged.at_serving(1, [&] { seen = enabled(form); });
  form.cmd_start.click();
  EXPECT_EQ(seen, kScanning);
}

TEST(ButtonStates, TheCustomGroupCanNoLongerBeCancelled) {
  Staged staged;
  Form7& form = staged.start();
  Texts seen{"never disabled"};
  OnChange on_cancel_change([&] {
    if (!form.cmd_cancel.enabled()) seen = enabled(form);
  });
  form.cmd_cancel.observe(on_cancel_change);

  form.cmd_start.click();

  EXPECT_EQ(seen, kCustomGroup);
  form.cmd_cancel.unobserve(on_cancel_change);
}

TEST(ButtonStates, DoneOffersTheReportOnlyWithFiles) {
  Staged with_files(true);
  with_files.start().cmd_start.click();
  EXPECT_EQ(enabled(with_files.program->main_window()), kDoneWithFiles);
  Staged without(false);
  without.start().cmd_start.click();
  EXPECT_EQ(enabled(without.program->main_window()), kDoneWithout);
}

TEST(ButtonStates, CancellingOffersTheResultsOnlyWithRows) {
  for (const bool with_rows : {false, true}) {
    Staged staged;
    Form7& form = staged.start();
    Texts seen;
    staged.when([&] { return form.Text13.visible() && form.view1.count() == (with_rows ? 1 : 0); },
                [&] {
                  form.cmd_cancel.click();
                  seen = enabled(form);
                });
    form.cmd_start.click();
    EXPECT_EQ(seen, with_rows ? kCancellingWithRows : kCancellingWithout);
  }
}

TEST(ButtonStates, ACancelledScanEndsAsDone) {
  Staged staged;
  Form7& form = staged.start();
  staged.when([&] { return form.view1.count() == 1; }, [&] { form.cmd_cancel.click(); });
  form.cmd_start.click();
  EXPECT_EQ(enabled(form), kDoneWithFiles);
}

TEST(ButtonStates, AStartDuringAScanDoesNothing) {
  Staged staged;
  Form7& form = staged.start();
  staged.when([&] { return form.view1.count() == 1; }, [&] { form.cmd_start.click(); });
  form.cmd_start.click();
  EXPECT_EQ(form.view1.count(), 2);
}

TEST(ButtonStates, ACancelOutsideOfAScanDoesNothing) {
  Staged staged;
  Form7& form = staged.start();
  form.cmd_cancel.click();
  EXPECT_EQ(form.cancelflag, 0);
}

// --- The tool bar, which keeps states of its own.

std::vector<int> enabled_tools(const Form7& form) {
  std::vector<int> numbers;
  for (int number = 1; number <= form.Toolbar1.count(); ++number) {
    const ToolbarButton& button = *form.Toolbar1.button(number);
    if (!button.separator && button.enabled) numbers.push_back(number);
  }
  return numbers;
}

TEST(ToolbarStates, FreshAfterLoad) {
  Staged staged;
  EXPECT_EQ(enabled_tools(staged.start()), (std::vector{1, 2, 3, 5, 12, 13, 16}));
}

TEST(ToolbarStates, ScanningOffersTheCancel) {
  Staged staged;
  Form7& form = staged.start();
  std::vector<int> seen;
  staged.at_serving(1, [&] { seen = enabled_tools(form); });
  form.Toolbar1.click_button(5);
  EXPECT_EQ(seen, (std::vector{7, 16}));
}

TEST(ToolbarStates, DoneOffersTheResults) {
  Staged staged;
  Form7& form = staged.start();
  form.Toolbar1.click_button(5);
  EXPECT_EQ(enabled_tools(form), (std::vector{5, 6, 7, 9, 10, 12, 13, 14, 16}));
  EXPECT_EQ(form.view1.count(), 2);
}

TEST(ToolbarStates, CancellingOffersTheResultsOnlyWithRows) {
  for (const bool with_rows : {false, true}) {
    Staged staged;
    Form7& form = staged.start();
    std::vector<int> seen;
    staged.when([&] { return form.view1.count() == (with_rows ? 1 : 0); },
                [&] {
                  form.Toolbar1.click_button(7);
                  seen = enabled_tools(form);
                });
    form.Toolbar1.click_button(5);
    EXPECT_EQ(seen, with_rows ? (std::vector{1, 2, 3, 5, 6, 9, 10, 12, 13, 16})
                              : (std::vector{1, 2, 3, 5, 12, 13, 16}));
    EXPECT_EQ(form.view1.count(), with_rows ? 1 : 0);
  }
}

TEST(ToolbarStates, AScanOfTheToolBarLeavesTheCommandButtons) {
  Staged staged;
  Form7& form = staged.start();
  Texts seen;
  staged.at_serving(1, [&] { seen = enabled(form); });
  form.Toolbar1.click_button(5);
  EXPECT_EQ(seen, kFresh);
  EXPECT_EQ(enabled(form), (Texts{"start", "custom", "ignore", "report"}));
}

TEST(ToolbarStates, TheReportIsOfferedAsItsCommandIs) {
  for (const bool junk : {false, true}) {
    Staged staged(junk);
    Form7& form = staged.start();
    EXPECT_FALSE(form.Toolbar1.button(14)->enabled);
    form.cmd_start.click();
    EXPECT_EQ(form.Toolbar1.button(14)->enabled, junk);
    EXPECT_EQ(form.cmd_report.enabled(), junk);
  }
}

}  // namespace
}  // namespace quillvane
