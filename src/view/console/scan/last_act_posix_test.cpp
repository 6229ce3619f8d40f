#include <gtest/gtest.h>

#include <csignal>
#include <iostream>
#include <thread>

#include "view/console/scan/interrupt.h"

namespace quillvane {
namespace {

TEST(LastActDeathTest, IsDoneBeforeTheSecondOneEndsTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH_IF_SUPPORTED(
      {
        const Interrupt interrupt;
        const LastAct last_act([] { std::cerr << "put back" << std::endl; });
        std::raise(SIGINT);
        std::raise(SIGINT);
        for (;;) std::this_thread::yield();  // work that hangs
      },
      "put back");
}

}  // namespace
}  // namespace quillvane
