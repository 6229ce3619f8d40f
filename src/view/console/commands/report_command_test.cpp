// report: what is written, and what is never written over.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/one_machine_host.h"
#include "tests/support/temp_folder.h"
#include "tests/support/unreadable_file.h"
#include "view/console/console.h"

namespace quillvane {
namespace {

const std::string kRule59(59, '-');
const std::string kRule57(57, '-');

struct Stage {
  Stage() {
    host.machine.temp().add_file("C:\\Windows\\Temp\\a.tmp", 1536);
    host.machine.temp().add_file("C:\\Windows\\Temp\\b.tmp", 0);
  }
  int run(const std::vector<std::string>& words) {
    ConsoleIo io{in, out, err};
    return run_console(words, io, host);
  }
  [[nodiscard]] std::string path(const std::string& name) const {
    return folder.path() + "/" + name;
  }
  [[nodiscard]] std::string text(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  OneMachineHost host;
  TempFolder folder;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
};

// The scan waits a second before it begins, and the machine's clock began at 10:00:00.
TEST(ReportCommand, WritesTheTextReportOfAScan) {
  Stage stage;
  EXPECT_EQ(stage.run({"report", "text", stage.path("r.txt")}), 0);
  const std::string report = stage.text("r.txt");
  EXPECT_TRUE(report.starts_with("Report Time 21,11,2026   10:00:0")) << report;
  EXPECT_EQ(report.substr(report.find("\r\n")),
            "\r\nTotal files found = 2 Total files size = 1.5 KB\r\n" + kRule59 +
                "\r\n\r\r\n"
                "C:\\Windows\\Temp\\a.tmp\r\n"
                "C:\\Windows\\Temp\\b.tmp\r\n" +
                kRule59 +
                "\r\nThis Report Made by Tidewrack\r\n"
                "https://www.quillvane.example || support@quillvane.example\r\n");
  EXPECT_EQ(stage.out.str() + stage.err.str(), "");
}

TEST(ReportCommand, WritesTheHtmlReportToStandardOutput) {
  Stage stage;
  EXPECT_EQ(stage.run({"report", "html", "-"}), 0);
  const std::string report = stage.out.str();
  EXPECT_TRUE(report.starts_with(
      "<body>\r\n<h4><font face = verdana > Report For Drive    At         21 /11/2026 "))
      << report;
  EXPECT_EQ(report.substr(report.find("<br>")),
            "<br>\r\n<h4>Total files found = 2 Total files size = </h4>\r\n<h5>" + kRule59 +
                "</h5>\r\n"
                "<h5><font color=blue size=2><a href= C:\\Windows\\Temp\\a.tmp>"
                "C:\\Windows\\Temp\\a.tmp</a></font><h/5>\r\n"
                "<h5><font color=blue size=2><a href= C:\\Windows\\Temp\\b.tmp>"
                "C:\\Windows\\Temp\\b.tmp</a></font><h/5>\r\n<h5>" +
                kRule57 +
                "</font></h5>\r\n<h5> Report Made by Tidewrack Deluxe </h5>\r\n"
                "<h5>https://www.quillvane.example || support@quillvane.example</h5>\r\n");
}

TEST(ReportCommand, WritesOverNoFileUnlessItIsTold) {
  Stage stage;
  std::ofstream(stage.path("r.txt")) << "mine";
  EXPECT_EQ(stage.run({"report", "text", stage.path("r.txt")}), 1);
  EXPECT_EQ(stage.text("r.txt"), "mine");
  EXPECT_EQ(stage.err.str(), "quillvane: " + stage.path("r.txt") +
                                 ": is there already (--replace writes over it)\n");
  EXPECT_EQ(stage.run({"report", "text", stage.path("r.txt"), "--replace"}), 0);
  EXPECT_TRUE(stage.text("r.txt").starts_with("Report Time"));
  EXPECT_FALSE(std::filesystem::exists(stage.path("r.txt.new")));
}

TEST(ReportCommand, TellsThatAFileCannotBeWritten) {
  Stage stage;
  EXPECT_EQ(stage.run({"report", "text", stage.path("gone/r.txt")}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: " + stage.path("gone/r.txt") + ": cannot be written\n");
}

TEST(ReportCommand, KnowsTwoForms) {
  Stage stage;
  EXPECT_EQ(stage.run({"report", "pdf", "-"}), 2);
  EXPECT_EQ(stage.err.str(), "quillvane: pdf: must be text or html\n");
}

TEST(ReportCommand, WritesNothingWithoutTheIgnoreList) {
  Stage stage;
  const std::string list = "C:\\Program Files\\Tidewrack\\ignore.tdw";
  stage.host.machine.temp().add_text_file(list, "C:\\Windows\\Temp\\a.tmp\r\n");
  std::unique_ptr<UnreadableFile> files;
  stage.host.machine.wrap = [&](const Platform& platform) {
    if (!files) files = std::make_unique<UnreadableFile>(platform.files, list);
    return platform.with({.files = files.get()});
  };
  EXPECT_EQ(stage.run({"report", "text", stage.path("r.txt")}), 1);
  EXPECT_FALSE(std::filesystem::exists(stage.path("r.txt")));
}

}  // namespace
}  // namespace quillvane
