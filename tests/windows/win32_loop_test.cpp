// How a window waits for the user on this PC. Nothing is timed: each wait ends when what it waits
// for has come.
#include "platform/win32/win32_loop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "forms/modal_window.h"

namespace quillvane {
namespace {

using namespace std::chrono_literals;

TEST(Win32Loop, WaitsUntilTheWindowIsClosed) {
  Win32Loop loop;
  ModalWindow window("Form1");
  int ticks = 0;
  const auto timer = loop.start_timer(1ms, [&] {
    if (++ticks == 3) window.close();
  });
  loop.serve_until([&] { return window.unloaded(); });
  loop.stop_timer(timer);
  EXPECT_EQ(ticks, 3);
}

TEST(Win32Loop, DoesNotWaitForAWindowThatIsClosedAlready) {
  Win32Loop loop;
  ModalWindow window("Form1");
  window.close();
  loop.serve_until([&] { return window.unloaded(); });
  EXPECT_TRUE(window.unloaded());
}

TEST(Win32Loop, AWaitInsideAWaitIsFinishedFirst) {
  Win32Loop loop;
  ModalWindow outer("Form2");
  ModalWindow inner("Form5");
  std::string finished;
  int ticks = 0;
  MessageLoop::TimerId opener = 0;
  opener = loop.start_timer(1ms, [&] {
    loop.stop_timer(opener);
    loop.serve_until([&] { return inner.unloaded(); });
    finished += "inner ";
  });
  // The outer window is closed while the inner one still waits.
  const auto closer = loop.start_timer(5ms, [&] {
    ++ticks;
    if (ticks == 2) outer.close();
    if (ticks == 4) inner.close();
  });
  loop.serve_until([&] { return outer.unloaded() && inner.unloaded(); });
  finished += "outer";
  loop.stop_timer(closer);
  EXPECT_EQ(finished, "inner outer");
}

}  // namespace
}  // namespace quillvane
