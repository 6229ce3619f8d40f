#include "shortcuts/form3.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/failing_registry.h"
#include "tests/support/shortcut_fixture.h"

namespace quillvane {
namespace {

TEST(Form3, ARebuiltLinkOfTheUserBeginsInItsOwnFolder) {
  ShortcutFixture fixture;
  fixture.machine.add_file("C:\\New\\a.exe");
  fixture.add_link(kStartMenu + "\\A.lnk", "C:\\Gone\\a.exe");
  Form3& form = fixture.scan();
  form.view1.click_row(1);
  fixture.machine.dialogs().answer_path("C:\\New\\a.exe");

  form.cmd_fix.click();

  const LinkContent link = fixture.link(kStartMenu + "\\A.lnk");
  EXPECT_EQ(link.target, "C:\\New\\a.exe");
  EXPECT_EQ(link.working_directory, kStartMenu + "\\");
  EXPECT_EQ(link.icon_file, "C:\\New\\a.exe");
}

TEST(Form3, EachFixByHandScansAgain) {
  ShortcutFixture fixture;
  fixture.machine.add_file("C:\\New\\a.exe");
  for (const char* name : {"A", "B"}) {
    fixture.add_link(kStartMenu + "\\" + name + ".lnk", "C:\\Gone\\a.exe");
  }
  Form3& form = fixture.scan();
  for (const int left : {1, 0}) {
    form.view1.click_row(1);
    fixture.machine.dialogs().answer_path("C:\\New\\a.exe");

    form.view1.double_click(1);

    EXPECT_EQ(form.view1.count(), left);
  }
}

TEST(Form3, OnlyTheFirstSearchForTargetsScansAgain) {
  ShortcutFixture fixture;
  fixture.machine.add_file("C:\\New\\a.exe");
  fixture.add_link(kStartMenu + "\\A.lnk", "C:\\Gone\\a.exe");
  Form3& form = fixture.scan();

  form.orvbutton3.click();
  EXPECT_EQ(form.view1.count(), 0);

  fixture.add_link(kStartMenu + "\\B.lnk", "C:\\Gone\\a.exe");
  form.cmd_start.click();
  form.orvbutton3.click();
  EXPECT_EQ(rows(form.view1), Texts{"B"});
}

TEST(Form3, HasAShadowUnlessACommandLineWasGiven) {
  ShortcutFixture alone;
  EXPECT_EQ(alone.start().shadow.depth, 0);

  ShortcutFixture beside;
  Form7& main = beside.ScanFixture::start();
  main.chameleonButton2.click();
  EXPECT_EQ(beside.program->shortcut_window()->shadow.depth, 5);
  EXPECT_EQ(beside.program->shortcut_window()->shadow.color, 0x808080U);
}

TEST(Form3, StoresNoOptionsWhereTheyCouldNotBeRead) {
  ShortcutFixture fixture;
  fixture.set_setting("short", "o5", "1");
  FailingRegistry registry(fixture.machine.platform().registry);
  registry.unreadable = {"o5"};
  fixture.program.emplace(fixture.machine.platform().with({.registry = &registry}));
  Texts told;
  fixture.program->session.on_problem = [&](std::string_view what, std::string_view why) {
    told.push_back(std::string(what) + ": " + std::string(why));
  };
  fixture.program->start("s");

  fixture.program->shortcut_window()->close();

  EXPECT_EQ(told, Texts{"options: not saved: the disk fails"});
  EXPECT_EQ(fixture.setting("short", "o5"), "1");
  EXPECT_EQ(fixture.setting("short", "c1"), "(none)");
}

TEST(Form3, TicksTheFirstDriveAgainWhicheverWereTicked) {
  ShortcutFixture fixture(R"({"drives": [{"letter": "C"}, {"letter": "D"}, {"letter": "E"}]})");
  Form3& form = fixture.start();
  form.View2.tick_row(2, true);
  form.View2.tick_row(3, true);
  form.close();

  EXPECT_EQ(ticked(fixture.start().View2), std::vector<int>{1});
}

TEST(Form3, ReadsNoMoreOptionsThanAreThereWhateverTheCountIs) {
  ShortcutFixture fixture;
  fixture.set_setting("short", "tot", "1e300");
  fixture.set_setting("short", "7", "1");

  EXPECT_TRUE(fixture.start().View2.checked(1));
}

TEST(Form3, ARunWithoutAUserRemovesNothingOnceTheProgramHasEnded) {
  ShortcutFixture fixture;
  fixture.add_link(kStartMenu + "\\A.lnk", "C:\\gone.exe");
  fixture.add_link(kStartMenu + "\\B.lnk", "C:\\gone.exe");
  Form3& form = fixture.start();
  fixture.when([&] { return form.Frame1.visible(); },
               [&] { fixture.program->session.end_cleaning(); });

  form.Text6.set_text("1");

  EXPECT_TRUE(fixture.machine.has_file(kStartMenu + "\\A.lnk"));
  EXPECT_TRUE(fixture.machine.has_file(kStartMenu + "\\B.lnk"));
  EXPECT_TRUE(fixture.program->ended());
}

TEST(OlderRemoval, AMoveThatCannotCopyLeavesTheLink) {
  ShortcutFixture fixture;
  fixture.add_link(kStartMenu + "\\A.lnk", "C:\\gone.exe");
  Form3& form = fixture.scan();
  form.Option3.choose();
  for (const char* folder : {"C:\\Not there", kStartMenu.c_str()}) {
    form.Text1.set_text(folder);
    form.view1.check_all(true);
    fixture.machine.dialogs().answer(Answer::kYes);

    form.orvbutton2.raise_click();

    EXPECT_TRUE(fixture.machine.has_file(kStartMenu + "\\A.lnk")) << folder;
    form.cmd_start.click();
  }
}

TEST(OlderRemoval, WithoutAUserTakesEveryRow) {
  ShortcutFixture fixture;
  fixture.add_link(kStartMenu + "\\A.lnk", "C:\\gone.exe");
  fixture.add_link(kStartMenu + "\\B.lnk", "C:\\gone.exe");
  Form3& form = fixture.scan();
  form.runmode = kUnattended;

  form.orvbutton2.click();

  EXPECT_EQ(form.view1.count(), 0);
  EXPECT_FALSE(fixture.machine.has_file(kStartMenu + "\\A.lnk"));
  EXPECT_EQ(fixture.machine.dialogs().take_boxes().size(), 0U);
  EXPECT_EQ(fixture.setting("statics\\shortcuts", "count"), "2");
}

TEST(FileListPattern, ShowsWantedFilesSortedByName) {
  ShortcutFixture fixture;
  Form3& form = fixture.start();
  for (const char* name : {"b.exe", "A.exe", "c.txt", "hidden.exe", "system.exe", "ro.exe"}) {
    fixture.machine.add_file("C:\\F\\" + std::string(name));
  }
  FileSystem& files = fixture.machine.platform().files;
  ASSERT_TRUE(files.set_attributes("C:\\F\\hidden.exe", kAttributeHidden));
  ASSERT_TRUE(files.set_attributes("C:\\F\\system.exe", kAttributeSystem));
  ASSERT_TRUE(files.set_attributes("C:\\F\\ro.exe", kAttributeReadOnly));
  const auto tree = files.read_tree("C:\\F", "*");
  ASSERT_NE(tree, nullptr);

  form.File1.set_pattern("*.exe;c.txt");
  form.File1.show_folder(files, "C:\\F\\", tree->root());
  EXPECT_EQ(form.File1.items(), (Texts{"A.exe", "b.exe", "c.txt", "ro.exe"}));

  form.File1.set_pattern("");
  form.File1.show_folder(files, "C:\\F\\", tree->root());
  EXPECT_EQ(form.File1.items(), Texts{});
}

}  // namespace
}  // namespace quillvane
