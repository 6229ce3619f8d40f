#include "drivesearch/report_page.h"

#include <string>

#include "support/date_text.h"
#include "support/file_date.h"
#include "support/program_name.h"
#include "support/text.h"
#include "support/text_file.h"

namespace quillvane {

namespace {

constexpr const char* kLineEnd = "\r\n";

std::string rule(std::size_t hyphens) { return std::string(hyphens, '-'); }

std::string addresses() { return std::string(kWebAddress) + " || " + std::string(kMailAddress); }

DateTime now(const Platform& platform) {
  return calendar_date(platform.loop.local_now()).value_or(DateTime{});
}

}  // namespace

// The size is that of the category scan, also after a drive search. Meant so.
std::string ReportPage::text_report(const JunkPage& junk) {
  const DateTime time = now(junk.platform());
  std::string report = "Report Time " + date_text(time, "dd,mm,yyyy") + "   " +
                       time_text(time, "hh:mm:ss") + kLineEnd;
  report += "Total files found = " + std::to_string(junk.view1.count()) +
            " Total files size = " + junk.size_text(junk.totals.winsize + junk.totals.brsize) +
            kLineEnd;
  report += rule(59) + kLineEnd;
  report += std::string("\r") + kLineEnd;  // a line that holds a CR of its own; meant so
  for (int row = 1; row <= junk.view1.count(); ++row) {
    report.append(Trim(junk.view1.text(row))).append(kLineEnd);
  }
  report += rule(59) + kLineEnd;
  report += std::string("This Report Made by Tidewrack") + kLineEnd;
  report += addresses() + kLineEnd;
  return report;
}

// A row's link is its path as it stands, without quotes, and its heading is closed by "<h/5>"; a
// "</font>" that nothing opened closes the list; the time begins with its seconds. All meant so.
std::string ReportPage::html_report(const JunkPage& junk) const {
  const DateTime time = now(junk.platform());
  std::string report = std::string("<body>") + kLineEnd;
  report += "<h4><font face = verdana > Report For Drive  " + std::string(Trim(Text1.text())) +
            "  At        " + date_text(time, " dd /mm/yyyy ") + "             " +
            time_text(time, " ss: mm: hh ") + "</font></h4>" + kLineEnd;
  report += std::string("<br>") + kLineEnd;
  report += "<h4>Total files found = " + std::to_string(junk.view1.count()) +
            " Total files size = " + foundsizetext + "</h4>" + kLineEnd;
  report += "<h5>" + rule(59) + "</h5>" + kLineEnd;
  for (int row = 1; row <= junk.view1.count(); ++row) {
    const std::string path(Trim(junk.view1.text(row)));
    report +=
        "<h5><font color=blue size=2><a href= " + path + ">" + path + "</a></font><h/5>" + kLineEnd;
  }
  report += "<h5>" + rule(57) + "</font></h5>" + kLineEnd;
  report += std::string("<h5> Report Made by Tidewrack Deluxe </h5>") + kLineEnd;
  report += "<h5>" + addresses() + "</h5>" + kLineEnd;
  return report;
}

void ReportPage::write_text_report(const JunkPage& junk) {
  if (junk.view1.count() == 0) return;
  Text5.set_text("");
  const std::string file =
      platform().dialogs.save_file({"Save As", "*.txt (text files)|*.txt", "*.txt"});
  if (Trim(file).empty()) return;
  Text5.set_text(file);
  // Without a word when it cannot be written; what lies there is shown then.
  static_cast<void>(write_text_file(platform(), file, text_report(junk)));
  platform().shell.open({"", file, {}, kShowNormal});
}

void ReportPage::write_html_report(const JunkPage& junk) {
  if (Trim(Text5.text()).empty()) return;
  static_cast<void>(write_text_file(platform(), Text5.text(), html_report(junk)));
}

}  // namespace quillvane
