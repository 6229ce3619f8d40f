// The reports of what was found: the full names of view1 as a text file and as a page of HTML.
#pragma once

#include <string>

#include "forms/buttons.h"
#include "forms/page.h"
#include "forms/text_box.h"
#include "scan/junk_page.h"

namespace quillvane {

class ReportPage : public virtual Page {
 public:
  ReportPage(Window& owner, Session& shared) : Page(owner, shared) {}

  // Asks for a file, writes the text report into it and opens it.
  void write_text_report(const JunkPage& junk);
  // Writes into the file that the text report named.
  void write_html_report(const JunkPage& junk);

  // What they write, in UTF-8.
  [[nodiscard]] static std::string text_report(const JunkPage& junk);
  [[nodiscard]] std::string html_report(const JunkPage& junk) const;

  TextBox Text1{window, "Text1", kHidden};  // what the HTML report names behind "Report For Drive"
  TextBox Text5{window, "Text5", kHidden};  // name of the report's file
  Button orvbutton3{window, "orvbutton3", kHidden};  // holds the text report
  Button Command9{window, "Command9", kHidden};  // holds the HTML report, which nothing else calls

  std::string foundsizetext;  // size of what the drive search found, as text
};

}  // namespace quillvane
