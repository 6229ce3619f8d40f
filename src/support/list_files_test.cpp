#include "support/list_files.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/temp_machine.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

using Lines = std::vector<std::string>;

const std::string kPath = "C:\\list.tdw";

struct Stage : TempMachine {
  explicit Stage(const std::string& content) { add_text_file(kPath, content); }
};

TEST(ListFile, HoldsAnEntryALine) {
  const struct {
    std::string content;
    Lines lines;
  } cases[] = {
      {"", {}},
      {"C:\\a\r\nC:\\b\r\n", {"C:\\a", "C:\\b"}},
      {"C:\\a\r\nC:\\b", {"C:\\a", "C:\\b"}},  // the last without its end
      {"C:\\a\nC:\\b\n", {"C:\\a", "C:\\b"}},
      {"C:\\a\rC:\\b\r", {"C:\\a", "C:\\b"}},
      {"C:\\a\rC:\\b\r\nC:\\c", {"C:\\a", "C:\\b", "C:\\c"}},
      {"\r\n   \r\nC:\\a\r\r\n", {"C:\\a"}},
      {"  C:\\a \r\n", {"  C:\\a "}},  // as it stands
      {"\xEF\xBB\xBF"
       "C:\\a\r\n",
       {"C:\\a"}},
      {"C:\\Gr\xF6\xDF"
       "e\r\n",
       {"C:\\Gr\u00F6\u00DFe"}},
  };
  for (const auto& c : cases) {
    const ListLines list = read_list_file(Stage(c.content).platform(), kPath);
    EXPECT_EQ(list.lines, c.lines);
    EXPECT_EQ(list.problem, "");
  }
}

TEST(ListFile, ANewEntryBeginsALineOfItsOwn) {
  const struct {
    std::string before;
    std::string after;
  } cases[] = {
      {"", "new\r\n"},           {"old\r\n", "old\r\nnew\r\n"}, {"old", "old\r\nnew\r\n"},
      {"old\n", "old\nnew\r\n"}, {"old\r", "old\rnew\r\n"},
  };
  for (const auto& c : cases) {
    Stage stage(c.before);
    EXPECT_EQ(append_to_list_file(stage.platform(), kPath, "new"), "");
    EXPECT_EQ(stage.file_text(kPath), c.after);
  }
}

TEST(ListFile, ANewEntryThatTheCodePageCannotHoldMakesTheWholeListUtf8) {
  Stage stage(
      "Gr\xF6\xDF"
      "e\r\n");
  EXPECT_EQ(append_to_list_file(stage.platform(), kPath, "\u041C\u0438\u0440"), "");
  EXPECT_EQ(stage.file_text(kPath), "\xEF\xBB\xBFGr\u00F6\u00DFe\r\n\u041C\u0438\u0440\r\n");
  EXPECT_EQ(read_list_file(stage.platform(), kPath).lines,
            (Lines{"Gr\u00F6\u00DFe", "\u041C\u0438\u0440"}));
}

TEST(ListFile, AMissingListIsEmptyAndIsMade) {
  TempMachine machine;
  EXPECT_EQ(read_list_file(machine.platform(), kPath).lines, Lines{});
  EXPECT_EQ(read_list_file(machine.platform(), kPath).problem, "");
  EXPECT_EQ(append_to_list_file(machine.platform(), kPath, "new"), "");
  EXPECT_EQ(machine.file_text(kPath), "new\r\n");
}

TEST(ListFile, OneThatCannotBeReadIsAProblemAndIsNotTouched) {
  Stage stage("old\r\n");
  UnreadableFile files(stage.platform().files, kPath, ReadFailure::kDenied);
  const Platform platform = stage.platform().with({.files = &files});
  EXPECT_EQ(read_list_file(platform, kPath).problem, "access is denied");
  EXPECT_EQ(append_to_list_file(platform, kPath, "new"), "access is denied");
  EXPECT_EQ(stage.file_text(kPath), "old\r\n");
}

TEST(ListFile, IsReplacedInTheSystemsCodePage) {
  Stage stage("old\r\n");
  EXPECT_TRUE(write_list_file(stage.platform(), kPath, {"C:\\Gr\u00F6\u00DFe", "b"}));
  EXPECT_EQ(stage.file_text(kPath),
            "C:\\Gr\xF6\xDF"
            "e\r\nb\r\n");
  EXPECT_TRUE(write_list_file(stage.platform(), kPath, {}));
  EXPECT_EQ(stage.file_text(kPath), "");
}

TEST(ListFile, TheFieldsOfACustomEntryArePartedByBars) {
  const CustomEntry entry = custom_entry_of("n|C:\\a|*.tmp,*.log|*.doc|1");
  EXPECT_EQ(entry.name, "n");
  EXPECT_EQ(entry.location, "C:\\a");
  EXPECT_EQ(entry.include, "*.tmp,*.log");
  EXPECT_EQ(entry.exclude, "*.doc");
  EXPECT_EQ(entry.subfolders, "1");
  EXPECT_EQ(line_of(entry), "n|C:\\a|*.tmp,*.log|*.doc|1");
  EXPECT_EQ(custom_entry_of("alone").name, "alone");
  EXPECT_EQ(custom_entry_of("alone").subfolders, "");
}

}  // namespace
}  // namespace quillvane
