// The links whose target is gone, as the shortcut window lists them.
#pragma once

#include <string>
#include <string_view>

#include "forms/buttons.h"
#include "forms/field.h"
#include "forms/list_view.h"
#include "forms/page.h"
#include "forms/simple_controls.h"
#include "forms/text_box.h"

namespace quillvane {

// Sub-items of a row; its text is the link's name.
inline constexpr int kTargetColumn = 1;
inline constexpr int kLinkPathColumn = 2;

// What a row says for the link of that path: its file's name without the extension.
[[nodiscard]] std::string shown_name(std::string_view link_path);

class ResultPage : public virtual Page {
 public:
  ResultPage(Window& window, Session& session);

  // Adds the link `folder` + `name`, which leads to `target`.
  void add_row(const std::string& folder, const std::string& name, const std::string& target);
  [[nodiscard]] std::string target(int row) const { return view1.sub_item(row, kTargetColumn); }
  [[nodiscard]] std::string link_path(int row) const {
    return view1.sub_item(row, kLinkPathColumn);
  }
  // The row whose number stands in Text2; 0 when there is none.
  [[nodiscard]] int row_in_hand() const;
  // Ticks and selects every row, or takes both away.
  void select_all(bool selected);

  Frame Frame1{window, "Frame1", kHidden};  // panel of the results
  // links whose target is gone
  ListView view1{window,
                 "view1",
                 {"Name", "Target", "Location"},
                 {.tool_tip = "Double click on shortcut to attempt manually fix it"}};
  Label Label8_1{window, "Label8(1)"};  // link and target of the row clicked last
  // stands before Label4
  Label Label6_2{window, "Label6(2)", {.caption = " Broken Shortcut Files Found: "}};
  Label Label4{window, "Label4"};           // how many were found
  TextBox Text2{window, "Text2", kHidden};  // number of the row clicked last; empty for none

  Field<int> badfound{window, "badfound"};         // broken links of the scan
  Field<bool> somechecked{window, "somechecked"};  // a removal has seen a ticked row
  Field<int> runmode{window, "runmode"};           // 2: a run without a user, nothing is asked
};

}  // namespace quillvane
