#include "platform/folder/machine_event_log.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace quillvane {
namespace {

TEST(MachineEventLog, AnEntryIsAnEffectWithItsWholeTextAndType) {
  EffectLog effects;
  MachineEventLog log(effects);
  EXPECT_TRUE(log.write("", "Quillvane", 5000, 1, "first line\r\nsecond line"));
  EXPECT_TRUE(log.write("server", "Quillvane", 7, 4, ""));
  const std::vector<Effect> expected = {
      {"event-log",
       {{"text", std::string("first line\r\nsecond line")}, {"type", std::int64_t{1}}}},
      {"event-log", {{"text", std::string()}, {"type", std::int64_t{4}}}},
  };
  EXPECT_EQ(effects.take(), expected);
}

}  // namespace
}  // namespace quillvane
