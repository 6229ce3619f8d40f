// What a command of a script is, and what it works with.
#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>

#include "view/console/console_machine.h"
#include "view/console/script/driven_program.h"
#include "view/console/script/script_output.h"
#include "view/console/script/script_triggers.h"
#include "view/console/script/script_words.h"

namespace quillvane {

struct ScriptContext {
  ConsoleMachine& machine;
  DrivenProgram& program;
  ScriptOutput& output;
  ScriptTriggers& triggers;
  int line = 0;  // number of the line that is run
};

// The words behind the command's name.
using ScriptArguments = std::span<const std::string>;

struct ScriptCommand {
  enum class Kind { kSetUp, kDriving, kLooking };

  static constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

  std::string_view name;
  Kind kind;
  std::size_t least_arguments;
  std::size_t most_arguments;
  void (*run)(ScriptContext& context, ScriptArguments arguments);  // throws ScriptError
};

// The tables of commands by what they are for.
[[nodiscard]] std::span<const ScriptCommand> set_up_commands();
[[nodiscard]] std::span<const ScriptCommand> driving_commands();
[[nodiscard]] std::span<const ScriptCommand> looking_commands();

// The command that the words call. Throws ScriptError when there is none of that name or the number
// of words does not fit it.
[[nodiscard]] const ScriptCommand& find_command(std::span<const std::string> words);

}  // namespace quillvane
