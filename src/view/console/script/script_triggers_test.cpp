#include "view/console/script/script_triggers.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

bool never(const ScriptTrigger& /*trigger*/) { return false; }

// The lines of the triggers that are due at the next serving.
std::vector<int> next_serving(ScriptTriggers& triggers,
                              const std::function<bool(const ScriptTrigger&)>& holds = never) {
  std::vector<int> lines;
  for (const ScriptTrigger& trigger : triggers.take_due(holds)) lines.push_back(trigger.line);
  return lines;
}

using Lines = std::vector<int>;

TEST(ScriptTriggers, AServingIsCountedFromWhereTheTriggerWasSet) {
  ScriptTriggers triggers;
  triggers.add_at_serving(2, 1, {"ended"});

  EXPECT_EQ(next_serving(triggers), Lines{});
  triggers.add_at_serving(2, 2, {"ended"});
  EXPECT_EQ(next_serving(triggers), Lines{1});
  EXPECT_EQ(next_serving(triggers), Lines{2});
  EXPECT_EQ(next_serving(triggers), Lines{});
}

TEST(ScriptTriggers, SeveralThatAreDueTogetherKeepTheOrderOfTheScript) {
  ScriptTriggers triggers;
  triggers.add_when("Form7.Text13", "a", 1, {"ended"});
  triggers.add_at_serving(1, 2, {"ended"});
  triggers.add_when("Form7.Text13", "b", 3, {"ended"});

  EXPECT_EQ(next_serving(triggers, [](const ScriptTrigger&) { return true; }), (Lines{1, 2, 3}));
}

TEST(ScriptTriggers, ATextIsWaitedForUntilItIsThereAndThenNoMore) {
  ScriptTriggers triggers;
  triggers.add_when("Form7.Text13", "a", 1, {"ended"});
  triggers.add_when("Form7.Text13", "b", 2, {"ended"});
  const auto holds_b = [](const ScriptTrigger& trigger) { return trigger.text == "b"; };

  EXPECT_EQ(next_serving(triggers, holds_b), Lines{2});
  EXPECT_EQ(next_serving(triggers, holds_b), Lines{});
}

}  // namespace
}  // namespace quillvane
