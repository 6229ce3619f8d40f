// Runs an automation script: drives the windows line by line and prints what the script asks for.
#pragma once

#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "view/console/script/script_command.h"
#include "view/console/script/script_reader.h"

namespace quillvane {

class ScriptRunner {
 public:
  // All of these must outlive it. The runner takes the loop's served hook and its user for itself.
  ScriptRunner(std::istream& script, std::ostream& out, ConsoleMachine& machine,
               DrivenProgram& program);
  ~ScriptRunner();
  ScriptRunner(const ScriptRunner&) = delete;
  ScriptRunner& operator=(const ScriptRunner&) = delete;

  // Runs all lines. Answers why the script ended before its last one ("line 3: ..."); nothing when
  // it came to its end.
  [[nodiscard]] std::optional<std::string> run();

 private:
  // Runs the lines that follow until `done` holds, the script ends or a line fails. Called inside a
  // line when a window waits for the user.
  void run_until(const std::function<bool()>& done);
  void execute(int line, const ScriptWords& words);
  // Looks a trigger's condition up; a name in it that isn't there ends the script.
  bool holds(const ScriptTrigger& trigger);
  void served();
  void fail(int line, const std::string& why);

  ScriptReader reader_;
  std::ostream& out_;
  VirtualLoop& loop_;
  ScriptOutput output_;
  ScriptTriggers triggers_;
  ScriptContext context_;
  int nesting_ = 0;  // commands that have begun and not ended
  std::optional<std::string> problem_;
};

}  // namespace quillvane
