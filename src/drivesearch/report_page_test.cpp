// What the reports hold, byte for byte.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kRule59 = "-----------------------------------------------------------";
const std::string kRule57 = "---------------------------------------------------------";

// Three hits, and a category scan that found 1500 and 36 bytes. The clock shows 2026-11-21
// 10:00:00.
struct Found : ScanFixture {
  Found() {
    Form7& form = start();
    for (const char* path : {"C:\\a.tmp", " C:\\with blanks .log ", "C:\\a.tmp"}) {
      add_hit(form.view1, path, 2);
    }
    form.totals.winsize = 1500;
    form.totals.brsize = 36;
    form.totals.custsize = 7;
  }
  Form7& form() { return program->main_window(); }
};

TEST(TextReport, ListsTheTrimmedNamesBetweenTwoRules) {
  Found found;
  found.machine.dialogs().answer_path("C:\\report.txt");

  found.form().orvbutton3.click();

  EXPECT_EQ(found.machine.file_text("C:\\report.txt"),
            "Report Time 21,11,2026   10:00:00\r\n"
            "Total files found = 3 Total files size = 1.5 KB\r\n" +
                kRule59 + "\r\n" +
                "\r\r\n"
                "C:\\a.tmp\r\n"
                "C:\\with blanks .log\r\n"
                "C:\\a.tmp\r\n" +
                kRule59 + "\r\n" +
                "This Report Made by Tidewrack\r\n"
                "https://www.quillvane.example || support@quillvane.example\r\n");
  EXPECT_EQ(kRule59.size(), 59U);
}

TEST(TextReport, HasTheSizeOfTheCategoryScanEvenWithoutOne) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  add_hit(form.view1, "C:\\found by a drive search.tmp", 25);
  fixture.machine.dialogs().answer_path("C:\\report.txt");

  form.orvbutton3.click();

  const std::string report = fixture.machine.file_text("C:\\report.txt").value_or("");
  EXPECT_NE(report.find("\r\nTotal files found = 1 Total files size = 0 B\r\n"), std::string::npos)
      << report;
}

TEST(TextReport, CanBeRunWhileItsButtonIsDisabled) {
  Found found;
  found.form().orvbutton3.set_enabled(false);
  found.form().cmd_report.set_enabled(true);
  found.machine.dialogs().answer_path("C:\\report.txt");
  found.form().cmd_report.click();
  EXPECT_TRUE(found.machine.has_file("C:\\report.txt"));
}

TEST(TextReport, ReplacesWhatLiesUnderTheName) {
  Found found;
  found.machine.add_text_file("C:\\report.txt", std::string(10'000, '?'));
  found.machine.dialogs().answer_path("C:\\report.txt");
  found.form().orvbutton3.click();
  EXPECT_EQ(found.machine.file_text("C:\\report.txt")->find('?'), std::string::npos);
}

TEST(TextReport, IsInTheSystemsCodePageAsFarAsThatHoldsItsNames) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  add_hit(form.view1, "C:\\Gr\u00F6\u00DFe.tmp", 2);
  for (int report = 0; report < 2; ++report)
    fixture.machine.dialogs().answer_path("C:\\report.txt");

  form.orvbutton3.click();
  EXPECT_NE(fixture.machine.file_text("C:\\report.txt")
                ->find("\r\nC:\\Gr\xF6\xDF"
                       "e.tmp\r\n"),
            std::string::npos);

  add_hit(form.view1, "C:\\\u041C\u0438\u0440.tmp", 2);
  form.orvbutton3.click();
  const std::string report = fixture.machine.file_text("C:\\report.txt").value_or("");
  EXPECT_TRUE(report.starts_with("\xEF\xBB\xBFReport Time")) << report;
  EXPECT_NE(report.find("\r\nC:\\Gr\u00F6\u00DFe.tmp\r\nC:\\\u041C\u0438\u0440.tmp\r\n"),
            std::string::npos)
      << report;
}

TEST(HtmlReport, IsInTheSystemsCodePageAndInMarkedUtf8WhereThatIsTooSmall) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.Text5.set_text("C:\\report.htm");
  add_hit(form.view1, "C:\\Gr\u00F6\u00DFe.tmp", 2);
  form.Command9.click();
  const std::string report = fixture.machine.file_text("C:\\report.htm").value_or("");
  EXPECT_TRUE(report.starts_with("<body>\r\n")) << report;
  EXPECT_NE(report.find(">C:\\Gr\xF6\xDF"
                        "e.tmp</a>"),
            std::string::npos)
      << report;

  add_hit(form.view1, "C:\\\u041C\u0438\u0440.tmp", 2);
  form.Command9.click();
  EXPECT_TRUE(fixture.machine.file_text("C:\\report.htm")->starts_with("\xEF\xBB\xBF<body>\r\n"));
}

// The time begins with its seconds, links have no quotes, "<h/5>" and a stray "</font>" close what
// they close; after a category scan there is no size.
TEST(HtmlReport, IsWrittenAsItAlwaysWas) {
  Found found;
  Form7& form = found.form();
  form.Text1.set_text("  Local Disk (C:)  ");
  form.Text5.set_text("C:\\report.htm");
  static_cast<void>(found.machine.effects().take());

  form.Command9.click();

  EXPECT_EQ(found.machine.file_text("C:\\report.htm"),
            "<body>\r\n"
            "<h4><font face = verdana > Report For Drive  Local Disk (C:)  At         21 /11/2026 "
            "              00: 00: 10 </font></h4>\r\n"
            "<br>\r\n"
            "<h4>Total files found = 3 Total files size = </h4>\r\n"
            "<h5>" +
                kRule59 + "</h5>\r\n" +
                "<h5><font color=blue size=2><a href= C:\\a.tmp>C:\\a.tmp</a></font><h/5>\r\n"
                "<h5><font color=blue size=2><a href= C:\\with blanks .log>C:\\with blanks "
                ".log</a></font><h/5>\r\n"
                "<h5><font color=blue size=2><a href= C:\\a.tmp>C:\\a.tmp</a></font><h/5>\r\n"
                "<h5>" +
                kRule57 + "</font></h5>\r\n" +
                "<h5> Report Made by Tidewrack Deluxe </h5>\r\n"
                "<h5>https://www.quillvane.example || support@quillvane.example</h5>\r\n");
  EXPECT_EQ(kRule57.size(), 57U);
  EXPECT_TRUE(found.machine.effects().take().empty());  // it is not opened
}

TEST(HtmlReport, ShowsTheSizeThatTheDriveSearchKept) {
  Found found;
  Form7& form = found.form();
  form.foundsizetext = "12.5 KB";
  form.Text5.set_text("C:\\report.htm");
  form.Command9.click();
  const std::string report = found.machine.file_text("C:\\report.htm").value_or("");
  EXPECT_NE(report.find("<h4>Total files found = 3 Total files size = 12.5 KB</h4>"),
            std::string::npos)
      << report;
}

TEST(HtmlReport, OfNoRowsIsWrittenToo) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.Text5.set_text("C:\\report.htm");
  form.Command9.click();
  EXPECT_TRUE(fixture.machine.has_file("C:\\report.htm"));
}

TEST(HtmlReport, NeedsTheNameThatATextReportLeft) {
  Found found;
  found.form().Text5.set_text("   ");
  found.form().Command9.click();
  found.machine.dialogs().answer_path("C:\\report.txt");
  found.form().orvbutton3.click();
  found.form().Command9.click();
  EXPECT_TRUE(found.machine.file_text("C:\\report.txt")->starts_with("<body>\r\n"));
}

}  // namespace
}  // namespace quillvane
