#include "shortcuts/shortcut_report.h"

#include "support/date_text.h"
#include "support/file_date.h"
#include "support/program_name.h"
#include "support/text.h"
#include "support/text_file.h"

namespace quillvane {

namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr const char* kBetween = "  |  ";

std::string trimmed(const std::string& text) { return std::string(Trim(text)); }

}  // namespace

std::string shortcut_report(const ResultPage& results) {
  const Platform& platform = results.platform();
  const DateTime now = calendar_date(platform.loop.local_now()).value_or(DateTime{});
  const std::string rule = std::string(59, '-') + kLineEnd;
  const ListView& links = results.view1;
  std::string report = "Bad shortcut Report, creation time   " + date_text(now, "dd,mm,yyyy") +
                       "   " + platform.system.format_date(now) + kLineEnd;
  report += "Total files found = " + std::to_string(links.count()) + kLineEnd;
  report += rule;
  report += std::string("\r") + kLineEnd;  // a line that holds a CR of its own; meant so
  for (int row = 1; row <= links.count(); ++row) {
    report += trimmed(links.text(row)) + kBetween + trimmed(results.target(row)) + kBetween +
              trimmed(results.link_path(row)) + kLineEnd;
  }
  report += rule;
  report += std::string("This Report Made by Tidewrack") + kLineEnd;
  report += std::string(kWebAddress) + " || " + std::string(kMailAddress) + kLineEnd;
  return report;
}

void write_shortcut_report(const ResultPage& results) {
  if (results.view1.count() == 0) return;
  const Platform& platform = results.platform();
  const std::string file =
      platform.dialogs.save_file({"Save As", "*.txt (text files)|*.txt", "*.txt"});
  if (Trim(file).empty()) return;
  // Without a word when it cannot be written; what lies there is shown then.
  static_cast<void>(write_text_file(platform, file, shortcut_report(results)));
  platform.shell.open({"", file, {}, kShowNormal});
}

}  // namespace quillvane
