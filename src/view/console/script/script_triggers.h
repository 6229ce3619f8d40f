// Commands of a script that wait for the message loop to be served.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "view/console/script/script_words.h"

namespace quillvane {

// A command that runs once, when its time has come.
struct ScriptTrigger {
  int line = 0;  // where it stands in the script
  ScriptWords command;
  std::uint64_t serving = 0;  // runs at this serving of the loop; 0: waits for a text
  std::string control;        // runs while the text of this control ("Form7.Text13") ...
  std::string text;           // ... contains this
};

class ScriptTriggers {
 public:
  // Runs `command` at the `count`th serving of the loop from now.
  void add_at_serving(std::uint64_t count, int line, ScriptWords command);
  // Runs `command` at the first serving at which the control's text contains `text`.
  void add_when(std::string control, std::string text, int line, ScriptWords command);

  // The loop is being served: takes the triggers out that are due, in the order of the script.
  // `holds` answers whether the condition of one that waits for a text is fulfilled.
  [[nodiscard]] std::vector<ScriptTrigger> take_due(
      const std::function<bool(const ScriptTrigger&)>& holds);

 private:
  std::uint64_t servings_ = 0;
  std::vector<ScriptTrigger> waiting_;
};

}  // namespace quillvane
