// The lines that print what is there. They also work after the program has ended itself.

#include <array>

#include "forms/toolbar.h"
#include "platform/unicode_case.h"
#include "view/console/script/control_json.h"
#include "view/console/script/registry_words.h"
#include "view/console/script/script_command.h"
#include "view/console/script/script_names.h"

namespace quillvane {

namespace {

// A field of a window, or one of the few properties that a window itself has.
Json window_value(const DrivenProgram& program, const std::string& window_name,
                  const std::string& name) {
  const bool loaded = program.find_window(window_name) != nullptr;
  if (!loaded && same_name(name, "Visible") && program.has_window(window_name)) return false;
  const Window& window = window_named(program, window_name);
  if (const auto field = window.field(name)) return property_json(*field);
  if (same_name(name, "Visible")) return window.visible();
  if (same_name(name, "Caption")) return window.caption();
  if (same_name(name, "BackColor")) return color_number(window.back_color());
  throw ScriptError(window.name() + "." + name + ": there is no such field");
}

Json control_value(const Control& control, const std::string& name, const std::string& target) {
  const auto value = control.property(name);
  if (!value) throw ScriptError(target + ": there is no such property");
  return property_json(*value);
}

// ColumnHeaders(N).Text
Json column_caption(const ListView& list, std::string_view header, std::string_view property,
                    const std::string& target) {
  constexpr std::string_view kHead = "ColumnHeaders(";
  if (!same_name(header.substr(0, kHead.size()), kHead) || !header.ends_with(')') ||
      !same_name(property, "Text")) {
    throw ScriptError(target + ": there is no such property");
  }
  header.remove_prefix(kHead.size());
  header.remove_suffix(1);
  const int count = static_cast<int>(list.columns().size());
  const int number = number_in_range(header, 1, count);
  return list.columns()[static_cast<std::size_t>(number) - 1];
}

// Enabled or Visible of one button of a tool bar.
Json button_value(const Toolbar& bar, const std::string& name, const std::string& word,
                  const std::string& target) {
  const ToolbarButton* button = bar.button(number_in_range(word, 1, bar.count()));
  if (same_name(name, "Enabled")) return button->enabled;
  if (same_name(name, "Visible")) return button->visible;
  throw ScriptError(target + ": there is no such property of a button");
}

// get W.FIELD, get W.C.PROPERTY [N], get W.C.ColumnHeaders(N).Text
void get(ScriptContext& context, ScriptArguments arguments) {
  const std::string& target = arguments[0];
  const std::vector<std::string> parts = name_parts(target);
  if (parts.size() < 2 || parts.size() > 4) {
    throw ScriptError(target + ": must be the names of a window, a control and a property");
  }
  const std::string control_name = parts[0] + "." + parts[1];
  if (arguments.size() == 2) {
    if (parts.size() != 3) throw ScriptError(target + ": has no numbered buttons");
    const auto& bar =
        control_of_kind<Toolbar>(context.program, control_name, "has no numbered buttons");
    context.output.print(button_value(bar, parts[2], arguments[1], target));
  } else if (parts.size() == 2) {
    context.output.print(window_value(context.program, parts[0], parts[1]));
  } else if (parts.size() == 3) {
    const Control& control = control_named(context.program, control_name);
    context.output.print(control_value(control, parts[2], target));
  } else {
    const auto& list = control_of_kind<ListView>(context.program, control_name, "has no columns");
    context.output.print(column_caption(list, parts[2], parts[3], target));
  }
}

void rows(ScriptContext& context, ScriptArguments arguments) {
  const Control& control = control_named(context.program, arguments[0]);
  if (const auto* list = dynamic_cast<const ListView*>(&control)) {
    context.output.print_list(list->count(), [&](int row) { return row_json(*list, row); });
  } else if (const auto* box = dynamic_cast<const ListBox*>(&control)) {
    context.output.print_list(box->count(), [&](int row) { return row_json(*box, row); });
  } else {
    throw ScriptError(arguments[0] + ": has no rows");
  }
}

void nodes(ScriptContext& context, ScriptArguments arguments) {
  const auto& tree = control_of_kind<TreeView>(context.program, arguments[0], "has no nodes");
  context.output.print_list(tree.count(), [&](int index) { return node_json(tree.node(index)); });
}

void boxes(ScriptContext& context, ScriptArguments /*arguments*/) {
  Json list = Json::array();
  for (const ShownBox& box : context.machine.dialogs().take_boxes()) list.push_back(box_json(box));
  context.output.print(list);
}

void events(ScriptContext& context, ScriptArguments /*arguments*/) {
  Json list = Json::array();
  for (const Effect& effect : context.machine.effects().take()) list.push_back(effect_json(effect));
  context.output.print(list);
}

// reg HIVE "KEY" "NAME"
void reg(ScriptContext& context, ScriptArguments arguments) {
  const Registry& registry = context.machine.platform().registry;
  const auto value = registry.value(hive_named(arguments[0]), arguments[1], arguments[2]);
  if (value.failed()) throw ScriptError(value.problem());
  context.output.print(value ? registry_json(*value) : Json(nullptr));
}

void exists(ScriptContext& context, ScriptArguments arguments) {
  const FileSystem& files = context.machine.platform().files;
  context.output.print(files.attributes(arguments[0]).has_value());
}

void ended(ScriptContext& context, ScriptArguments /*arguments*/) {
  context.output.print(context.program.ended());
}

void echo(ScriptContext& context, ScriptArguments arguments) {
  std::string text;
  for (const std::string& word : arguments) {
    if (&word != &arguments.front()) text += ' ';
    text += word;
  }
  context.output.print(text);
}

constexpr auto kLooking = ScriptCommand::Kind::kLooking;

constexpr std::array kCommands = {
    ScriptCommand{"get", kLooking, 1, 2, get},
    ScriptCommand{"rows", kLooking, 1, 1, rows},
    ScriptCommand{"nodes", kLooking, 1, 1, nodes},
    ScriptCommand{"boxes", kLooking, 0, 0, boxes},
    ScriptCommand{"events", kLooking, 0, 0, events},
    ScriptCommand{"reg", kLooking, 3, 3, reg},
    ScriptCommand{"exists", kLooking, 1, 1, exists},
    ScriptCommand{"ended", kLooking, 0, 0, ended},
    ScriptCommand{"echo", kLooking, 0, ScriptCommand::kAnyNumber, echo},
};

}  // namespace

std::span<const ScriptCommand> looking_commands() { return kCommands; }

}  // namespace quillvane
