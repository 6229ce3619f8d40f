#include "view/console/script/script_command.h"

#include <array>

#include "view/console/script/script_error.h"

namespace quillvane {

const ScriptCommand& find_command(std::span<const std::string> words) {
  if (words.empty()) throw ScriptError("a command is missing");
  for (const auto& table : std::array{set_up_commands(), driving_commands(), looking_commands()}) {
    for (const ScriptCommand& command : table) {
      if (command.name != words.front()) continue;
      const std::size_t count = words.size() - 1;
      if (count < command.least_arguments) throw ScriptError(words.front() + ": a word is missing");
      if (count > command.most_arguments) throw ScriptError(words.front() + ": too many words");
      return command;
    }
  }
  throw ScriptError(words.front() + ": there is no such command");
}

}  // namespace quillvane
