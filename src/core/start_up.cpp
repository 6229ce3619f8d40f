// Load and close of the main window.
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string>

#include "core/form7.h"
#include "drivesearch/type_table.h"
#include "lang/change_language.h"
#include "lang/character_set.h"
#include "support/file_date.h"
#include "support/registry_text.h"
#include "support/suite_color.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kSystemTempKey = "software\\Quillvane\\Tidewrack Deluxe\\option\\systemp";
constexpr int kTwipsOfFileColumn = 5000;
constexpr Color kShadowColor = 8421504;
constexpr int kShadowDepth = 10;

}  // namespace

void Form7::load() {
  thumbnails.put_back();
  loadavlang();
  session.Is64Bit = platform().system.is_wow64();
  changelangorv(session, *this);
  mark_chosen();
  if (const auto set = character_set_of_page(platform().system.ansi_code_page())) {
    fontcharset = *set;
  }
  put_type_table_in_place(session);
  apply_color();
  if (session.suitemode > 0) Timer2.set_running(true);
  if (session.forceclean == 1) session.shown_at_start = false;
  show_year();
  if (session.cmdline == "d") cmd_start.set_enabled(false);
  Gif89a2.set_file(session.data_file("search.gif"));
  read_system_temp_option();
  view1.set_column_width(1, kTwipsOfFileColumn);
  fill_drive_list(Drive1);
  restore_ticked_drives();
  Frame80.move_to(Frame2);
  Frame80.show();
  build_tree();
  Tv1.select(1);
  load_ignore_list();
  if (session.silentmode == 1) {
    Text9.set_text("");
    Text9.set_text("1");
  }
}

void Form7::activate() {
  if (!session.CommandLineGiven) shadow = {kShadowColor, kShadowDepth};
  if (!may_remove()) tell_ignore_list_problem();
}

void Form7::close() {
  save_ticked_drives();
  TrayArea1.set_icon_visible(false);
  hide();
  session.end();
}

void Form7::apply_color() {
  const Color color = suite_color(platform());
  set_back_color(color);
  for (Control* part : std::initializer_list<Control*>{&Text13, &Shape1, &Shape2, &chameleonButton9,
                                                       &chameleonButton12, &chameleonButton13,
                                                       &chameleonButton18}) {
    part->set_back_color(color);
  }
  for (Button* button :
       {&chameleonButton9, &chameleonButton12, &chameleonButton13, &chameleonButton18}) {
    button->set_back_over(color);
  }
}

void Form7::show_year() {
  const auto now = calendar_date(platform().loop.local_now());
  if (!now) return;
  Label12_0.set_caption(std::to_string(now->year));
  Label12_1.set_caption(std::to_string(now->year));
}

// Nothing in the junk scan consults these two.
void Form7::read_system_temp_option() {
  const Registry& registry = platform().registry;
  systempaccess =
      ReadRegistryString32(registry, Hive::kLocalMachine, kSystemTempKey, "access").text;
  const double days =
      Val(ReadRegistryString32(registry, Hive::kLocalMachine, kSystemTempKey, "days").text);
  constexpr double kTicksOfDay = 864e9;
  constexpr double kMostDays = 10'000'000;  // further away than any date
  if (std::abs(days) > kMostDays) return;
  const FileTime date{platform().loop.local_now().ticks -
                      static_cast<std::int64_t>(days * kTicksOfDay)};
  if (calendar_date(date)) systempdate = date;
}

}  // namespace quillvane
