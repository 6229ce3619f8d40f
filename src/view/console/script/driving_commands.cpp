// The lines that act as the user does. Acts on a disabled control do nothing; the models see to
// that.

#include <array>

#include "controls/tray_area.h"
#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/tabs.h"
#include "forms/text_box.h"
#include "forms/toolbar.h"
#include "forms/tree_view.h"
#include "view/console/script/script_command.h"
#include "view/console/script/script_names.h"

namespace quillvane {

namespace {

constexpr int kAnyInt = std::numeric_limits<int>::max();

// start [SWITCHES]
void start(ScriptContext& context, ScriptArguments arguments) {
  if (context.program.started()) throw ScriptError("start: the windows are made already");
  std::string command_line;
  for (const std::string& word : arguments) {
    if (!command_line.empty()) command_line += ' ';
    command_line += word;
  }
  context.program.start(command_line);
}

// click W.C, click W.C N; the tray icon too
void click(ScriptContext& context, ScriptArguments arguments) {
  if (arguments.size() == 1) {
    Control& control = control_named(context.program, arguments[0]);
    if (auto* tray = dynamic_cast<TrayArea*>(&control)) return tray->click();
    control_of_kind<Clickable>(context.program, arguments[0], "cannot be clicked").click();
    return;
  }
  if (auto* tabs = dynamic_cast<Tabs*>(&control_named(context.program, arguments[0]))) {
    tabs->click_tab(number_in_range(arguments[1], 1, tabs->count()));
    return;
  }
  auto& bar = control_of_kind<Toolbar>(context.program, arguments[0], "has no numbered buttons");
  bar.click_button(number_in_range(arguments[1], 1, bar.count()));
}

// type W.C "TEXT"
void type_text(ScriptContext& context, ScriptArguments arguments) {
  control_of_kind<TextBox>(context.program, arguments[0], "takes no text").set_text(arguments[1]);
}

// tick W.C on|off, tick W.C N on|off
void tick(ScriptContext& context, ScriptArguments arguments) {
  const bool checked = on_or_off(arguments.back());
  if (arguments.size() == 2) {
    auto& box = control_of_kind<CheckBox>(context.program, arguments[0], "has no tick");
    if (box.enabled()) box.set_checked(checked);
    return;
  }
  Control& control = control_named(context.program, arguments[0]);
  if (auto* list = dynamic_cast<ListView*>(&control)) {
    list->tick_row(number_in_range(arguments[1], 1, list->count()), checked);
  } else if (auto* tree = dynamic_cast<TreeView*>(&control)) {
    tree->tick_node(number_in_range(arguments[1], 1, tree->count()), checked);
  } else {
    throw ScriptError(arguments[0] + ": has no rows or nodes to tick");
  }
}

// pick W.C N
void pick(ScriptContext& context, ScriptArguments arguments) {
  Control& control = control_named(context.program, arguments[0]);
  if (auto* list = dynamic_cast<ListView*>(&control)) {
    list->click_row(number_in_range(arguments[1], 1, list->count()));
  } else if (auto* tree = dynamic_cast<TreeView*>(&control)) {
    tree->click_node(number_in_range(arguments[1], 1, tree->count()));
  } else {
    throw ScriptError(arguments[0] + ": has no rows or nodes to pick");
  }
}

// mark W.C N on|off
void mark(ScriptContext& context, ScriptArguments arguments) {
  auto& list = control_of_kind<ListView>(context.program, arguments[0], "has no rows to mark");
  const int row = number_in_range(arguments[1], 1, list.count());
  list.set_selected(row, on_or_off(arguments[2]));
}

// open W.C [N]: without N a list that may be empty, or the tray icon
void open(ScriptContext& context, ScriptArguments arguments) {
  Control& control = control_named(context.program, arguments[0]);
  if (auto* tray = dynamic_cast<TrayArea*>(&control); tray != nullptr && arguments.size() == 1) {
    tray->double_click();
    return;
  }
  auto& list = control_of_kind<ListView>(context.program, arguments[0], "cannot be opened");
  list.double_click(arguments.size() == 1 ? 0 : number_in_range(arguments[1], 1, list.count()));
}

// column W.C N
void column(ScriptContext& context, ScriptArguments arguments) {
  auto& list = control_of_kind<ListView>(context.program, arguments[0], "has no columns");
  const int count = static_cast<int>(list.columns().size());
  list.click_column(number_in_range(arguments[1], 1, count));
}

// rightclick W.C
void right_click(ScriptContext& context, ScriptArguments arguments) {
  Control& control = control_named(context.program, arguments[0]);
  const Menu* menu = nullptr;
  if (auto* list = dynamic_cast<ListView*>(&control)) {
    menu = list->right_click();
  } else if (auto* tree = dynamic_cast<TreeView*>(&control)) {
    menu = tree->right_click();
  } else {
    throw ScriptError(arguments[0] + ": is neither a list nor a tree");
  }
  if (menu == nullptr) {
    context.output.print(nullptr);
    return;
  }
  Json names = Json::array();
  for (const MenuEntry* entry : menu->entries()) {
    if (entry->visible()) names.push_back(entry->name());
  }
  context.output.print(names);
}

void minimise(ScriptContext& context, ScriptArguments arguments) {
  window_named(context.program, arguments[0]).minimise();
}

void restore(ScriptContext& context, ScriptArguments arguments) {
  window_named(context.program, arguments[0]).restore();
}

void close(ScriptContext& context, ScriptArguments arguments) {
  window_named(context.program, arguments[0]).close();
}

// wait MS
void wait(ScriptContext& context, ScriptArguments arguments) {
  context.program.wait(std::chrono::milliseconds(number_in_range(arguments[0], 0, kAnyInt)));
}

// A command that runs later. That there is such a command is seen at once.
ScriptWords later_command(ScriptArguments words) {
  (void)find_command(words);
  return {words.begin(), words.end()};
}

// at pump N COMMAND...
void at_pump(ScriptContext& context, ScriptArguments arguments) {
  if (arguments[0] != "pump") throw ScriptError(arguments[0] + ": must be pump");
  const auto count = static_cast<std::uint64_t>(number_in_range(arguments[1], 1, kAnyInt));
  context.triggers.add_at_serving(count, context.line, later_command(arguments.subspan(2)));
}

// when W.C "TEXT" COMMAND...
void when(ScriptContext& context, ScriptArguments arguments) {
  if (name_parts(arguments[0]).size() != 2) {
    throw ScriptError(arguments[0] + ": must be the names of a window and a control");
  }
  context.triggers.add_when(arguments[0], arguments[1], context.line,
                            later_command(arguments.subspan(2)));
}

// answer yes|no|ok|cancel
void answer(ScriptContext& context, ScriptArguments arguments) {
  for (const Answer one : {Answer::kYes, Answer::kNo, Answer::kOk, Answer::kCancel}) {
    if (answer_name(one) != arguments[0]) continue;
    context.machine.dialogs().answer(one);
    return;
  }
  throw ScriptError(arguments[0] + ": must be yes, no, ok or cancel");
}

// path "PATH"
void answer_path(ScriptContext& context, ScriptArguments arguments) {
  context.machine.dialogs().answer_path(arguments[0]);
}

// input "TEXT"
void answer_input(ScriptContext& context, ScriptArguments arguments) {
  context.machine.dialogs().answer_input(arguments[0]);
}

constexpr auto kDriving = ScriptCommand::Kind::kDriving;
constexpr auto kAnyNumber = ScriptCommand::kAnyNumber;

constexpr std::array kCommands = {
    ScriptCommand{"start", kDriving, 0, kAnyNumber, start},
    ScriptCommand{"click", kDriving, 1, 2, click},
    ScriptCommand{"type", kDriving, 2, 2, type_text},
    ScriptCommand{"tick", kDriving, 2, 3, tick},
    ScriptCommand{"pick", kDriving, 2, 2, pick},
    ScriptCommand{"mark", kDriving, 3, 3, mark},
    ScriptCommand{"open", kDriving, 1, 2, open},
    ScriptCommand{"column", kDriving, 2, 2, column},
    ScriptCommand{"rightclick", kDriving, 1, 1, right_click},
    ScriptCommand{"minimise", kDriving, 1, 1, minimise},
    ScriptCommand{"restore", kDriving, 1, 1, restore},
    ScriptCommand{"close", kDriving, 1, 1, close},
    ScriptCommand{"wait", kDriving, 1, 1, wait},
    ScriptCommand{"at", kDriving, 3, kAnyNumber, at_pump},
    ScriptCommand{"when", kDriving, 3, kAnyNumber, when},
    ScriptCommand{"answer", kDriving, 1, 1, answer},
    ScriptCommand{"path", kDriving, 1, 1, answer_path},
    ScriptCommand{"input", kDriving, 1, 1, answer_input},
};

}  // namespace

std::span<const ScriptCommand> driving_commands() { return kCommands; }

}  // namespace quillvane
