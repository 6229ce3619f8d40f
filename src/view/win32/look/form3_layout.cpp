#include "view/win32/look/form3_layout.h"

namespace quillvane {

namespace {

// The panels take the same rows in turn.
enum Row { kTitle, kTools, kTop, kMain, kDetail, kBelow, kCommands };

constexpr Track kRows[] = {
    {36, 0},   // title bar
    {40, 0},   // tool bar
    {28, 0},   // options; heading; count of the links
    {160, 1},  // drives; a word of patience; links
    {26, 0},   // option; folder in work; link in hand
    {28, 0},   // count; selection
    {32, 0},   // commands
};
constexpr Track kColumns[] = {{300, 1}};

constexpr std::string_view kWherePanel = "Frame2";
constexpr std::string_view kProgressPanel = "Frame8";
constexpr std::string_view kResultPanel = "Frame1";
// A message may leave the progress in view behind the panel to which the user goes back.
constexpr std::string_view kPanels[] = {kWherePanel, kProgressPanel, kResultPanel};

using enum ControlKind;

constexpr ControlPlace left(std::string_view name, ControlKind kind, Row row, int width) {
  return packed(Pack::kFromLeft, name, kind, row, 1, width);
}

constexpr ControlPlace right(std::string_view name, ControlKind kind, Row row, int width) {
  return packed(Pack::kFromRight, name, kind, row, 1, width);
}

constexpr ControlPlace whole(std::string_view name, ControlKind kind, Row row) {
  return filling(name, kind, row, 0, 1);
}

constexpr ControlPlace title_button(std::string_view name) {
  return right(name, kTitleButton, kTitle, 42);
}

// In the order in which Tab goes through them.
constexpr ControlPlace kControls[] = {
    left("Toolbar1", kToolbar, kTools, 400).says("Commands").with("toolbar"),
    left("Option4", kOption, kTop, 200).on(kWherePanel),
    left("Option5", kOption, kTop, 200).on(kWherePanel),
    whole("View2", kList, kMain).on(kWherePanel).says("Drives to search").with("row-drive"),
    whole("Check1", kCheckBox, kDetail).on(kWherePanel),
    whole("Label2(3)", kHeading, kTop).on(kProgressPanel),
    right("Gif89a1", kAnimation, kTop, 34).on(kProgressPanel).says("At work"),
    whole("Label88(6)", kLabel, kMain).on(kProgressPanel),
    left("Label6(0)", kLabel, kDetail, 60).on(kProgressPanel),
    whole("Label5", kPathLabel, kDetail).on(kProgressPanel),
    left("Label6(1)", kLabel, kBelow, 180).on(kProgressPanel),
    left("Label7", kLabel, kBelow, 60).on(kProgressPanel),
    right("Label3", kLabel, kBelow, 190).on(kProgressPanel),
    left("Label6(2)", kHeading, kTop, 180).on(kResultPanel),
    left("Label4", kHeading, kTop, 60).on(kResultPanel),
    whole("view1", kList, kMain)
        .on(kResultPanel)
        .says("Broken links")
        .with("row-ss")
        .columns_as("wtt"),
    whole("Label8(1)", kLabel, kDetail).on(kResultPanel),
    left("cmd_all", kButton, kBelow, 104).on(kResultPanel),
    left("cmd_non", kButton, kBelow, 104).on(kResultPanel),
    left("cmd_start", kMainButton, kCommands, 104),
    left("cmd_cancel", kButton, kCommands, 90),
    left("cmd_where", kButton, kCommands, 120),
    right("cmd_report", kButton, kCommands, 112),
    right("cmd_fix", kButton, kCommands, 104),
    right("cmd_delete", kButton, kCommands, 90),
    right("Label2(0)", kLink, kTools, 40),
    title_button("chameleonButton9").says("Close").with("title-close"),
    title_button("chameleonButton12").says("Minimise").with("title-minimise"),
    title_button("chameleonButton18").says("About").with("title-about"),
    title_button("chameleonButton13").says("Language").with("title-language"),
    title_button("Image44(0)").says("Help").with("title-help"),
};

constexpr ToolbarHint kHints[] = {
    {1, "Where to scan"},   {3, "Start the scan"},   {4, "Delete the ticked links"},
    {5, "Cancel the scan"}, {7, "Select all"},       {8, "Select none"},
    {9, "Fix the link"},    {11, "Create a report"},
};

constexpr KeyClick kKeys[] = {
    {0x70, "Image44(0)"},  // F1
    {0x74, "cmd_start"},   // F5
    {0x1B, "cmd_cancel"},  // Escape
};

constexpr ReadingClick kReadingClicks[] = {
    {"cmd_cancel", 0, WhileReading::kEndsIt},
    {"Toolbar1", 5, WhileReading::kEndsIt},  // Cancel the scan
    {"chameleonButton9", 0, WhileReading::kEndsIt},
    {"chameleonButton12", 0, WhileReading::kActsNow},
};

constexpr std::string_view kUndrawn[] = {
    // What Option4, Option5 and Check1 say themselves.
    "Label9(0)",
    "Label9(1)",
    "Label9(2)",
    // Variables, mail boxes and working lists.
    "Drive1",
    "Text2",
    "Text3",
    "Text4",
    "Text6",
    "List1",
    "List2",
    "List3",
    "List4",
    "List5",
    "List6",
    "List7",
    "LSTFILES",
    "lstdirs",
    "File1",
    "Label100",
    // The older buttons, which have no place on the screen.
    "Frame5",
    "orvbutton1",
    "orvbutton2",
    "orvbutton3",
    "orvbutton6",
    "orvbutton9",
    "orvbutton10",
    "chameleonButton1",
    "chameleonButton2",
    "chameleonButton3",
    "chameleonButton4",
    "chameleonButton5",
    "chameleonButton7",
    "Command1",
    "Command2",
    "Command3",
    "Command7",
    "Frame3",
    "Option1",
    "Option2",
    "Option3",
    "Text1",
    "orvbutton5",
    // The list of the languages draws them.
    "pictrlang",
    "lbllanguage(0)",
    "imglangselect",
    // The panels: their controls are drawn.
    "Frame2",
    "Frame8",
    "Frame1",
    // Not in the window: the tray and the pop-up menu.
    "TrayArea1",
    "fs",
    "sa",
    "sn",
    "ic",
    "of",
    "p",
    "a",
};

constexpr WindowLayout kLayout = {
    .window = "Form3",
    .title = {},
    .default_button = {},
    .rows = kRows,
    .columns = kColumns,
    .controls = kControls,
    .hints = kHints,
    .keys = kKeys,
    .reading_clicks = kReadingClicks,
    .undrawn = kUndrawn,
    .stack = kPanels,
    .margin = 12,
    .gap = 8,
    .tab_height = 0,
    .width = 900,
    .height = 560,
    .least_width = 740,
    .least_height = 420,
    .choices = {.panel = "pictrlang",
                .label = "lbllanguage",
                .mark = "imglangselect",
                .says = "Languages"},
};

}  // namespace

const WindowLayout& form3_layout() { return kLayout; }

}  // namespace quillvane
