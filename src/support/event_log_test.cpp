#include "support/event_log.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillvane {
namespace {

struct Entry {
  std::string server;
  std::string application;
  std::uint32_t event_id;
  std::uint16_t type;
  std::string text;

  friend bool operator==(const Entry&, const Entry&) = default;
};

class KeptLog final : public SystemEventLog {
 public:
  bool write(const std::string& server, const std::string& application, std::uint32_t event_id,
             std::uint16_t type, const std::string& text) override {
    entries.push_back({server, application, event_id, type, text});
    return takes_entries;
  }

  std::vector<Entry> entries;
  bool takes_entries = true;
};

TEST(EventLog, WritesOneEntryToTheLogOfThisMachine) {
  KeptLog log;
  EventLog event_log(log);

  EXPECT_TRUE(event_log.WriteEvent("it broke", "Cleaner", "5000", EventLog::kError));

  EXPECT_EQ(log.entries, (std::vector<Entry>{{"", "Cleaner", 5000, 1, "it broke"}}));
}

TEST(EventLog, ArgumentsReplaceTheProperties) {
  KeptLog log;
  EventLog event_log(log);
  event_log.Description = "old";
  event_log.Application = "Old";
  event_log.EventID = "1";
  event_log.LogType = EventLog::kInformation;

  EXPECT_TRUE(event_log.WriteEvent("new", "New", "2", EventLog::kWarning));

  EXPECT_EQ(log.entries, (std::vector<Entry>{{"", "New", 2, 2, "new"}}));
  EXPECT_EQ(event_log.Description, "new");
  EXPECT_EQ(event_log.Application, "New");
  EXPECT_EQ(event_log.EventID, "2");
  EXPECT_EQ(event_log.LogType, 2);
}

TEST(EventLog, EmptyArgumentsLeaveTheProperties) {
  KeptLog log;
  EventLog event_log(log);
  event_log.Server = "otherpc";
  event_log.Description = "kept";
  event_log.Application = "Cleaner";
  event_log.EventID = "7";
  event_log.LogType = EventLog::kInformation;

  EXPECT_TRUE(event_log.WriteEvent("", "", "", 0));

  EXPECT_EQ(log.entries, (std::vector<Entry>{{"otherpc", "Cleaner", 7, 4, "kept"}}));
}

struct RefusedCase {
  std::string_view what;
  std::string_view description;
  std::string_view application;
  std::string_view event_id;
  std::int32_t log_type;
};

constexpr RefusedCase kRefused[] = {
    {"no type", "text", "Cleaner", "5000", 0},
    {"type 3", "text", "Cleaner", "5000", 3},
    {"type 8", "text", "Cleaner", "5000", 8},
    {"type -1", "text", "Cleaner", "5000", -1},
    {"id 0", "text", "Cleaner", "0", 1},
    {"negative id", "text", "Cleaner", "-5", 1},
    {"id that is no number", "text", "Cleaner", "abc", 1},
    {"no id", "text", "Cleaner", "", 1},
    {"no application", "text", "", "5000", 1},
    {"no description", "", "Cleaner", "5000", 1},
};

TEST(EventLog, RefusesAnEntryThatLacksSomething) {
  for (const RefusedCase& refused : kRefused) {
    KeptLog log;
    EventLog event_log(log);
    EXPECT_FALSE(event_log.WriteEvent(refused.description, refused.application, refused.event_id,
                                      refused.log_type))
        << refused.what;
    EXPECT_TRUE(log.entries.empty()) << refused.what;
  }
}

TEST(EventLog, AnyIdAbove0IsTakenAndRoundedToItsWhole) {
  KeptLog log;
  EventLog event_log(log);
  for (const char* id : {"0.5", "0.6", "1.5", "5000.4"}) {
    EXPECT_TRUE(event_log.WriteEvent("text", "Cleaner", id, EventLog::kError)) << id;
  }
  std::vector<std::uint32_t> ids;
  for (const Entry& entry : log.entries) ids.push_back(entry.event_id);
  EXPECT_EQ(ids, (std::vector<std::uint32_t>{0, 1, 2, 5000}));  // ties go to the even one
}

TEST(EventLog, TellsWhenTheLogTookNoEntry) {
  KeptLog log;
  log.takes_entries = false;
  EventLog event_log(log);
  EXPECT_FALSE(event_log.WriteEvent("text", "Cleaner", "5000", EventLog::kError));
  EXPECT_EQ(log.entries.size(), 1U);
}

}  // namespace
}  // namespace quillvane
