#include "forms/timer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>

#include "forms/window.h"
#include "platform/virtual/virtual_loop.h"

namespace quillvane {
namespace {

using std::chrono::milliseconds;

// A timer of half a second that counts its ticks.
struct Staged {
  Staged() {
    timer.emplace(window, "Timer2", loop, milliseconds(500));
    timer->on_timer = [this] { ++ticks; };
  }

  VirtualLoop loop{FileTime{0}};
  Window window{"Form"};
  std::optional<Timer> timer;
  int ticks = 0;
};

TEST(Timer, BeginsStopped) {
  Staged staged;
  EXPECT_FALSE(staged.timer->running());
  staged.loop.wait(milliseconds(5000));
  EXPECT_EQ(staged.ticks, 0);
}

TEST(Timer, TicksAtItsIntervalWhileItRuns) {
  Staged staged;
  staged.timer->set_running(true);
  staged.loop.wait(milliseconds(499));
  EXPECT_EQ(staged.ticks, 0);
  staged.loop.wait(milliseconds(1100));
  EXPECT_EQ(staged.ticks, 3);  // at 500, 1000 and 1500
}

TEST(Timer, TicksNoMoreOnceStopped) {
  Staged staged;
  staged.timer->set_running(true);
  staged.loop.wait(milliseconds(500));
  staged.timer->set_running(false);
  staged.loop.wait(milliseconds(5000));
  EXPECT_EQ(staged.ticks, 1);
}

TEST(Timer, SettingItRunningTwiceKeepsOneBeat) {
  Staged staged;
  staged.timer->set_running(true);
  staged.timer->set_running(true);
  staged.loop.wait(milliseconds(500));
  EXPECT_EQ(staged.ticks, 1);
}

TEST(Timer, MayStopItselfInATick) {
  Staged staged;
  staged.timer->on_timer = [&] {
    ++staged.ticks;
    staged.timer->set_running(false);
  };
  staged.timer->set_running(true);
  staged.loop.wait(milliseconds(5000));
  EXPECT_EQ(staged.ticks, 1);
  EXPECT_FALSE(staged.timer->running());
}

TEST(Timer, StopsWhenItIsGone) {
  Staged staged;
  staged.timer->set_running(true);
  staged.timer.reset();
  staged.loop.wait(milliseconds(5000));
  EXPECT_EQ(staged.ticks, 0);
}

TEST(Timer, EnabledTellsWhetherItRuns) {
  Staged staged;
  EXPECT_EQ(staged.timer->property("Enabled"), PropertyValue(false));
  staged.timer->set_running(true);
  EXPECT_EQ(staged.timer->property("enabled"), PropertyValue(true));
  EXPECT_EQ(staged.timer->property("Interval"), PropertyValue(std::int64_t{500}));
}

TEST(Timer, AnIdleOneRunsWithoutATick) {
  Staged staged;
  staged.timer->set_running(true);
  staged.timer->set_idle(true);
  EXPECT_TRUE(staged.timer->running());
  staged.loop.wait(milliseconds(1700));
  EXPECT_EQ(staged.ticks, 0);
  staged.timer->set_idle(false);
  staged.loop.wait(milliseconds(500));
  EXPECT_EQ(staged.ticks, 1);
}

TEST(Timer, AStoppedOneDoesNotTickAfterItsIdleness) {
  Staged staged;
  staged.timer->set_idle(true);
  staged.timer->set_idle(false);
  EXPECT_FALSE(staged.timer->running());
  staged.loop.wait(milliseconds(5000));
  EXPECT_EQ(staged.ticks, 0);
}

}  // namespace
}  // namespace quillvane
