#include "view/console/script/control_json.h"

namespace quillvane {

namespace {

Json row_of(std::string text, Json sub, bool checked, bool selected,
            const std::optional<std::string>& icon) {
  return {{"text", std::move(text)},
          {"sub", std::move(sub)},
          {"checked", checked},
          {"selected", selected},
          {"icon", icon ? Json(*icon) : Json(nullptr)},
          {"bold", false},  // no list of the windows sets single rows apart by face ...
          {"color", 0}};    // ... or colour
}

}  // namespace

Json property_json(const PropertyValue& value) {
  return std::visit(
      [](const auto& content) -> Json {
        if constexpr (std::is_same_v<std::decay_t<decltype(content)>, double>) {
          return json_number(content);
        } else {
          return content;
        }
      },
      value);
}

Json row_json(const ListView& list, int row) {
  Json sub = Json::array();
  for (int column = 1; column <= list.sub_item_count(row); ++column) {
    sub.push_back(list.sub_item(row, column));
  }
  return row_of(list.text(row), std::move(sub), list.checked(row), list.selected(row),
                list.icon(row));
}

Json row_json(const ListBox& list, int row) {
  return row_of(list.item(row - 1), Json::array(), false, false, std::nullopt);
}

Json node_json(const TreeNode& node) {
  return {
      {"index", node.index}, {"key", node.key},           {"parent", node.parent},
      {"text", node.text},   {"image", node.image},       {"checked", node.checked},
      {"bold", node.bold},   {"expanded", node.expanded}, {"color", color_number(node.fore_color)}};
}

Json box_json(const ShownBox& box) {
  Json json = {{"kind", box.kind},
               {"text", box.text},
               {"title", box.title},
               {"style", box.style},
               {"answer", box.answer}};
  if (box.kind == "save" || box.kind == "open") {
    json["file"] = box.file;
    json["filter"] = box.filter;
  }
  if (box.kind == "input") json["default"] = box.preset;
  return json;
}

Json effect_json(const Effect& effect) {
  Json json = {{"event", effect.kind}};
  for (const auto& [name, value] : effect.details) {
    json[name] = std::visit([](const auto& content) { return Json(content); }, value);
  }
  return json;
}

}  // namespace quillvane
