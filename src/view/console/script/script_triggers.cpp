#include "view/console/script/script_triggers.h"

#include <utility>

namespace quillvane {

void ScriptTriggers::add_at_serving(std::uint64_t count, int line, ScriptWords command) {
  waiting_.push_back({line, std::move(command), servings_ + count, "", ""});
}

void ScriptTriggers::add_when(std::string control, std::string text, int line,
                              ScriptWords command) {
  waiting_.push_back({line, std::move(command), 0, std::move(control), std::move(text)});
}

std::vector<ScriptTrigger> ScriptTriggers::take_due(
    const std::function<bool(const ScriptTrigger&)>& holds) {
  ++servings_;
  std::vector<ScriptTrigger> due;
  if (waiting_.empty()) return due;  // the loop is served once a file

  std::vector<ScriptTrigger> still_waiting;
  for (ScriptTrigger& trigger : waiting_) {
    const bool now = trigger.serving != 0 ? trigger.serving <= servings_ : holds(trigger);
    (now ? due : still_waiting).push_back(std::move(trigger));
  }
  waiting_ = std::move(still_waiting);
  return due;
}

}  // namespace quillvane
