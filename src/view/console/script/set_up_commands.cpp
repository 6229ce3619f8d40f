// The lines that prepare the machine. All but setreg and attrib hold for the length of the script.

#include <array>
#include <cstdint>
#include <cstdio>

#include "support/file_date.h"
#include "view/console/script/registry_words.h"
#include "view/console/script/script_command.h"
#include "view/console/script/script_names.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kSettable =
    kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeArchive;

void must_do(const ConsoleMachine::Problem& problem) {
  if (problem) throw ScriptError(*problem);
}

// Two or four digits of a date, and the sign behind them.
int date_field(std::string_view word, std::size_t at, std::size_t digits, int least, int most) {
  return number_in_range(word.substr(at, digits), least, most);
}

// clock "2026-11-21 10:00:00"
void set_clock(ScriptContext& context, ScriptArguments arguments) {
  const std::string& word = arguments[0];
  const std::string_view form = "0000-00-00 00:00:00";
  bool fits = word.size() == form.size();
  for (std::size_t i = 0; fits && i < form.size(); ++i) {
    fits = form[i] == '0' ? word[i] >= '0' && word[i] <= '9' : word[i] == form[i];
  }
  if (!fits) throw ScriptError(word + ": must be written like 2026-11-21 10:00:00");

  DateTime date;
  date.year = date_field(word, 0, 4, 1601, 9999);
  date.month = date_field(word, 5, 2, 1, 12);
  date.day = date_field(word, 8, 2, 1, 31);
  date.hour = date_field(word, 11, 2, 0, 23);
  date.minute = date_field(word, 14, 2, 0, 59);
  date.second = date_field(word, 17, 2, 0, 59);
  const FileTime time = file_time_of(date);
  // A day that its month doesn't have comes back as another one.
  if (calendar_date(time) != date) throw ScriptError(word + ": there is no such day");
  context.machine.loop().set_local_now(time);
}

void set_environment(ScriptContext& context, ScriptArguments arguments) {
  must_do(context.machine.set_environment(arguments[0], arguments[1]));
}

void add_process(ScriptContext& context, ScriptArguments arguments) {
  const int id = number_in_range(arguments[0], 0, std::numeric_limits<int>::max());
  must_do(context.machine.add_process(static_cast<std::uint32_t>(id), arguments[1]));
}

void add_in_use(ScriptContext& context, ScriptArguments arguments) {
  must_do(context.machine.add_in_use(arguments[0]));
}

void add_denied(ScriptContext& context, ScriptArguments arguments) {
  must_do(context.machine.add_denied(arguments[0]));
}

void add_url_cache_entry(ScriptContext& context, ScriptArguments arguments) {
  must_do(context.machine.add_url_cache_entry(arguments[0], arguments[1]));
}

void add_window(ScriptContext& context, ScriptArguments arguments) {
  must_do(context.machine.add_window(arguments[0]));
}

// What the script itself writes is no effect of the program.
class KeptEffects {
 public:
  explicit KeptEffects(EffectLog& log) : log_(log), before_(log.take()) {}
  ~KeptEffects() {
    (void)log_.take();
    for (Effect& effect : before_) log_.add(std::move(effect.kind), std::move(effect.details));
  }
  KeptEffects(const KeptEffects&) = delete;
  KeptEffects& operator=(const KeptEffects&) = delete;

 private:
  EffectLog& log_;
  std::vector<Effect> before_;
};

// setreg HIVE "KEY" ["NAME" TYPE VALUE...]
void set_registry(ScriptContext& context, ScriptArguments arguments) {
  const Hive hive = hive_named(arguments[0]);
  const std::string& key = arguments[1];
  if (arguments.size() == 3) throw ScriptError("setreg: a type is missing behind the name");
  const KeptEffects kept(context.machine.effects());
  Registry& registry = context.machine.platform().registry;
  const RegistryWrite made = registry.create_key(hive, key);
  if (!made) throw ScriptError(key + ": the key cannot be made: " + made.problem());
  if (arguments.size() == 2) return;

  const RegistryValue value = registry_value_of(arguments[3], arguments.subspan(4));
  const RegistryWrite written = registry.set_value(hive, key, arguments[2], value);
  if (!written) throw ScriptError(key + ": the value cannot be written: " + written.problem());
}

std::uint32_t attribute_bit(char letter) {
  switch (letter) {
    case 'r':
      return kAttributeReadOnly;
    case 'h':
      return kAttributeHidden;
    case 's':
      return kAttributeSystem;
    case 'a':
      return kAttributeArchive;
    default:
      return 0;
  }
}

// attrib "PATH" +r -h ...
void set_attributes(ScriptContext& context, ScriptArguments arguments) {
  const std::string& path = arguments[0];
  FileSystem& files = context.machine.platform().files;
  const auto before = files.attributes(path);
  if (!before) throw ScriptError(path + ": there is no such file or folder");

  std::uint32_t bits = *before & kSettable;
  for (const std::string& word : arguments.subspan(1)) {
    const bool set = word.starts_with('+');
    const std::uint32_t bit =
        word.size() == 2 && (set || word[0] == '-') ? attribute_bit(word[1]) : 0;
    if (bit == 0) throw ScriptError(word + ": must be + or - and one of r, h, s, a");
    bits = set ? bits | bit : bits & ~bit;
  }
  if (!files.set_attributes(path, bits == 0 ? kAttributeNormal : bits)) {
    throw ScriptError(path + ": the attributes cannot be set");
  }
}

constexpr auto kSetUp = ScriptCommand::Kind::kSetUp;
constexpr auto kAnyNumber = ScriptCommand::kAnyNumber;

constexpr std::array kCommands = {
    ScriptCommand{"clock", kSetUp, 1, 1, set_clock},
    ScriptCommand{"env", kSetUp, 2, 2, set_environment},
    ScriptCommand{"process", kSetUp, 2, 2, add_process},
    ScriptCommand{"inuse", kSetUp, 1, 1, add_in_use},
    ScriptCommand{"denied", kSetUp, 1, 1, add_denied},
    ScriptCommand{"urlcache", kSetUp, 2, 2, add_url_cache_entry},
    ScriptCommand{"window", kSetUp, 1, 1, add_window},
    ScriptCommand{"setreg", kSetUp, 2, kAnyNumber, set_registry},
    ScriptCommand{"attrib", kSetUp, 2, kAnyNumber, set_attributes},
};

}  // namespace

std::span<const ScriptCommand> set_up_commands() { return kCommands; }

}  // namespace quillvane
