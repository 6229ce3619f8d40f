// The message loop. Nothing is timed: each loop ends when what it waits for has come.
#include <chrono>
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

using namespace std::chrono_literals;

class MessageLoopContract : public ContractTest {
 protected:
  void wait_until(const bool& has_come) {
    while (!has_come) platform.loop.wait(1ms);
  }
};

TEST_F(MessageLoopContract, ATimerTicksUntilItIsStopped) {
  int ticks = 0;
  bool is_done = false;
  const auto timer = platform.loop.start_timer(1ms, [&] { is_done = ++ticks >= 3; });
  wait_until(is_done);
  platform.loop.stop_timer(timer);
  const int ticks_then = ticks;
  platform.loop.wait(5ms);
  EXPECT_EQ(ticks, ticks_then);
}

TEST_F(MessageLoopContract, AWaitServesEveryTimerThatBecomesDue) {
  int ticks = 0;
  const auto timer = platform.loop.start_timer(1ms, [&] { ++ticks; });
  platform.loop.wait(50ms);
  EXPECT_GE(ticks, 1);
  platform.loop.stop_timer(timer);
}

TEST_F(MessageLoopContract, ATimerDoesNotTickOutsideTheLoop) {
  int ticks = 0;
  const auto timer = platform.loop.start_timer(1ms, [&] { ++ticks; });
  const FileTime before = platform.loop.local_now();
  EXPECT_EQ(ticks, 0);
  EXPECT_GE(platform.loop.local_now(), before);
  platform.loop.stop_timer(timer);
}

TEST_F(MessageLoopContract, ATickMayStopItsOwnTimer) {
  int ticks = 0;
  bool is_done = false;
  MessageLoop::TimerId timer = 0;
  const std::string kept = "a text that the handler owns, longer than any small buffer";
  std::string seen;
  timer = platform.loop.start_timer(1ms, [&, kept] {
    platform.loop.stop_timer(timer);
    ++ticks;
    seen = kept;  // the handler still lives
    is_done = true;
  });
  wait_until(is_done);
  platform.loop.wait(5ms);
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(seen, kept);
}

TEST_F(MessageLoopContract, ATickMayStartAnotherTimer) {
  bool is_done = false;
  MessageLoop::TimerId second = 0;
  MessageLoop::TimerId first = 0;
  first = platform.loop.start_timer(1ms, [&] {
    platform.loop.stop_timer(first);
    second = platform.loop.start_timer(1ms, [&] { is_done = true; });
  });
  wait_until(is_done);
  platform.loop.stop_timer(second);
  EXPECT_NE(first, second);
}

TEST_F(MessageLoopContract, ATickMayServeTheLoopItself) {
  int inner = 0;
  bool is_done = false;
  MessageLoop::TimerId slow = 0;
  const auto fast = platform.loop.start_timer(1ms, [&] { ++inner; });
  slow = platform.loop.start_timer(2ms, [&] {
    platform.loop.stop_timer(slow);
    const int before = inner;
    while (inner < before + 2) platform.loop.wait(1ms);
    is_done = true;
  });
  wait_until(is_done);
  platform.loop.stop_timer(fast);
  EXPECT_GE(inner, 2);
}

TEST_F(MessageLoopContract, TimersKeepTheirOwnPace) {
  int fast = 0;
  int slow = 0;
  bool is_done = false;
  const auto fast_timer = platform.loop.start_timer(20ms, [&] { ++fast; });
  const auto slow_timer = platform.loop.start_timer(500ms, [&] { is_done = ++slow >= 1; });
  wait_until(is_done);
  // However late the machine serves them, the fast one has ticked first.
  EXPECT_GE(fast, 1);
  platform.loop.stop_timer(fast_timer);
  platform.loop.stop_timer(slow_timer);
}

TEST_F(MessageLoopContract, StoppingATimerTwiceOrAnUnknownOneIsHarmless) {
  bool is_done = false;
  const auto timer = platform.loop.start_timer(1ms, [] {});
  platform.loop.stop_timer(timer);
  platform.loop.stop_timer(timer);
  platform.loop.stop_timer(timer + 100);
  const auto next = platform.loop.start_timer(1ms, [&] { is_done = true; });
  wait_until(is_done);
  platform.loop.stop_timer(next);
  EXPECT_NE(next, timer);
}

TEST_F(MessageLoopContract, TheClockMovesOnWhileItIsWaited) {
  const FileTime before = platform.loop.local_now();
  platform.loop.wait(20ms);
  EXPECT_GT(platform.loop.local_now(), before);
}

}  // namespace
}  // namespace quillvane
