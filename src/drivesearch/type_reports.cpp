// What the rows of the summary by type do with the hits: count them, show those of one type, tick
// them. A hit belongs to a type by the last three characters of both.
#include <string>
#include <utility>

#include "drivesearch/search_run.h"
#include "platform/unicode_case.h"
#include "scan/hit_rows.h"
#include "support/characters.h"
#include "support/like.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

// Columns of View1000.
constexpr int kPatternColumn = 1;
constexpr int kCountColumn = 2;
constexpr int kSpaceColumn = 3;

constexpr const char* kEveryFile = "*.*";
constexpr std::size_t kEnding = 3;  // characters

std::string ending_of(std::string_view text) {
  return lower_case(last_characters(Trim(text), kEnding));
}

}  // namespace

void SearchRun::connect_types() {
  pages_.types.View1000.on_double_click = [this] { open_type_report(); };
  pages_.types.View1000.on_item_check = [this](int row) { tick_type(row); };
  View4.on_item_click = [this](int row) { pages_.junk.Text8.set_text(std::to_string(row)); };
  Command2.on_click = [this] { count_types(); };
}

void SearchRun::count_types() {
  ListView& types = pages_.types.View1000;
  const ListView& hits = pages_.junk.view1;
  for (int row = 1; row <= types.count(); ++row) {
    Label5.set_caption("Checking Files 2   " + std::to_string(row));
    const std::string ending = ending_of(types.sub_item(row, kPatternColumn));
    double count = 0;
    double bytes = 0;
    for (int hit = 1; hit <= hits.count() && !ending.empty(); ++hit) {
      if (ending_of(hits.text(hit)) != ending) continue;
      count += 1;
      bytes += Val(hits.sub_item(hit, kSizeColumn));
    }
    if (row == types.count()) {
      count = foundcount;
      bytes = foundbytes;
    }
    types.set_sub_item(row, kCountColumn, number_text(count));
    types.set_sub_item(row, kSpaceColumn, number_text(bytes));
  }
}

// Opens for a type with a count; nothing fills the counts but Command2.
void SearchRun::open_type_report() {
  ListView& types = pages_.types.View1000;
  const int row = pages_.types.typerow;
  if (row < 1 || row > types.count() || Val(types.sub_item(row, kCountColumn)) == 0) return;
  Text10.set_text(types.text(row));
  enable_removal(false);
  for (Button* button : {&pages_.report.orvbutton3, &chameleonButton3, &chameleonButton4}) {
    button->set_enabled(false);
  }
  List7.clear();
  List8.clear();
  fill_type_report(row);
  View4.move_to(types);
  if (View4.count() > 0) View4.set_selected(1, true);
  View4.show();
  types.hide();
  pages_.junk.Text8.set_text("1");
}

// Sizes and dates wait in two lists until all rows are there. The type of all files shows what
// stands in View10, which nothing fills.
void SearchRun::fill_type_report(int row) {
  const ListView& types = pages_.types.View1000;
  const ListView& hits = pages_.junk.view1;
  const std::string pattern = types.sub_item(row, kPatternColumn);
  if (Trim(pattern) == kEveryFile) {
    View4.clear();
    const int wanted = row == types.count() ? 1 : 0;
    for (int hit = 1; hit <= View10.count(); ++hit) {
      if (Val(View10.sub_item(hit, kCategoryColumn)) == wanted) View4.add_copy(View10, hit);
    }
    return;
  }
  if (Val(types.sub_item(row, kSpaceColumn)) == 0) return;
  View4.clear();
  const std::string ending = ending_of(pattern);
  for (int hit = 1; hit <= hits.count(); ++hit) {
    if (!Like(ending_of(hits.text(hit)), ending)) continue;
    View4.add(hits.text(hit));
    List7.add(hits.sub_item(hit, kSizeColumn));
    List8.add(hits.sub_item(hit, kDateColumn));
  }
  for (int shown = 1; shown <= View4.count(); ++shown) {
    View4.set_sub_item(shown, kSizeColumn, List7.item(shown - 1));
    View4.set_sub_item(shown, kDateColumn, List8.item(shown - 1));
  }
}

// No wildcard works here: the endings are the same or they are not.
void SearchRun::tick_type(int row) {
  const ListView& types = pages_.types.View1000;
  ListView& hits = pages_.junk.view1;
  const bool ticked = types.checked(row);
  const std::string ending =
      lower_case(last_characters(types.sub_item(row, kPatternColumn), kEnding));
  for (int hit = 1; hit <= hits.count() && !session.ended(); ++hit) {
    session.do_events();
    if (hit > hits.count()) return;
    if (lower_case(last_characters(hits.text(hit), kEnding)) == ending) {
      hits.set_checked(hit, ticked);
    }
  }
}

}  // namespace quillvane
