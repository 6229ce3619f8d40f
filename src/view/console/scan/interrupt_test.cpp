#include "view/console/scan/interrupt.h"

#include <gtest/gtest.h>

#include <csignal>

namespace quillvane {
namespace {

TEST(Interrupt, IsNotedAndStays) {
  const Interrupt interrupt;
  EXPECT_FALSE(Interrupt::came());

  std::raise(SIGINT);

  EXPECT_TRUE(Interrupt::came());
  EXPECT_TRUE(Interrupt::came());
}

TEST(Interrupt, TheSecondOneIsLeftToTheSystem) {
  const Interrupt interrupt;

  std::raise(SIGINT);

  EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_DFL);
}

TEST(Interrupt, LeavesTheSignalToTheSystemAtItsEnd) {
  { const Interrupt interrupt; }

  EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_DFL);
}

TEST(Interrupt, OneOfAnEarlierScanIsForgotten) {
  {
    const Interrupt earlier;
    std::raise(SIGINT);
  }

  const Interrupt interrupt;

  EXPECT_FALSE(Interrupt::came());
}

TEST(LastAct, LeavesTheSecondOneToBeNotedToo) {
  const Interrupt interrupt;
  int acts = 0;
  {
    const LastAct last_act([&acts] { ++acts; });
    std::raise(SIGINT);
    EXPECT_NE(std::signal(SIGINT, SIG_DFL), SIG_DFL);
  }
  EXPECT_TRUE(Interrupt::came());
  EXPECT_EQ(acts, 0);
  EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_DFL);
}

}  // namespace
}  // namespace quillvane
