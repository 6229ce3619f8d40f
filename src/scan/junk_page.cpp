#include "scan/junk_page.h"

#include "platform/unicode_case.h"
#include "support/list_files.h"
#include "support/size_text.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

void add_number(TextBox& box, double number) {
  box.set_text(number_text(Val(box.text()) + number));
}

}  // namespace

JunkPage::JunkPage(Window& owner, Session& shared) : Page(owner, shared) {
  window.add_field("ignorelist", [this] { return property_of(ignorelist.text()); });
  Text15.on_change = [this] { pending_filter.set_text(Text15.text()); };
  Tv1.on_node_click = [this](int node) { show_node(node); };
  Tv1.on_node_check = [this](int node) { node_checked(node); };
  for (ListView* list : {&view1, &view5}) {
    list->on_item_click = [this](int row) { row_clicked(row); };
  }
  view1.on_column_click = [this](int column) { sort_hits(column); };
}

std::string JunkPage::size_text(double bytes) const {
  return NumberInKB(bytes, platform().system.decimal_separator());
}

void JunkPage::add_to_count_and_size(double files, double bytes) {
  add_number(txtfilecont, files);
  add_number(txtfilesize, bytes);
}

void JunkPage::show_summary(double files) {
  Label11.set_caption("Junk files found : ( " + number_text(files) + " ) files , Size : ( " +
                      size_text(totals.totalsize) +
                      " ) - Click \"Start Cleaning\" to Remove selected Files");
}

void JunkPage::read_ignore_list() {
  const ListLines list = read_list_file(platform(), session.data_file(kIgnoreFile));
  std::string text;
  for (const std::string& line : list.lines) text.append(Trim(line)).push_back('|');
  ignorelist.set_text(lower_case(text));
  if (!may_remove() && list.problem.empty()) {
    // What was listed without the list may stand in it.
    view1.clear();
    view5.clear();
  }
  ignore_problem = list.problem;
}

std::string JunkPage::ignore_list_message() const {
  return list_problem_message(session.data_file(kIgnoreFile), ignore_problem,
                              "Nothing is removed while the ignore list cannot be read.");
}

}  // namespace quillvane
