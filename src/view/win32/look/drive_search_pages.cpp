#include "view/win32/look/drive_search_pages.h"

namespace quillvane {

namespace {

using enum ControlKind;

// The grids of all pages agree in their ends: above stand the tabs and the steps, below the
// commands.
enum Row { kTitleRow, kTabRow, kStepRow, kNoteRow, kMain };
constexpr Track kTitleTrack = {36, 0};
constexpr Track kTabsTrack = {28, 0};
constexpr Track kStepsTrack = {32, 0};
constexpr Track kNoteTrack = {54, 0};  // a heading and two lines
constexpr Track kListTrack = {100, 1};
constexpr Track kLineTrack = {20, 0};
constexpr Track kCommandsTrack = {32, 0};

// What belongs to the page, and the way to the pages before and behind it.
constexpr Track kColumns[] = {{300, 1}, {196, 0}};
constexpr int kBoth = 2;

constexpr ControlPlace note(std::string_view frame, std::string_view text) {
  return filling(frame, kNote, kNoteRow, 0, kBoth).says(text);
}

constexpr ControlPlace list(std::string_view name, ControlKind kind, int row,
                            std::string_view says) {
  return filling(name, kind, row, 0, kBoth).says(says);
}

constexpr ControlPlace step(std::string_view name, std::string_view says) {
  return packed(Pack::kFromLeft, name, kButton, kStepRow, kBoth, 100)
      .says(says)
      .drawn_though_hidden();
}

constexpr ControlPlace command(std::string_view name, int row, int width) {
  return packed(Pack::kFromLeft, name, kButton, row, 1, width);
}

constexpr ControlPlace next(int row) {
  return {"chameleonButton10", kMainButton, row, 1, 1, Pack::kFromRight, 94, "Next", {}, {}, {}};
}

constexpr ControlPlace back(int row) {
  return {"chameleonButton8", kButton, row, 1, 1, Pack::kFromRight, 94, "Back", {}, {}, {}};
}

// --- On all pages.

constexpr Track kCommonRows[] = {kTitleTrack, kTabsTrack, kStepsTrack, kListTrack};

constexpr ControlPlace kCommonControls[] = {
    step("chameleonButton6", "1  Drives"),
    step("orvbutton8", "2  File types"),
    step("chameleonButton1", "3  Folders"),
    step("orvbutton5", "4  Search"),
};

// --- The drives.

constexpr Track kDriveRows[] = {kTitleTrack, kTabsTrack, kStepsTrack,
                                kNoteTrack,  kListTrack, kCommandsTrack};
constexpr ControlPlace kDriveControls[] = {
    note("Frame2",
         "Drives\nTick the drives that shall be searched. A search lists files and removes none."),
    list("View2", kList, kMain, "Drives").with("row-drive").columns_as("wnbt"),
    next(kMain + 1),
};

// --- The file types.

constexpr int kTypeCommands = kMain + 1;
constexpr Track kTypeRows[] = {kTitleTrack, kTabsTrack, kStepsTrack,
                               kNoteTrack,  kListTrack, kCommandsTrack};
constexpr ControlPlace kTypeControls[] = {
    note("Frame4",
         "File types\nA ticked row lists all files of the drives whose names match its pattern, "
         "whatever they hold. The row \"file with zero size\" lists every file of the drives, of "
         "any name and size."),
    list("View101", kList, kMain, "File types").with("row-oth").columns_as("wt"),
    command("command111", kTypeCommands, 84).says("Add"),
    command("command811", kTypeCommands, 84).says("Edit"),
    command("command911", kTypeCommands, 84).says("Remove"),
    command("orvbutton611", kTypeCommands, 84).says("Tick all"),
    command("orvbutton711", kTypeCommands, 84).says("Tick none"),
    next(kTypeCommands),
    back(kTypeCommands),
};

// --- The exclude and include lists.

constexpr int kListLabel = kMain;
constexpr int kLists = kMain + 1;
constexpr int kListCommands = kMain + 2;
constexpr Track kListRows[] = {kTitleTrack, kTabsTrack, kStepsTrack,   kNoteTrack,
                               kLineTrack,  kListTrack, kCommandsTrack};
constexpr ControlPlace kListControls[] = {
    note("Frame6",
         "Folders\nThe lists are read at the first search after the program's start: what is added "
         "later counts after the next start. What is deleted counts at once."),
    {"TabStrip1", kTabs, kLists, 0, kBoth, Pack::kFromTop, 26, "Lists", {}, {}, {}},
    filling("Label8", kHeading, kListLabel, 0, kBoth),
    list("View201", kPictureList, kLists, "Excluded files and folders").with("row-fol"),
    list("View202", kPictureList, kLists, "Included folders").with("row-fol"),
    command("command331", kListCommands, 110),
    command("chameleonButton5", kListCommands, 84).says("Add file"),
    command("command338", kListCommands, 84).says("Edit"),
    command("command339", kListCommands, 84).says("Delete"),
    next(kListCommands),
    back(kListCommands),
};

// --- The run.

constexpr int kRunFolder = kMain;
constexpr int kRunFigures = kMain + 1;
constexpr int kRunBar = kMain + 2;
constexpr int kRunDrives = kMain + 3;
constexpr int kRunTypes = kMain + 4;
constexpr int kRunCommands = kMain + 5;
constexpr Track kRunRows[] = {kTitleTrack, kTabsTrack, kStepsTrack, kNoteTrack, kLineTrack,
                              kLineTrack,  {12, 0},    kListTrack,  kListTrack, kCommandsTrack};

constexpr ControlPlace figure(std::string_view name, ControlKind kind, int width) {
  return packed(Pack::kFromLeft, name, kind, kRunFigures, kBoth, width);
}

constexpr std::string_view kTypesFound = "File types that are searched for";

constexpr ControlPlace kRunControls[] = {
    note("Frame8",
         "Search\nThe drives are searched one by one, then the temporary folders of the system. "
         "Nothing is removed."),
    packed(Pack::kFromLeft, "Label5", kCaption, kRunFolder, kBoth, 60).says("Folder"),
    filling("Label5", kPathLabel, kRunFolder, 0, kBoth),
    figure("Label7", kCaption, 60).says("Found"),
    figure("Label7", kLabel, 90),
    figure("Label10", kCaption, 40).says("Size"),
    figure("Label10", kLabel, 120),
    filling("Bar1", kProgress, kRunBar, 0, kBoth).says("Drives that are done"),
    list("View2", kList, kRunDrives, "Drives that are searched")
        .with("row-drive")
        .columns_as("wnbt"),
    list("View1000", kList, kRunTypes, kTypesFound).with("row-oth").columns_as("wsnn"),
    command("orvbutton10", kRunCommands, 110).says("Exit"),
};

// --- The result.

constexpr int kResultTypes = kMain;
constexpr int kResultFiles = kMain + 1;
constexpr int kResultSummary = kMain + 2;
constexpr int kResultBar = kMain + 3;
constexpr int kResultCommands = kMain + 4;
constexpr Track kResultRows[] = {kTitleTrack, kTabsTrack, kStepsTrack, kNoteTrack,    {70, 1},
                                 {100, 2},    {28, 0},    {10, 0},     kCommandsTrack};
constexpr ControlPlace kResultControls[] = {
    note("Frame80",
         "Result\nThe ticks of the types tick their files. \"Delete\" removes every file of the "
         "list, ticked or not, and asks before."),
    list("View1000", kList, kResultTypes, "Types of the files found")
        .with("row-oth")
        .columns_as("wsnn"),
    list("view1", kList, kResultFiles, "Files found on the drives")
        .with("row-file")
        .columns_as("wnt"),
    packed(Pack::kFromLeft, "Shape1", kMark, kResultSummary, kBoth, 14).says("Result mark"),
    filling("Label11", kLabel, kResultSummary, 0, kBoth).says("Summary of the drive search"),
    filling("bar3", kProgress, kResultBar, 0, kBoth).says("Progress of the removal"),
    command("orvbutton2", kResultCommands, 84).says("Delete").drawn_though_hidden(),
    command("orvbutton3", kResultCommands, 112).says("Create Report").drawn_though_hidden(),
    back(kResultCommands),
};

// The foremost first: the run stands before all others, and at the start the result before the
// drives.
constexpr PageGrid kPages[] = {
    {"Frame8", kRunRows, kColumns, kRunControls},
    {"Frame80", kResultRows, kColumns, kResultControls},
    {"Frame6", kListRows, kColumns, kListControls},
    {"Frame4", kTypeRows, kColumns, kTypeControls},
    {"Frame2", kDriveRows, kColumns, kDriveControls},
    {{}, kCommonRows, kColumns, kCommonControls},
};

constexpr PageSet kPageSet = {
    .own_tab = "Junk scan",
    .pages_tab = "Drive search",
    .tab_row = kTabRow,
    .first_page = "chameleonButton6",
    .shared_page = "Frame80",
    .run_page = "Frame8",
    .own_work = "cmd_cancel",
    .pages_work = "Text6",
    .pages = kPages,
};

constexpr AskedClick kQuestions[] = {
    {"orvbutton2", "view1", "files are removed, ticked or not.\n\nRemove them?"},
};

}  // namespace

const PageSet& drive_search_pages() { return kPageSet; }

std::span<const AskedClick> drive_search_questions() { return kQuestions; }

}  // namespace quillvane
