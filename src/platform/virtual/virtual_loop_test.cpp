#include "platform/virtual/virtual_loop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quillvane {
namespace {

using std::chrono::milliseconds;

constexpr FileTime kStart{1'000'000};
constexpr std::int64_t kTicksPerMillisecond = 10'000;

std::int64_t passed_ms(const VirtualLoop& loop) {
  return (loop.local_now().ticks - kStart.ticks) / kTicksPerMillisecond;
}

TEST(VirtualLoop, TimeStandsStillOutsideOfWaiting) {
  VirtualLoop loop(kStart);
  loop.do_events();
  loop.do_events();
  EXPECT_EQ(loop.local_now(), kStart);
}

TEST(VirtualLoop, WaitEndsWhenMoreThanTheTimeHasPassed) {
  VirtualLoop loop(kStart);
  loop.wait(milliseconds(1000));
  EXPECT_EQ(passed_ms(loop), 1001);
}

TEST(VirtualLoop, WaitOfNothingServesTheLoopOnce) {
  VirtualLoop loop(kStart);
  int served = 0;
  loop.set_served_hook([&] { ++served; });
  loop.wait(milliseconds(0));
  EXPECT_EQ(served, 1);
  EXPECT_EQ(passed_ms(loop), 1);
}

TEST(VirtualLoop, WaitWithoutTimersServesTheLoopOnceAtItsBeginning) {
  VirtualLoop loop(kStart);
  std::vector<std::int64_t> served_at;
  loop.set_served_hook([&] { served_at.push_back(passed_ms(loop)); });
  loop.wait(milliseconds(5000));
  EXPECT_EQ(served_at, (std::vector<std::int64_t>{0}));
}

TEST(VirtualLoop, TimersTickAtTheirIntervalsWhileWaiting) {
  VirtualLoop loop(kStart);
  std::vector<std::string> ticks;
  loop.start_timer(milliseconds(400),
                   [&] { ticks.push_back("400 at " + std::to_string(passed_ms(loop))); });
  loop.start_timer(milliseconds(500),
                   [&] { ticks.push_back("500 at " + std::to_string(passed_ms(loop))); });
  loop.wait(milliseconds(1000));
  EXPECT_EQ(ticks,
            (std::vector<std::string>{"400 at 400", "500 at 500", "400 at 800", "500 at 1000"}));
}

TEST(VirtualLoop, ATimerDueAtTheEndOfAWaitStillTicks) {
  VirtualLoop loop(kStart);
  int ticks = 0;
  loop.start_timer(milliseconds(1000), [&] { ++ticks; });
  loop.wait(milliseconds(999));
  EXPECT_EQ(ticks, 0);
  loop.wait(milliseconds(0));
  EXPECT_EQ(ticks, 1);
}

TEST(VirtualLoop, DoEventsServesATimerThatIsDue) {
  VirtualLoop loop(kStart);
  int ticks = 0;
  loop.start_timer(milliseconds(10), [&] { ++ticks; });
  loop.advance(milliseconds(9));
  loop.do_events();
  EXPECT_EQ(ticks, 0);
  loop.advance(milliseconds(1));
  loop.do_events();
  EXPECT_EQ(ticks, 1);
}

TEST(VirtualLoop, ALateTickIsServedOnceAndNotMadeUp) {
  VirtualLoop loop(kStart);
  int ticks = 0;
  loop.start_timer(milliseconds(100), [&] { ++ticks; });
  loop.advance(milliseconds(1000));
  loop.do_events();
  loop.do_events();
  EXPECT_EQ(ticks, 1);
  loop.advance(milliseconds(100));
  loop.do_events();
  EXPECT_EQ(ticks, 2);
}

TEST(VirtualLoop, TimersDueTogetherTickInTheOrderOfTheirTimes) {
  VirtualLoop loop(kStart);
  std::string ticks;
  loop.start_timer(milliseconds(30), [&] { ticks += "c"; });
  loop.start_timer(milliseconds(10), [&] { ticks += "a"; });
  loop.start_timer(milliseconds(20), [&] { ticks += "b"; });
  loop.advance(milliseconds(30));
  loop.do_events();
  EXPECT_EQ(ticks, "abc");
}

TEST(VirtualLoop, AStoppedTimerTicksNoMore) {
  VirtualLoop loop(kStart);
  int ticks = 0;
  const auto timer = loop.start_timer(milliseconds(10), [&] { ++ticks; });
  loop.stop_timer(timer);
  loop.stop_timer(timer);
  loop.wait(milliseconds(100));
  EXPECT_EQ(ticks, 0);
}

TEST(VirtualLoop, ATickMayStopItsOwnTimer) {
  VirtualLoop loop(kStart);
  MessageLoop::TimerId timer = 0;
  // The text is longer than a function object holds in itself: it must outlive the timer.
  const std::string text(100, 'x');
  std::string seen;
  timer = loop.start_timer(milliseconds(10), [&loop, &timer, &seen, text] {
    loop.stop_timer(timer);
    seen += text;
  });
  loop.wait(milliseconds(100));
  EXPECT_EQ(seen, text);
}

TEST(VirtualLoop, ATickMayStartATimer) {
  VirtualLoop loop(kStart);
  std::vector<std::int64_t> inner_at;
  bool started = false;
  loop.start_timer(milliseconds(50), [&] {
    if (started) return;
    started = true;
    loop.start_timer(milliseconds(20), [&] { inner_at.push_back(passed_ms(loop)); });
  });
  loop.wait(milliseconds(100));
  EXPECT_EQ(inner_at, (std::vector<std::int64_t>{70, 90}));
}

TEST(VirtualLoop, ATickThatServesTheLoopIsNotCalledAgainBeforeItIsDue) {
  VirtualLoop loop(kStart);
  int depth = 0;
  int deepest = 0;
  loop.start_timer(milliseconds(10), [&] {
    deepest = std::max(deepest, ++depth);
    loop.do_events();
    --depth;
  });
  loop.wait(milliseconds(25));
  EXPECT_EQ(deepest, 1);
}

TEST(VirtualLoop, ATickThatWaitsLongerThanItsIntervalIsCalledAgainInside) {
  VirtualLoop loop(kStart);
  int depth = 0;
  std::vector<int> depths;
  loop.start_timer(milliseconds(10), [&] {
    depths.push_back(++depth);
    if (depth == 1 && depths.size() == 1) loop.wait(milliseconds(10));
    --depth;
  });
  loop.wait(milliseconds(10));
  EXPECT_EQ(depths, (std::vector<int>{1, 2}));
  EXPECT_EQ(passed_ms(loop), 21);
}

TEST(VirtualLoop, AWaitInsideAWaitMovesTheTimeOfBoth) {
  VirtualLoop loop(kStart);
  bool inside = false;
  loop.set_served_hook([&] {
    if (std::exchange(inside, true)) return;
    loop.wait(milliseconds(50));
  });
  loop.wait(milliseconds(20));
  EXPECT_EQ(passed_ms(loop), 51);
}

TEST(VirtualLoop, AnIntervalOfNothingCountsAsAMillisecond) {
  VirtualLoop loop(kStart);
  int ticks = 0;
  loop.start_timer(milliseconds(0), [&] { ++ticks; });
  loop.wait(milliseconds(3));
  EXPECT_EQ(ticks, 3);
}

TEST(VirtualLoop, TheHookComesAfterTheTimers) {
  VirtualLoop loop(kStart);
  std::string order;
  loop.start_timer(milliseconds(10), [&] { order += "timer "; });
  loop.set_served_hook([&] { order += "hook "; });
  loop.advance(milliseconds(10));
  loop.do_events();
  EXPECT_EQ(order, "timer hook ");
}

TEST(VirtualLoop, WaitingForTheUserLetsHimActUntilItIsDone) {
  VirtualLoop loop(kStart);
  int acts = 0;
  loop.set_user([&](const std::function<bool()>& done) {
    while (!done()) ++acts;
  });
  loop.serve_until([&] { return acts == 3; });
  EXPECT_EQ(acts, 3);
  EXPECT_EQ(loop.local_now(), kStart);
}

TEST(VirtualLoop, WaitingForAUserWhoIsNotThereEndsAtOnce) {
  VirtualLoop loop(kStart);
  loop.serve_until([] { return false; });
  EXPECT_EQ(loop.local_now(), kStart);
}

TEST(VirtualLoop, SettingTheClockLeavesTimersAlone) {
  VirtualLoop loop(kStart);
  int ticks = 0;
  loop.start_timer(milliseconds(10), [&] { ++ticks; });
  loop.advance(milliseconds(5));
  loop.set_local_now({77'000'000});
  EXPECT_EQ(loop.local_now(), FileTime{77'000'000});
  loop.do_events();
  EXPECT_EQ(ticks, 0);
  loop.advance(milliseconds(5));
  loop.do_events();
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(loop.local_now(), FileTime{77'000'000 + 5 * kTicksPerMillisecond});
}

}  // namespace
}  // namespace quillvane
