#include "platform/folder/posix/removal_ahead.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/temp_folder.h"

namespace quillvane {

namespace {

class RemovalAheadTest : public ::testing::Test {
 protected:
  RemovalAheadTest() {
    for (int i = 0; i < 8; ++i)
      host.write("Temp/" + std::to_string(i), std::string(static_cast<std::size_t>(i), 'x'));
  }

  [[nodiscard]] RemovalAhead::Expected file(const std::string& name) const {
    return {"C:\\Temp\\" + name, folder, name};
  }

  // The help may come too late at any single time; it must come at some time.
  std::optional<SeenFile> take_when_seen(const std::string& name) {
    for (int tries = 0; tries < 100000; ++tries) {
      ahead.expect({file(name)});
      std::this_thread::yield();
      if (auto seen = ahead.take("C:\\Temp\\" + name)) return seen;
    }
    return std::nullopt;
  }

  TempFolder host;
  std::shared_ptr<const LookedAtFolder> folder = std::make_shared<const LookedAtFolder>(
      LookedAtFolder{std::make_shared<const DriveFolder>(host.path()), {"Temp"}});
  RemovalAhead ahead;
};

}  // namespace

TEST_F(RemovalAheadTest, TellsWhatWasSeen) {
  for (const char* name : {"3", "7", "0"}) {
    const auto seen = take_when_seen(name);
    ASSERT_TRUE(seen) << name;
    EXPECT_EQ(seen->name, name);
    EXPECT_EQ(seen->status.stx_size, std::stoull(name));
  }
}

TEST_F(RemovalAheadTest, TellsEachFileOnceAndNoOther) {
  ASSERT_TRUE(take_when_seen("1"));
  EXPECT_FALSE(ahead.take("C:\\Temp\\1"));
  ahead.expect({file("1"), file("2")});
  EXPECT_FALSE(ahead.take("C:\\Temp\\3"));
}

TEST_F(RemovalAheadTest, GivesUpWhatWasExpectedBefore) {
  ahead.expect({file("1"), file("2"), file("3")});
  static_cast<void>(ahead.take("C:\\Temp\\2"));
  EXPECT_FALSE(ahead.take("C:\\Temp\\1"));
}

TEST_F(RemovalAheadTest, ForgetsEverythingExpected) {
  ahead.expect({file("1"), file("2")});
  ahead.forget();
  EXPECT_FALSE(ahead.take("C:\\Temp\\1"));
  EXPECT_FALSE(ahead.take("C:\\Temp\\2"));
  EXPECT_TRUE(take_when_seen("2"));
}

TEST_F(RemovalAheadTest, BearsMoreThanItCanHold) {
  const std::vector<RemovalAhead::Expected> many(3000, file("4"));
  for (int round = 0; round < 5; ++round) ahead.expect(many);
  ahead.forget();
  EXPECT_TRUE(take_when_seen("5"));
}

TEST_F(RemovalAheadTest, EndsInTheMiddleOfItsWork) {
  for (int round = 0; round < 50; ++round) {
    RemovalAhead brief;
    brief.expect(std::vector<RemovalAhead::Expected>(100, file("6")));
  }
}

}  // namespace quillvane
