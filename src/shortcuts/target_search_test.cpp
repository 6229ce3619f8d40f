#include "shortcuts/target_search.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/shortcut_fixture.h"

namespace quillvane {
namespace {

// Links in the root of drive C with targets of their own, as rows of the window.
struct Targets : ShortcutFixture {
  void add_row(const std::string& name, const std::string& target) {
    const std::string path = "C:\\Links\\" + name + ".lnk";
    add_link(path, target.empty() ? "C:\\whatever" : target);
    ListView& list = form().view1;
    const int row = list.add(name);
    list.set_sub_item(row, kTargetColumn, target);
    list.set_sub_item(row, kLinkPathColumn, path);
  }
  Form3& form() {
    if (!program) ShortcutFixture::start();
    return *program->shortcut_window();
  }
  std::string target(const std::string& name) { return link("C:\\Links\\" + name + ".lnk").target; }
  bool search() { return form().search_targets(form(), form()); }
};

TEST(TargetSearch, ARebuiltLinkHasTheNewTargetAndNothingElse) {
  Targets search;
  search.machine.add_file("C:\\New\\a.exe");
  search.add_row("A", "C:\\Gone\\a.exe");
  EXPECT_TRUE(search.machine.platform().links.write_link("C:\\Links\\A.lnk",
                                                         {.target = "C:\\Gone\\a.exe",
                                                          .working_directory = "C:\\Gone",
                                                          .arguments = "/all",
                                                          .icon_file = "C:\\Gone\\a.exe",
                                                          .icon_index = 3,
                                                          .show_command = 7}));

  EXPECT_TRUE(search.search());

  const LinkContent link = search.link("C:\\Links\\A.lnk");
  EXPECT_EQ(link.target, "C:\\New\\a.exe");
  EXPECT_EQ(link.working_directory, "");
  EXPECT_EQ(link.arguments, "");
  EXPECT_EQ(link.icon_file, "C:\\New\\a.exe");
  EXPECT_EQ(link.icon_index, 0);
  EXPECT_EQ(link.show_command, 1);
}

TEST(TargetSearch, TheLastFileOfANameWins) {
  Targets search;
  search.machine.add_file("C:\\A\\a.exe");
  search.machine.add_file("C:\\B\\Deep\\a.exe");
  search.machine.add_file("C:\\C\\a.exe");
  search.add_row("A", "C:\\Gone\\a.exe");

  EXPECT_TRUE(search.search());

  // Folder by folder, those of one level before those below.
  EXPECT_EQ(search.form().List4.items(),
            (Texts{"C:\\A\\a.exe", "C:\\C\\a.exe", "C:\\B\\Deep\\a.exe"}));
  EXPECT_EQ(search.target("A"), "C:\\B\\Deep\\a.exe");
}

TEST(TargetSearch, ATargetWithoutABackslashMovesTheNamesByOne) {
  Targets search;
  search.machine.add_file("C:\\New\\b.exe");
  search.add_row("A", "");
  search.add_row("B", "C:\\Gone\\b.exe");

  EXPECT_TRUE(search.search());

  EXPECT_EQ(search.form().List5.items(), Texts{"b.exe"});
  EXPECT_EQ(search.form().List6.items(), (Texts{"C:\\Links\\A.lnk", "C:\\Links\\B.lnk"}));
  EXPECT_EQ(search.target("A"), "C:\\New\\b.exe");
  EXPECT_EQ(search.target("B"), "C:\\Gone\\b.exe");
}

TEST(TargetSearch, ANameIsAPattern) {
  Targets search;
  search.machine.add_file("C:\\New\\track7.mp3");
  search.machine.add_file("C:\\New\\track#.mp3");
  search.add_row("Seven", "C:\\Gone\\track7.mp3");
  search.add_row("Sharp", "C:\\Gone\\track#.mp3");

  EXPECT_TRUE(search.search());

  // "#" is a digit: the file of that very name does not fit.
  EXPECT_EQ(search.target("Seven"), "C:\\New\\track7.mp3");
  EXPECT_EQ(search.target("Sharp"), "C:\\New\\track7.mp3");
}

TEST(TargetSearch, ABracketListThatIsNotClosedFitsNothing) {
  Targets search;
  search.machine.add_file("C:\\New\\song[1.mp3");
  search.machine.add_file("C:\\New\\other.mp3");
  search.add_row("Song", "C:\\Gone\\song[1.mp3");
  search.add_row("Other", "C:\\Gone\\other.mp3");

  EXPECT_TRUE(search.search());

  EXPECT_EQ(search.target("Song"), "C:\\Gone\\song[1.mp3");
  EXPECT_EQ(search.target("Other"), "C:\\New\\other.mp3");
}

TEST(TargetSearch, AReadOnlyLinkAndOneInUseStayAsTheyAre) {
  Targets search;
  search.machine.add_file("C:\\New\\a.exe");
  search.machine.add_file("C:\\New\\b.exe");
  search.add_row("A", "C:\\Gone\\a.exe");
  search.add_row("B", "C:\\Gone\\b.exe");
  ASSERT_TRUE(
      search.machine.platform().files.set_attributes("C:\\Links\\A.lnk", kAttributeReadOnly));
  search.machine.machine().add_in_use("C:\\Links\\B.lnk");

  EXPECT_TRUE(search.search());

  EXPECT_EQ(search.target("A"), "C:\\Gone\\a.exe");
  EXPECT_EQ(search.target("B"), "C:\\Gone\\b.exe");
}

TEST(TargetSearch, ACancelStopsItInEachFolder) {
  Targets search;
  search.machine.add_file("C:\\New\\a.exe");
  search.add_row("A", "C:\\Gone\\a.exe");
  search.at_serving(2, [&] { search.form().chameleonButton3.click(); });

  EXPECT_FALSE(search.search());

  // The root's own files were listed, and of its entries one was looked at.
  EXPECT_EQ(search.form().Text4.text(), "1");
  EXPECT_EQ(search.target("A"), "C:\\Gone\\a.exe");
}

TEST(TargetSearch, AWantedNameThatBeginsWithTheNumberOneStopsItToo) {
  Targets search;
  search.machine.add_file("C:\\New\\1.exe");
  search.add_row("A", "C:\\Gone\\1.exe");

  EXPECT_FALSE(search.search());

  EXPECT_EQ(search.target("A"), "C:\\Gone\\1.exe");
}

TEST(TargetSearch, LooksOnTheDriveOfTheFirstLinkThatLiesOnAFixedOne) {
  Targets search;
  Form3& form = search.form();
  const int row = form.view1.add("Stick");
  form.view1.set_sub_item(row, kTargetColumn, "C:\\Gone\\a.exe");
  form.view1.set_sub_item(row, kLinkPathColumn, "E:\\a.lnk");
  search.machine.add_file("C:\\New\\a.exe");

  EXPECT_FALSE(search.search());

  EXPECT_EQ(form.LSTFILES.items(), Texts{});
  const auto boxes = search.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Can't find any target for listed files");
}

TEST(TargetSearch, GoesThroughMoreFoldersThanItTakesFromItsListAtOnce) {
  Targets search;
  for (int i = 0; i < 600; ++i) {
    search.machine.add_file("C:\\Many\\" + std::to_string(i) + "\\file.txt");
  }
  search.machine.add_file("C:\\Many\\99\\a.exe");
  search.add_row("A", "C:\\Gone\\a.exe");

  EXPECT_TRUE(search.search());

  EXPECT_EQ(search.target("A"), "C:\\Many\\99\\a.exe");
  EXPECT_EQ(search.form().lstdirs.count(), 0);
}

}  // namespace
}  // namespace quillvane
