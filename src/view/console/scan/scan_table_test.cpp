#include "view/console/scan/scan_table.h"

#include <gtest/gtest.h>

#include <sstream>

#include "forms/window.h"
#include "view/console/json_text.h"
#include "view/console/scan/scan_json.h"

namespace quillvane {
namespace {

ScanReport small_report() {
  return {{3, 1538},
          "Junk files found : ( 3 ) files",
          {{1, "w", true, "Windows ( 3 files, 1.5 KB )", "Windows", {3, 1538}},
           {2, "st", false, "System Temporary ( 3 files, 1.5 KB )", "System Temporary", {3, 1538}},
           {3, "ut", false, "User Temporary ( 0 files, 0 B )", "User Temporary", {0, 0}}}};
}

// A hit list with rows of category 2 and, out of order, of category 3.
struct Hits {
  Hits() {
    add("C:\\Temp\\a.tmp", "1.5 KB", "2");
    add("C:\\User\\x\ny", "", "3");
    add("C:\\Temp\\b.tmp", "2 B", "2");
  }
  void add(const std::string& path, const std::string& size, const std::string& category) {
    const int row = list.add(path);
    list.set_sub_item(row, 1, size);
    list.set_sub_item(row, 2, "3/7/2013 9:05:00 AM");
    list.set_sub_item(row, 3, category);
  }

  Window window{"Form7"};
  ListView list{window, "view1", {"File Name", "Size", "Date"}};
};

struct Output {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  ConsoleIo io{in, out, err};
};

TEST(ScanTable, ListsCategoriesTotalsAndTheSummary) {
  Output output;
  print_scan_table(output.io, small_report(), nullptr);
  EXPECT_EQ(output.out.str(),
            "Category            Files    Size\n"
            "Windows                 3  1.5 KB\n"
            "  System Temporary      3  1.5 KB\n"
            "  User Temporary        0     0 B\n"
            "Total                   3  1.5 KB\n"
            "\n"
            "Junk files found : ( 3 ) files\n");
}

TEST(ScanTable, SetsGroupsApartOnATerminal) {
  Output output;
  output.io.out_takes_bold = true;
  print_scan_table(output.io, small_report(), nullptr);
  EXPECT_EQ(output.out.str(),
            "\x1b[1mCategory            Files    Size\x1b[0m\n"
            "\x1b[1mWindows                 3  1.5 KB\x1b[0m\n"
            "  System Temporary      3  1.5 KB\n"
            "  User Temporary        0     0 B\n"
            "\x1b[1mTotal                   3  1.5 KB\x1b[0m\n"
            "\n"
            "Junk files found : ( 3 ) files\n");
}

TEST(ScanTable, ShowsEachFileBelowItsCategory) {
  const Hits hits;
  Output output;
  output.io.out_is_terminal = true;
  print_scan_table(output.io, small_report(), &hits.list);
  EXPECT_EQ(output.out.str(),
            "Category            Files    Size\n"
            "Windows                 3  1.5 KB\n"
            "  System Temporary      3  1.5 KB\n"
            "        1.5 KB  C:\\Temp\\a.tmp\n"
            "           2 B  C:\\Temp\\b.tmp\n"
            "  User Temporary        0     0 B\n"
            "                C:\\User\\x<0A>y\n"
            "Total                   3  1.5 KB\n"
            "\n"
            "Junk files found : ( 3 ) files\n");
}

TEST(ScanTable, GivesAnotherProgramTheNamesAsTheyAre) {
  const Hits hits;
  Output output;
  print_scan_table(output.io, small_report(), &hits.list);
  EXPECT_NE(output.out.str().find("                C:\\User\\x\ny\n"), std::string::npos)
      << output.out.str();
}

TEST(ScanJson, IsOneDocumentInAFixedOrder) {
  std::ostringstream out;
  print_scan_json(out, small_report(), nullptr);
  EXPECT_EQ(out.str(),
            R"j({"totals": {"files":3,"bytes":1538},)j"
            "\n"
            R"j( "summary": "Junk files found : ( 3 ) files",)j"
            "\n"
            R"j( "categories": [)j"
            "\n"
            R"j(  {"index":1,"key":"w","caption":"Windows ( 3 files, 1.5 KB )","files":3,)j"
            R"j("bytes":1538},)j"
            "\n"
            R"j(  {"index":2,"key":"st","caption":"System Temporary ( 3 files, 1.5 KB )",)j"
            R"j("files":3,"bytes":1538},)j"
            "\n"
            R"j(  {"index":3,"key":"ut","caption":"User Temporary ( 0 files, 0 B )",)j"
            R"j("files":0,"bytes":0}]})j"
            "\n");
}

TEST(ScanJson, HoldsEachFileInTheOrderOfTheListWhenAsked) {
  const Hits hits;
  std::ostringstream out;
  print_scan_json(out, small_report(), &hits.list);

  const auto document = Json::parse(out.str());
  ASSERT_EQ(document.size(), 4U);
  EXPECT_EQ(std::next(document.begin(), 3).key(), "files");
  EXPECT_EQ(document["files"].size(), 3U);
  EXPECT_EQ(json_text(document["files"][0]),
            R"j({"path":"C:\\Temp\\a.tmp","size":"1.5 KB","date":"3/7/2013 9:05:00 AM",)j"
            R"j("category":2})j");
  EXPECT_EQ(document["files"][1]["category"], 3);
  EXPECT_EQ(document["files"][2]["path"], "C:\\Temp\\b.tmp");
}

TEST(ScanJson, WithoutHitsTheListOfFilesIsEmpty) {
  Window window("Form7");
  const ListView list(window, "view1", {"File Name"});
  std::ostringstream out;
  print_scan_json(out, small_report(), &list);
  EXPECT_EQ(Json::parse(out.str())["files"], Json::array());
}

}  // namespace
}  // namespace quillvane
