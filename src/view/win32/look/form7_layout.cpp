#include "view/win32/look/form7_layout.h"

#include "view/win32/look/drive_search_pages.h"

namespace quillvane {

namespace {

enum Row { kTitle, kTasks, kTools, kMain, kSelect, kSummary, kBar, kCommands };

constexpr Track kRows[] = {
    {36, 0},   // title bar
    {28, 0},   // tabs of the two jobs
    {40, 0},   // tool bar
    {160, 1},  // tree and lists
    {28, 0},   // selection, and the file being looked at
    {34, 0},   // summary
    {10, 0},   // progress
    {32, 0},   // commands
};

// Tree on the left, lists on the right.
constexpr Track kColumns[] = {{230, 41}, {300, 59}};

constexpr std::string_view kResultPage = "Frame80";

using enum ControlKind;

constexpr ControlPlace left(std::string_view name, ControlKind kind, Row row, int width) {
  return packed(Pack::kFromLeft, name, kind, row, 2, width);
}

constexpr ControlPlace right(std::string_view name, ControlKind kind, Row row, int width) {
  return packed(Pack::kFromRight, name, kind, row, 2, width);
}

constexpr ControlPlace under_tree(std::string_view name, int width) {
  return packed(Pack::kFromLeft, name, kButton, kSelect, 1, width);
}

constexpr ControlPlace across(std::string_view name, ControlKind kind, Row row) {
  return filling(name, kind, row, 0, 2).on(kResultPage);
}

constexpr ControlPlace beside_tree(std::string_view name, ControlKind kind, Row row) {
  return filling(name, kind, row, 1, 1).on(kResultPage);
}

constexpr ControlPlace hit_list(std::string_view name, std::string_view says,
                                std::string_view tab) {
  return beside_tree(name, kList, kMain).says(says).under(tab).with("category");
}

constexpr ControlPlace title_button(std::string_view name) {
  return right(name, kTitleButton, kTitle, 42);
}

// In the order in which Tab goes through them.
constexpr ControlPlace kControls[] = {
    left("Toolbar1", kToolbar, kTools, 500).says("Commands").with("toolbar"),
    filling("Tv1", kTree, kMain, 0, 1).on(kResultPage).says("Categories").with("category"),
    hit_list("view5", "Files of the category", "Category"),
    hit_list("view1", "All files found", "All files"),
    under_tree("cmd_all", 104),
    under_tree("cmd_non", 104),
    beside_tree("Text13", kPathLine, kSelect),
    left("Shape1", kMark, kSummary, 14).on(kResultPage).says("Result mark"),
    right("Gif89a2", kAnimation, kSummary, 34).on(kResultPage).says("At work"),
    across("Label11", kLabel, kSummary).says("Summary"),
    across("bar3", kProgress, kBar).says("Cleaning progress"),
    left("cmd_start", kMainButton, kCommands, 104),
    left("cmd_cancel", kButton, kCommands, 90),
    left("cmd_clean", kButton, kCommands, 120),
    right("cmd_report", kButton, kCommands, 112),
    right("cmd_ignore", kButton, kCommands, 90),
    right("cmd_custom", kButton, kCommands, 116),
    title_button("chameleonButton9").says("Close").with("title-close"),
    title_button("chameleonButton12").says("Minimise").with("title-minimise"),
    title_button("chameleonButton18").says("About").with("title-about"),
    title_button("chameleonButton13").says("Language").with("title-language"),
    title_button("chameleonButton2").says("Shortcut tool").with("title-shortcuts"),
};

constexpr ToolbarHint kHints[] = {
    {1, "Drives"},         {2, "File types"},       {3, "Exclude and include lists"},
    {5, "Start the scan"}, {6, "Start cleaning"},   {7, "Cancel the scan"},
    {9, "Select all"},     {10, "Select none"},     {12, "Custom search"},
    {13, "Ignore list"},   {14, "Create a report"}, {16, "Eraser"},
};

constexpr KeyClick kKeys[] = {
    {0x70, "Image44(0)"},                                                            // F1
    {0x74, "cmd_start"},                                                             // F5
    {0x74, "chameleonButton10"}, {0x74, "chameleonButton10"}, {0x1B, "cmd_cancel"},  // Escape
    {0x1B, "orvbutton10"},
};

constexpr ReadingClick kReadingClicks[] = {
    {"cmd_cancel", 0, WhileReading::kEndsIt},
    {"Toolbar1", 7, WhileReading::kEndsIt},  // Cancel the scan
    {"orvbutton10", 0, WhileReading::kEndsIt},
    {"chameleonButton9", 0, WhileReading::kEndsIt},
    {"chameleonButton12", 0, WhileReading::kActsNow},
};

constexpr std::string_view kUndrawn[] = {
    // Variables and mail boxes; Text3 has no text of its own.
    "Text1",
    "Text3",
    "Text5",
    "Text8",
    "Text9",
    "Text14",
    "Text15",
    "txtfilecont",
    "txtfilesize",
    "Text6",
    "txtviewf",
    "txttime",
    "List1",
    "Drive1",
    "Shape2",
    // Buttons that only hold a run.
    "Command9",
    "Command14",
    // Ways to the pages of the drive search, and the commands of its file types.
    "chameleonButton331",
    "chameleonButton332",
    "command335",
    "Command4",
    "Command5",
    "Command6",
    "Text52",
    "Text55",
    "List5",
    "List6",
    "command511",
    "Command1",
    "Command8",
    "Text11",
    "Text12",
    // The drive search: its commands, its progress and its variables.
    "orvbutton6",
    "Command2",
    "chameleonButton3",
    "chameleonButton4",
    "chameleonButton11",
    "Command11",
    "Command3",
    "Command10",
    "Text2",
    "Text4",
    "Text10",
    "List7",
    "List8",
    // The backup's bar and the year: on pages to come.
    "Bar2",
    "Label12(0)",
    "Label12(1)",
    // Pages and panels: their controls are drawn, or come later.
    // The list of the languages draws them.
    "pictrlang",
    "lbllanguage(0)",
    "imglangselect",
    "View10",
    "View4",
    // Not in the window: the help key, the tray, the timer and the pop-up menus.
    "Image44(0)",
    "TrayArea1",
    "Timer1",
    "Timer2",
    "scf",
    "stc",
    "sc",
    "b1",
    "b2",
    "b4",
    "b5",
    "b7",
    "b8",
    "b",
    "a1",
    "a2",
    "a3",
    "a5",
    "a6",
    "a",
};

constexpr WindowLayout kLayout = {
    .window = "Form7",
    .title = {},
    .default_button = {},
    .rows = kRows,
    .columns = kColumns,
    .controls = kControls,
    .hints = kHints,
    .keys = kKeys,
    .reading_clicks = kReadingClicks,
    .undrawn = kUndrawn,
    .margin = 12,
    .gap = 8,
    .tab_height = 26,
    .width = 960,
    .height = 640,
    .least_width = 740,
    .least_height = 460,
    .choices = {.panel = "pictrlang",
                .label = "lbllanguage",
                .mark = "imglangselect",
                .says = "Languages"},
};

}  // namespace

const WindowLayout& form7_layout() {
  static const WindowLayout layout = [] {
    WindowLayout whole = kLayout;
    whole.page_set = drive_search_pages();
    whole.asked_clicks = drive_search_questions();
    return whole;
  }();
  return layout;
}

}  // namespace quillvane
