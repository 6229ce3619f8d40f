#include "view/win32/look/form7_layout.h"

namespace quillvane {

namespace {

enum Row { kTitle, kTools, kMain, kSelect, kSummary, kBar, kCommands };

constexpr Track kRows[] = {
    {36, 0},   // title bar
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
constexpr std::string_view kLanguages = "pictrlang";

constexpr ControlPlace title_button(std::string_view name, std::string_view says,
                                    std::string_view picture) {
  return {name,   ControlKind::kTitleButton, kTitle, 0, 2, Pack::kFromRight, 42, says, {}, {},
          picture};
}

constexpr ControlPlace button(std::string_view name, Row row, int columns, Pack pack, int width,
                              ControlKind kind = ControlKind::kButton) {
  return {name, kind, row, 0, columns, pack, width, {}, {}, {}, {}};
}

// In the order in which Tab goes through them.
constexpr ControlPlace kControls[] = {
    {"Toolbar1",
     ControlKind::kToolbar,
     kTools,
     0,
     2,
     Pack::kFromLeft,
     500,
     "Commands",
     {},
     {},
     "toolbar"},
    {"lbllanguage(0)",
     ControlKind::kLabel,
     kTools,
     0,
     2,
     Pack::kFromRight,
     70,
     {},
     kLanguages,
     {},
     {}},
    {"imglangselect",
     ControlKind::kPicture,
     kTools,
     0,
     2,
     Pack::kFromRight,
     20,
     "Chosen language",
     kLanguages,
     {},
     "language-chosen"},
    {"Tv1",
     ControlKind::kTree,
     kMain,
     0,
     1,
     Pack::kFill,
     0,
     "Categories",
     kResultPage,
     {},
     "category"},
    {"view5", ControlKind::kList, kMain, 1, 1, Pack::kFill, 0, "Files of the category", kResultPage,
     "Category", "category"},
    {"view1", ControlKind::kList, kMain, 1, 1, Pack::kFill, 0, "All files found", kResultPage,
     "All files", "category"},
    button("cmd_all", kSelect, 1, Pack::kFromLeft, 104),
    button("cmd_non", kSelect, 1, Pack::kFromLeft, 104),
    {"Text13", ControlKind::kPathLine, kSelect, 1, 1, Pack::kFill, 0, {}, kResultPage, {}, {}},
    {"Shape1",
     ControlKind::kMark,
     kSummary,
     0,
     2,
     Pack::kFromLeft,
     14,
     "Result mark",
     kResultPage,
     {},
     {}},
    {"Gif89a2",
     ControlKind::kAnimation,
     kSummary,
     0,
     2,
     Pack::kFromRight,
     34,
     "At work",
     kResultPage,
     {},
     {}},
    {"Label11",
     ControlKind::kLabel,
     kSummary,
     0,
     2,
     Pack::kFill,
     0,
     "Summary",
     kResultPage,
     {},
     {}},
    {"bar3",
     ControlKind::kProgress,
     kBar,
     0,
     2,
     Pack::kFill,
     0,
     "Cleaning progress",
     kResultPage,
     {},
     {}},
    button("cmd_start", kCommands, 2, Pack::kFromLeft, 104, ControlKind::kMainButton),
    button("cmd_cancel", kCommands, 2, Pack::kFromLeft, 90),
    button("cmd_clean", kCommands, 2, Pack::kFromLeft, 120),
    button("cmd_report", kCommands, 2, Pack::kFromRight, 112),
    button("cmd_ignore", kCommands, 2, Pack::kFromRight, 90),
    button("cmd_custom", kCommands, 2, Pack::kFromRight, 116),
    title_button("chameleonButton9", "Close", "title-close"),
    title_button("chameleonButton12", "Minimise", "title-minimise"),
    title_button("chameleonButton18", "About", "title-about"),
    title_button("chameleonButton13", "Language", "title-language"),
};

constexpr ToolbarHint kHints[] = {
    {1, "Drives"},         {2, "Results"},          {3, "Exclude and include lists"},
    {5, "Start the scan"}, {6, "Start cleaning"},   {7, "Cancel the scan"},
    {9, "Select all"},     {10, "Select none"},     {12, "Custom search"},
    {13, "Ignore list"},   {14, "Create a report"}, {16, "Eraser"},
};

constexpr KeyClick kKeys[] = {
    {0x70, "Image44(0)"},  // F1
    {0x74, "cmd_start"},   // F5
    {0x1B, "cmd_cancel"},  // Escape
};

constexpr ReadingClick kReadingClicks[] = {
    {"cmd_cancel", 0, WhileReading::kEndsIt},
    {"Toolbar1", 7, WhileReading::kEndsIt},  // Cancel the scan
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
    "List1",
    "Drive1",
    "Shape2",
    // Buttons that only hold a run.
    "orvbutton2",
    "orvbutton3",
    "Command9",
    "Command14",
    // Ways to the pages of the drive search, and the commands of its file types.
    "chameleonButton6",
    "orvbutton8",
    "chameleonButton1",
    "command111",
    "command811",
    "command911",
    "orvbutton611",
    "orvbutton711",
    // The backup's bar, the year and the way to the shortcut window: on pages to come.
    "Bar2",
    "Label12(0)",
    "Label12(1)",
    "chameleonButton2",
    // Pages and panels: their controls are drawn, or come later.
    "Frame2",
    "Frame4",
    "Frame6",
    "Frame8",
    "Frame80",
    "pictrlang",
    "View2",
    "View10",
    "View4",
    "View1000",
    "View201",
    "View202",
    "View101",
    // Not in the window: the help key, the tray, the timer and the pop-up menus.
    "Image44(0)",
    "TrayArea1",
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
};

}  // namespace

const WindowLayout& form7_layout() { return kLayout; }

}  // namespace quillvane
