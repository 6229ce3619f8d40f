// The main window's controls: their design-time state, and which event runs what.
#include "core/form7.h"

#include <cmath>
#include <utility>
#include <vector>

namespace quillvane {

namespace {

constexpr std::chrono::milliseconds kQuickRunInterval{500};

std::vector<std::string> hit_columns() { return {"File Name", "Size", "Date"}; }

// Indexes 4, 8, 11 and 15 are separators; the others carry the pictures of the tool bar's list.
// Buttons 1 to 4 belong to the drive search and are hidden at the start.
std::vector<ToolbarButton> design_toolbar() {
  constexpr bool kOff = false;
  const auto separator = [](bool visible = true) { return ToolbarButton{0, true, true, visible}; };
  const auto button = [](int image, bool enabled = true, bool visible = true) {
    return ToolbarButton{image, false, enabled, visible};
  };
  return {
      button(1, true, false),
      button(2, true, false),
      button(3, true, false),
      separator(false),
      button(4),
      button(10, kOff),
      button(5, kOff),
      separator(),
      button(6, kOff),
      button(7, kOff),
      separator(),
      button(11),
      button(12),
      button(8, kOff),
      separator(),
      button(13),
  };
}

PropertyValue number_value(double number) {
  if (number == std::floor(number)) return static_cast<std::int64_t>(number);
  return number;
}

}  // namespace

Form7::Form7(Program& owner)
    : Window("Form7"),
      program(owner),
      pending(owner.platform),
      thumbnails(owner.platform),
      Text1(*this, "Text1"),
      Text3(*this, "Text3"),
      Text5(*this, "Text5"),
      Text8(*this, "Text8"),
      Text9(*this, "Text9"),
      Text13(*this, "Text13"),
      Text14(*this, "Text14"),
      Text15(*this, "Text15"),
      txtfilecont(*this, "txtfilecont"),
      txtfilesize(*this, "txtfilesize"),
      Tv1(*this, "Tv1"),
      view1(*this, "view1", hit_columns()),
      view5(*this, "view5", hit_columns()),
      Label11(*this, "Label11"),
      Shape1(*this, "Shape1"),
      Shape2(*this, "Shape2"),
      Gif89a2(*this, "Gif89a2"),
      bar3(*this, "bar3"),
      Bar2(*this, "Bar2"),
      Label12_0(*this, "Label12(0)"),
      Label12_1(*this, "Label12(1)"),
      Frame2(*this, "Frame2"),
      Frame4(*this, "Frame4"),
      Frame6(*this, "Frame6"),
      Frame8(*this, "Frame8"),
      Frame80(*this, "Frame80"),
      cmd_start(*this, "cmd_start"),
      cmd_clean(*this, "cmd_clean"),
      cmd_cancel(*this, "cmd_cancel"),
      cmd_all(*this, "cmd_all"),
      cmd_non(*this, "cmd_non"),
      cmd_custom(*this, "cmd_custom"),
      cmd_ignore(*this, "cmd_ignore"),
      cmd_report(*this, "cmd_report"),
      orvbutton2(*this, "orvbutton2"),
      orvbutton3(*this, "orvbutton3"),
      Command9(*this, "Command9"),
      Command14(*this, "Command14"),
      chameleonButton2(*this, "chameleonButton2"),
      chameleonButton9(*this, "chameleonButton9"),
      chameleonButton12(*this, "chameleonButton12"),
      chameleonButton13(*this, "chameleonButton13"),
      chameleonButton18(*this, "chameleonButton18"),
      chameleonButton6(*this, "chameleonButton6"),
      orvbutton8(*this, "orvbutton8"),
      chameleonButton1(*this, "chameleonButton1"),
      command111(*this, "command111"),
      command811(*this, "command811"),
      command911(*this, "command911"),
      orvbutton611(*this, "orvbutton611"),
      orvbutton711(*this, "orvbutton711"),
      Image44_0(*this, "Image44(0)"),
      Toolbar1(*this, "Toolbar1"),
      TrayArea1(*this, "TrayArea1", owner.platform.tray),
      scf(*this, "scf", "Scan"),
      stc(*this, "stc", "Start Cleaning"),
      sc(*this, "sc", "scan", {&scf, &stc}),
      b1(*this, "b1", "Remove Selected File(s)"),
      b2(*this, "b2", "Remove All Files Listed"),
      b4(*this, "b4", "Locate Selected File"),
      b5(*this, "b5", "File Properties"),
      b7(*this, "b7", "Select All"),
      b8(*this, "b8", "Select None"),
      b(*this, "b", "remove", {&b1, &b2, &b4, &b5, &b7, &b8}),
      a1(*this, "a1", "Add New Item"),
      a2(*this, "a2", "Edit Selected Item"),
      a3(*this, "a3", "Remove Selected Item"),
      a5(*this, "a5", "Select All Items"),
      a6(*this, "a6", "Select none"),
      a(*this, "a", "foption", {&a1, &a2, &a3, &a5, &a6}),
      lbllanguage_0(*this, "lbllanguage(0)"),
      imglangselect(*this, "imglangselect"),
      pictrlang(*this, "pictrlang"),
      Drive1(*this, "Drive1"),
      View2(*this, "View2", {"Name", "Total", "Free Space", "Status"}),
      View10(*this, "View10", hit_columns()),
      View4(*this, "View4", hit_columns()),
      View1000(*this, "View1000", {"File Description ", "File Type", "Files", "Space Used (Byte)"}),
      View201(*this, "View201", {"Excluded Files and Folders Location", "Description"}),
      View202(*this, "View202", {"Included Folders Location", "Description"}),
      View101(*this, "View101", {"File Description", "File Type"}),
      List1(*this, "List1"),
      Timer2(*this, "Timer2", program.platform.loop, kQuickRunInterval) {
  set_captions();
  Toolbar1.set_buttons(design_toolbar());
  for (Control* hidden :
       std::initializer_list<Control*>{&Text1,       &Text3,           &Text5,    &Text8,
                                       &Text9,       &Text13,          &Text14,   &Text15,
                                       &txtfilecont, &txtfilesize,     &Gif89a2,  &pictrlang,
                                       &Drive1,      &List1,           &Frame4,   &Frame6,
                                       &Frame8,      &Frame80,         &bar3,     &Bar2,
                                       &orvbutton2,  &orvbutton3,      &Command9, &chameleonButton6,
                                       &orvbutton8,  &chameleonButton1}) {
    hidden->hide();
  }
  enter_state(ButtonState::kFresh);
  connect_controls();
  connect_menus();
  connect_lists();
  name_fields();
}

void Form7::set_captions() {
  set_caption(kProgramName);
  cmd_start.set_caption("Start");
  cmd_clean.set_caption("Start Cleaning");
  cmd_cancel.set_caption("Cancel");
  cmd_all.set_caption("Select All");
  cmd_non.set_caption("Select None");
  cmd_custom.set_caption("Custom Search");
  cmd_ignore.set_caption("Ignore list");
  cmd_report.set_caption("Create Report");
  chameleonButton2.set_tool_tip("Run shortcut tool");
  lbllanguage_0.set_caption("English");
  TrayArea1.set_tool_tip(kProgramName);
}

void Form7::connect_controls() {
  Text9.on_change = [this] { run_suite_command(); };
  Text14.on_change = [this] { read_mail(); };
  Text15.on_change = [this] { pending_filter.set_text(Text15.text()); };
  cmd_start.on_click = [this] { start_button(); };
  cmd_cancel.on_click = [this] { cancel_button(); };
  cmd_clean.on_click = [this] { clean_button(); };
  cmd_custom.on_click = [this] { open_custom_list(); };
  cmd_ignore.on_click = [this] { open_ignore_list(); };
  cmd_report.on_click = [this] { orvbutton3.raise_click(); };
  orvbutton2.on_click = [this] { run_cleaning(); };
  orvbutton3.on_click = [this] { write_text_report(); };
  Command9.on_click = [this] { write_html_report(); };
  Command14.on_click = [this] { back_up(); };
  cmd_all.on_click = [this] { show_everything(true); };
  cmd_non.on_click = [this] { show_everything(false); };
  chameleonButton9.on_click = [this] { close(); };
  chameleonButton12.on_click = [this] { minimise(); };
  chameleonButton13.on_click = [this] { pictrlang.set_visible(!pictrlang.visible()); };
  Toolbar1.on_button_click = [this](int number) { toolbar_button(number); };
  chameleonButton18.on_click = [this] { open_about(); };
  Image44_0.on_click = [this] { show_help(); };
  TrayArea1.on_double_click = [this] { leave_tray(); };
  Timer2.on_timer = [this] { tell_suite(); };
}

void Form7::connect_menus() {
  scf.on_click = [this] { rescan_node(); };
  stc.on_click = [this] { clean_node(); };
  b1.on_click = [this] { orvbutton2.click(); };
  b2.on_click = [this] {
    view5.check_all(true);
    orvbutton2.click();
  };
  b4.on_click = [this] { locate_row(); };
  b5.on_click = [this] { show_row_properties(); };
  b7.on_click = [this] { view5.check_all(true); };
  b8.on_click = [this] { view5.check_all(false); };
  for (const auto& [entry, button] : std::initializer_list<std::pair<MenuEntry*, const Button*>>{
           {&a1, &command111},
           {&a2, &command811},
           {&a3, &command911},
           {&a5, &orvbutton611},
           {&a6, &orvbutton711},
       }) {
    entry->on_click = [button = button] { button->raise_click(); };
  }
}

void Form7::connect_lists() {
  Tv1.on_node_click = [this](int node) { show_node(node); };
  Tv1.on_node_check = [this](int node) { node_checked(node); };
  Tv1.on_right_click = [this] { return &sc; };
  for (ListView* list : {&view1, &view5}) {
    list->on_item_click = [this](int row) { row_clicked(row); };
    list->on_double_click = [this, list] {
      if (list->count() >= 1) show_row_properties();
    };
    list->on_right_click = [this, list] { return list->count() >= 1 ? &b : nullptr; };
  }
  view1.on_column_click = [this](int column) { sort_hits(column); };
  View2.on_item_check = [this](int /*row*/) { drive_ticked(); };
}

void Form7::name_fields() {
  const auto text = [this](std::string_view name, const std::string& field) {
    add_field(name, [&field] { return PropertyValue(field); });
  };
  const auto whole = [this](std::string_view name, const int& field) {
    add_field(name, [&field] { return PropertyValue(std::int64_t{field}); });
  };
  const auto number = [this](std::string_view name, const double& field) {
    add_field(name, [&field] { return number_value(field); });
  };
  text("cmdline", cmdline);
  text("ignorelist", ignorelist.text());
  text("systempaccess", systempaccess);
  for (const auto& [name, field] : std::initializer_list<std::pair<std::string_view, const int*>>{
           {"silentmode", &silentmode},
           {"cleanmode", &cleanmode},
           {"suitemode", &suitemode},
           {"forceclean", &forceclean},
           {"cancelflag", &cancelflag},
           {"selnode", &selnode},
           {"listfocus", &listfocus},
           {"wizardstep", &wizardstep},
           {"custnode", &custnode},
           {"anydrivechecked", &anydrivechecked},
           {"fontcharset", &fontcharset},
           {"HiddenRun", &program.HiddenRun},
       }) {
    whole(name, *field);
  }
  for (const auto& [name, field] :
       std::initializer_list<std::pair<std::string_view, const double*>>{
           {"catfiles", &totals.catfiles},
           {"catsize", &totals.catsize},
           {"winfiles", &totals.winfiles},
           {"winsize", &totals.winsize},
           {"brfiles", &totals.brfiles},
           {"brsize", &totals.brsize},
           {"custfiles", &totals.custfiles},
           {"custsize", &totals.custsize},
           {"totalfiles", &totals.totalfiles},
           {"totalsize", &totals.totalsize},
       }) {
    number(name, *field);
  }
  add_field("CommandLineGiven", [this] { return PropertyValue(program.CommandLineGiven); });
  add_field("Is64Bit", [this] { return PropertyValue(program.Is64Bit); });
}

void Form7::resized() {
  for (Control* view : std::initializer_list<Control*>{&view1, &View2, &View10, &View4, &View1000,
                                                       &View201, &View101, &view5, &Tv1}) {
    view->refresh();
  }
  if (state() == WindowState::kMinimised) {
    hide();
    TrayArea1.set_icon_visible(true);
  }
}

}  // namespace quillvane
