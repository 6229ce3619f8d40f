#include "view/console/script/script_runner.h"

#include <utility>

#include "view/console/script/script_names.h"

namespace quillvane {

namespace {

// Commands that run inside of others, as those do that were told to wait for the loop. Each takes
// room on the stack.
constexpr int kDeepestNesting = 100;

}  // namespace

ScriptRunner::ScriptRunner(std::istream& script, std::ostream& out, ConsoleMachine& machine,
                           DrivenProgram& program)
    : reader_(script),
      out_(out),
      loop_(machine.loop()),
      output_(out),
      context_{machine, program, output_, triggers_} {
  loop_.set_served_hook([this] { served(); });
  loop_.set_user([this](const std::function<bool()>& done) { run_until(done); });
}

ScriptRunner::~ScriptRunner() {
  loop_.set_served_hook(nullptr);
  loop_.set_user(nullptr);
}

std::optional<std::string> ScriptRunner::run() {
  run_until([] { return false; });
  return problem_;
}

void ScriptRunner::run_until(const std::function<bool()>& done) {
  while (!problem_ && out_ && !done()) {
    const auto line = reader_.next();
    if (!line) {
      if (const auto unread = reader_.unread_line()) fail(*unread, "cannot be read");
      return;
    }
    if (line->text.size() > kLongestScriptLine) return fail(line->number, "is too long");
    try {
      execute(line->number, split_words(line->text));
    } catch (const ScriptError& error) {
      fail(line->number, error.what());
    }
  }
}

void ScriptRunner::execute(int line, const ScriptWords& words) {
  const ScriptCommand& command = find_command(words);
  if (command.kind == ScriptCommand::Kind::kDriving && context_.program.ended()) return;
  // A command may serve the loop, and there another one runs before this one has ended.
  if (nesting_ == kDeepestNesting) throw ScriptError("too many commands run inside each other");
  const int outer_line = std::exchange(context_.line, line);
  ++nesting_;
  command.run(context_, ScriptArguments(words).subspan(1));
  --nesting_;
  context_.line = outer_line;
}

bool ScriptRunner::holds(const ScriptTrigger& trigger) {
  if (problem_) return false;
  // A window that isn't made yet may still come.
  if (context_.program.find_window(name_parts(trigger.control).front()) == nullptr) return false;
  try {
    const auto text = control_named(context_.program, trigger.control).property("Text");
    if (!text) throw ScriptError(trigger.control + ": has no text");
    return std::get<std::string>(*text).find(trigger.text) != std::string::npos;
  } catch (const ScriptError& error) {
    fail(trigger.line, error.what());
    return false;
  }
}

void ScriptRunner::served() {
  for (const ScriptTrigger& trigger :
       triggers_.take_due([this](const ScriptTrigger& waiting) { return holds(waiting); })) {
    if (problem_) return;
    try {
      execute(trigger.line, trigger.command);
    } catch (const ScriptError& error) {
      fail(trigger.line, error.what());
    }
  }
}

void ScriptRunner::fail(int line, const std::string& why) {
  if (!problem_) problem_ = "line " + std::to_string(line) + ": " + why;
}

}  // namespace quillvane
