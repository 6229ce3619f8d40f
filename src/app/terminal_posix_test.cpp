#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "app/terminal.h"

namespace quillvane {
namespace {

TEST(Streams, ABrokenPipeIsAnErrorOfTheWrite) {
  prepare_streams();
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  close(ends[0]);

  EXPECT_EQ(write(ends[1], "x", 1), -1);
  EXPECT_EQ(errno, EPIPE);

  close(ends[1]);
}

}  // namespace
}  // namespace quillvane
