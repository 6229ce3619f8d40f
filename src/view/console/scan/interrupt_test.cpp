#include "view/console/scan/interrupt.h"

#include <gtest/gtest.h>

#include <csignal>

namespace quillvane {
namespace {

TEST(Interrupt, IsTakenOnce) {
  Interrupt interrupt;
  EXPECT_FALSE(interrupt.take());

  EXPECT_FALSE(interrupt.came());

  std::raise(SIGINT);

  EXPECT_TRUE(interrupt.came());
  EXPECT_TRUE(interrupt.came());
  EXPECT_TRUE(interrupt.take());
  EXPECT_FALSE(interrupt.came());
  EXPECT_FALSE(interrupt.take());
}

TEST(Interrupt, TheSecondOneIsLeftToTheSystem) {
  Interrupt interrupt;

  std::raise(SIGINT);

  EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_DFL);
}

TEST(Interrupt, LeavesTheSignalToTheSystemAtItsEnd) {
  { const Interrupt interrupt; }

  EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_DFL);
}

TEST(Interrupt, OneOfAnEarlierScanIsForgotten) {
  {
    Interrupt earlier;
    std::raise(SIGINT);
  }

  Interrupt interrupt;

  EXPECT_FALSE(interrupt.take());
}

}  // namespace
}  // namespace quillvane
