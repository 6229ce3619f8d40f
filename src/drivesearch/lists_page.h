// The page of the exclude and include lists of the drive search.
//
// Two list views show them under two tabs. Hidden list boxes are the queues that a search works by:
// they are filled from the files once a run of the program, so that what is added on the page
// counts from the next start on, while what is deleted there counts at once.
#pragma once

#include <string>
#include <string_view>

#include "drivesearch/folder_list.h"
#include "forms/buttons.h"
#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/page.h"
#include "forms/tabs.h"
#include "forms/text_box.h"
#include "scan/junk_page.h"

namespace quillvane {

class ListsPage : public virtual Page {
 public:
  // `junk` has the ignore list, to which the files of the exclude list are added, and the results.
  ListsPage(Window& window, Session& session, JunkPage& junk);

  // Shows both lists, the exclude list in front.
  void load_lists();

  // --- The queues of the search (list_queues.cpp). Each is filled once; a list that cannot be read
  // leaves its queue empty and says why in exclude_problem or include_problem.
  void fill_include_queue();    // Command4
  void fill_exclude_queue();    // Command5
  void drop_excluded_rows();    // Command6
  std::string exclude_problem;  // why exfolder.orv was not read; empty when it was
  std::string include_problem;  // the same of incfolder.orv

  // --- The page.
  Tabs TabStrip1{window,
                 "TabStrip1",
                 {"Exclude Files and Folders", "Include Folders"}};  // shows one of the two lists
  Label Label8{window, "Label8"};                                    // what the list in front does
  // folders and files to leave out
  ListView View201{window, "View201", {"Excluded Files and Folders Location", "Description"}};
  // folders to take in
  ListView View202{window, "View202", {"Included Folders Location", "Description"}, kHidden};
  Button command331{window, "command331"};  // adds a folder to the list in front
  // adds a file to the exclude list
  Button chameleonButton5{window, "chameleonButton5", {.caption = "Add file"}};
  Button command338{window, "command338", {.caption = "Edit"}};    // edits the row clicked last
  Button command339{window, "command339", {.caption = "Delete"}};  // deletes rows

  // --- Hidden controls: what other routines start, and variables.
  // holds the way to the page of the exclude and include lists
  Button chameleonButton1{window, "chameleonButton1", kHidden};
  Button chameleonButton331{window, "chameleonButton331", kHidden};  // holds showing View201
  Button chameleonButton332{window, "chameleonButton332", kHidden};  // holds showing View202
  Button command335{window, "command335", kHidden};                  // holds saving both lists
  Button Command4{window, "Command4", kHidden};                      // holds filling List5
  Button Command5{window, "Command5", kHidden};                      // holds filling List6
  // holds dropping the hits below excluded folders, which nothing else calls
  Button Command6{window, "Command6", kHidden};
  TextBox Text52{window, "Text52", kHidden};  // number of the row clicked last; empty: none
  TextBox Text55{window, "Text55", kHidden};  // the list in front: 1 exclude, 2 include
  ListBox List5{window, "List5", kHidden};    // folders to take in, as a search works by them
  // what is left out, as a search works by it: folders, the temporary folder
  ListBox List6{window, "List6", kHidden};

 private:
  enum class Which { kExclude = 1, kInclude = 2 };

  // lists_page.cpp
  void show_exclude_list();
  void show_include_list();
  void show_list(Which which);
  void tell_unread(std::string_view file, const std::string& problem) const;
  void lock_commands(bool locked);
  void row_clicked(int row);
  void tell_length(const TextBox& box) const;

  // list_commands.cpp
  void add_folder();
  void add_file();
  void edit_row();
  void delete_rows();
  void delete_excluded_rows();
  void delete_included_rows();
  void save_lists();
  [[nodiscard]] std::string ask_for_folder();
  [[nodiscard]] std::string ask_for_description(const std::string& title,
                                                const std::string& preset);

  static constexpr int kDescriptionColumn = 1;
  static constexpr int kFlagColumn = 2;  // of View201, hidden

  JunkPage& junk_;
  bool exclude_was_read_ = true;  // when it was last shown; a missing list counts as read
  bool include_was_read_ = true;
};

}  // namespace quillvane
