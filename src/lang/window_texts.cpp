#include "lang/window_texts.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

// "View1" stands for view1: case makes no difference.
constexpr TextKey kForm7Keys[] = {
    {"cmd_start", 100},
    {"cmd_clean", 130},
    {"cmd_cancel", 100},
    {"cmd_all", 130},
    {"cmd_non", 130},
    {"cmd_custom", 110},
    {"cmd_ignore", 100},
    {"cmd_report", 120},
    {"Command10"},
    {"Command9"},
    {"Text4", 0, TextRule::kMustBeNone},
    {"Label8(6)"},
    {"a1", 300},
    {"a2", 300},
    {"a3", 300},
    {"a5", 300},
    {"a6", 300},
    {"b1", 300},
    {"b2", 300},
    {"b4", 300},
    {"b5", 300},
    {"b7", 300},
    {"b8", 300},
    {"scf", 300},
    {"stc", 300},
    {"View1000.ColumnHeaders.Item(1)", 160},
    {"View1000.ColumnHeaders.Item(2)", 110},
    {"View1000.ColumnHeaders.Item(3)", 76},
    {"View1000.ColumnHeaders.Item(4)", 140},
    {"view5.ColumnHeaders.Item(1)", 200},
    {"view5.ColumnHeaders.Item(2)", 76},
    {"view5.ColumnHeaders.Item(3)", 148},
    {"View1.ColumnHeaders.Item(1)", 200},
    {"View1.ColumnHeaders.Item(2)", 76},
    {"View1.ColumnHeaders.Item(3)", 148},
    {"View201.ColumnHeaders.Item(1)", 250},
    {"View201.ColumnHeaders.Item(2)", 148},
    {"View202.ColumnHeaders.Item(1)", 250},
    {"View202.ColumnHeaders.Item(2)", 148},
    {"View2.ColumnHeaders.Item(1)", 150},
    {"View2.ColumnHeaders.Item(2)", 100},
    {"View2.ColumnHeaders.Item(3)", 110},
    {"View2.ColumnHeaders.Item(4)", 100},
    {"View10.ColumnHeaders.Item(1)", 200},
    {"View10.ColumnHeaders.Item(2)", 76},
    {"View10.ColumnHeaders.Item(3)", 148},
    {"View4.ColumnHeaders.Item(1)", 200},
    {"View4.ColumnHeaders.Item(2)", 76},
    {"View4.ColumnHeaders.Item(3)", 148},
    {"View101.ColumnHeaders.Item(1)", 160},
    {"View101.ColumnHeaders.Item(2)", 110},
};

constexpr std::string_view kForm7Fonts[] = {
    "cmd_start", "View1000",  "view5",      "view1",      "View201",    "View202",   "View2",
    "View10",    "Command10", "Text4",      "Command9",   "View4",      "cmd_clean", "cmd_cancel",
    "cmd_all",   "cmd_non",   "cmd_custom", "cmd_ignore", "cmd_report", "View101",   "Label8(6)",
};

constexpr TextKey kForm3Keys[] = {
    {"View1.ColumnHeaders.Item(1)", 148},
    {"View1.ColumnHeaders.Item(2)", 148},
    {"View1.ColumnHeaders.Item(3)", 148},
    {"View2.ColumnHeaders.Item(1)", 148},
    {"Label6(0)", 200},
    {"Label6(1)", 200},
    {"Label6(2)", 200},
    {"Label3", 300},
    {"Label8(1)", 0, TextRule::kMayBeNone},
    {"Label2(3)", 300},
    {"Label88(6)", 700},
    {"chameleonButton3"},
    {"Command7"},
    {"Command3"},
    {"Option4", 400},
    {"Option5", 400},
    {"Check1", 500},
    {"cmd_start", 110},
    {"cmd_where", 110},
    {"cmd_all", 130},
    {"cmd_non", 130},
    {"cmd_report", 120},
    {"cmd_delete", 100},
    {"cmd_cancel", 100},
    {"cmd_fix", 110},
    {"fs", 300},
    {"sa", 300},
    {"sn", 300},
    {"ic", 300},
    {"of", 300},
    {"p", 300},
};

constexpr TextKey kForm4Keys[] = {
    {"Command2", 100},
    {"Label222(1)", 250},
    {"Label1(0)", 140},
    {"Label1(1)", 140},
};

constexpr TextKey kForm1Keys[] = {
    {"Command4", 100},    {"Command3", 100},
    {"Command1", 100},    {"view1.ColumnHeaders.Item(1)", 300},
    {"Label222(1)", 250}, {"Label1", 530},
};

constexpr TextKey kForm2Keys[] = {
    {"Command1", 100},
    {"Command2", 100},
    {"Command3", 100},
    {"Command4", 100},
    {"view1.ColumnHeaders.Item(1)", 148},
    {"view1.ColumnHeaders.Item(2)", 148},
    {"Label222(1)", 250},
    {"Label1", 530},
};

constexpr TextKey kForm5Keys[] = {
    {"Label2(0)", 300},
    {"Label2(1)", 300},
    {"Check1", 280},
    {"Label1(0)", 110},
    {"Label1(1)", 110},
    {"Label1(2)", 110},
    {"Label1(3)", 110},
    {"Label1(4)", 500},
    {"Command3", 68},
    {"Command1", 100},
    {"Text1", 300, TextRule::kMayBeNone},
    {"Label222(1)", 250},
};

constexpr TextKey kAboutKeys[] = {
    {"Label2(0)", 370}, {"Label2(1)", 370},   {"Label2(2)", 370},
    {"Label2(3)", 370}, {"Label222(1)", 250},
};

constexpr WindowTexts kWindows[] = {
    {"Form7", kForm7Keys, kForm7Fonts}, {"Form3", kForm3Keys, {}}, {"Form4", kForm4Keys, {}},
    {"Form1", kForm1Keys, {}},          {"Form2", kForm2Keys, {}}, {"Form5", kForm5Keys, {}},
    {"frmabout", kAboutKeys, {}},
};

}  // namespace

std::span<const WindowTexts> window_texts() { return kWindows; }

const WindowTexts* texts_of_window(std::string_view window) {
  const auto* found =
      std::find_if(std::begin(kWindows), std::end(kWindows),
                   [window](const WindowTexts& texts) { return same_name(texts.window, window); });
  return found == std::end(kWindows) ? nullptr : found;
}

TextPlace text_place(std::string_view key) {
  constexpr std::string_view kColumn = ".ColumnHeaders.Item(";
  const std::size_t column = key.find(kColumn);
  if (column == std::string_view::npos) return {key};
  const std::string_view number = key.substr(column + kColumn.size());
  TextPlace place{key.substr(0, column)};
  std::from_chars(number.data(), number.data() + number.size(), place.column);
  return place;
}

}  // namespace quillvane
