#include <gtest/gtest.h>

#include <string>

#include "tests/support/shortcut_fixture.h"

namespace quillvane {
namespace {

TEST(ShortcutScan, ListsTheLinksOfTheStartMenuWhoseTargetIsGone) {
  ShortcutFixture fixture;
  fixture.add_link(kStartMenu + "\\Gone.lnk", "C:\\gone.exe");
  fixture.machine.add_file("C:\\there.exe");
  fixture.add_link(kStartMenu + "\\Programs\\There.lnk", "C:\\there.exe");

  Form3& form = fixture.scan();

  EXPECT_EQ(rows(form.view1), Texts{"Gone"});
  EXPECT_EQ(rows(form.view1, kTargetColumn), Texts{"C:\\gone.exe"});
  EXPECT_EQ(rows(form.view1, kLinkPathColumn), Texts{kStartMenu + "\\Gone.lnk"});
  EXPECT_EQ(form.view1.icon(1), "ss");
  EXPECT_FALSE(form.view1.checked(1));
}

TEST(ShortcutScan, ReadsTheFoldersOfWindowsNtWhereTheOthersAreBlank) {
  ShortcutFixture fixture;
  fixture.set_user_folder("Start Menu", "  ");
  fixture.machine.set_registry_text(
      Hive::kCurrentUser,
      "Software\\Microsoft\\Windows nt\\CurrentVersion\\Explorer\\Shell Folders", "Start Menu",
      "C:\\Menu");
  fixture.add_link("C:\\Menu\\Gone.lnk", "C:\\gone.exe");

  EXPECT_EQ(rows(fixture.scan().view1), Texts{"Gone"});
}

TEST(ShortcutScan, NeverSearchesTheRootForAFolderThatNobodyNames) {
  ShortcutFixture fixture;
  fixture.set_user_folder("Start Menu", "");
  fixture.set_user_folder("Recent", "");
  fixture.add_link("C:\\Gone.lnk", "C:\\gone.exe");

  EXPECT_EQ(rows(fixture.scan().view1), Texts{});
}

TEST(ShortcutScan, ShowsTheFolderInWorkAndWhatWasFoundBefore) {
  ShortcutFixture fixture;
  fixture.add_link(kStartMenu + "\\A.lnk", "C:\\gone.exe");
  fixture.add_link(kStartMenu + "\\Programs\\B.lnk", "C:\\gone.exe");
  Form3& form = fixture.start();
  Texts seen;
  fixture.machine.loop().set_served_hook([&] {
    const std::string line = form.Label5.caption() + " " + form.Label7.caption() + " " +
                             form.Label4.caption() + (form.Label3.visible() ? " tests" : "");
    if (seen.empty() || seen.back() != line) seen.push_back(line);
  });

  form.cmd_start.click();

  EXPECT_EQ(seen, (Texts{kStartMenu + "\\ 0 0", kStartMenu + "\\ 0 0 tests",
                         kStartMenu + "\\Programs\\ 1 1", kStartMenu + "\\Programs\\ 1 1 tests",
                         kRecent + "\\ 2 2"}));
}

TEST(ShortcutScan, WaitsTenMillisecondsForEachLink) {
  ShortcutFixture fixture;
  for (const char* name : {"A", "B", "C"}) {
    fixture.add_link(kStartMenu + "\\" + name + ".lnk", "C:\\Windows");
  }
  Form3& form = fixture.start();
  const FileTime before = fixture.machine.loop().local_now();

  form.cmd_start.click();

  // Each wait is over when more than its time has passed.
  EXPECT_EQ(fixture.machine.loop().local_now().ticks - before.ticks, 3 * 11 * 10'000);
}

TEST(ShortcutScan, ShowsTheWholeOfATargetOrItsFirst254Characters) {
  ShortcutFixture fixture;
  const std::string long_name(250, 'x');
  fixture.add_link(kStartMenu + "\\Long.lnk", "C:\\" + long_name + ".exe");

  Form3& form = fixture.scan();

  EXPECT_EQ(rows(form.view1, kTargetColumn), Texts{("C:\\" + long_name + ".exe").substr(0, 254)});
}

TEST(ShortcutScan, ANewOneInsideAnotherLeavesBothToTheirEnd) {
  ShortcutFixture fixture;
  fixture.add_link(kStartMenu + "\\A.lnk", "C:\\gone.exe");
  Form3& form = fixture.start();
  bool begun = false;
  fixture.machine.loop().set_served_hook([&] {
    if (begun) return;
    begun = true;
    form.orvbutton1.raise_click();
  });

  form.cmd_start.click();

  // The list was emptied by the inner scan, and the outer one went on behind it.
  EXPECT_EQ(rows(form.view1), (Texts{"A", "A"}));
  EXPECT_TRUE(form.Frame1.visible());
}

TEST(ShortcutScan, ACloseEndsItAtTheNextEntry) {
  ShortcutFixture fixture;
  fixture.add_link(kStartMenu + "\\A.lnk", "C:\\gone.exe");
  fixture.add_link(kRecent + "\\B.lnk", "C:\\gone.exe");
  Form3& form = fixture.start();
  fixture.at_serving(1, [&] { form.close(); });

  form.cmd_start.click();

  EXPECT_TRUE(fixture.program->ended());
  EXPECT_EQ(form.view1.count(), 0);
}

TEST(ShortcutScan, IsToldOfGoodLinksToo) {
  ShortcutFixture fixture;
  fixture.add_link(kStartMenu + "\\Good.lnk", "C:\\Windows");
  fixture.add_link(kStartMenu + "\\Gone.lnk", "C:\\gone.exe");
  Form3& form = fixture.start();
  fixture.machine.add_folder("C:\\Windows");
  Texts told;
  form.on_judged = [&](const JudgedLink& link) {
    told.push_back(link.name + (link.is_listed ? " listed" : " good"));
  };

  form.cmd_start.click();

  EXPECT_EQ(told, (Texts{"Gone listed", "Good good"}));
}

TEST(ShownName, IsTheNameWithoutItsLastFourCharacters) {
  EXPECT_EQ(shown_name("C:\\Menu\\Editor.lnk"), "Editor");
  EXPECT_EQ(shown_name("C:\\Menu\\a.lnk"), "a");
  EXPECT_EQ(shown_name("  C:\\Menu\\Editor.lnk  "), "Editor");
  EXPECT_EQ(shown_name("C:\\Menu\\\xC3\x84rger.lnk"), "\xC3\x84rger");
  EXPECT_EQ(shown_name("C:\\Menu\\.lnk"), "");
  // Shorter names: as many characters as are missing to four.
  EXPECT_EQ(shown_name("C:\\Menu\\ab"), "ab");
  EXPECT_EQ(shown_name("C:\\Menu\\abc"), "a");
  EXPECT_EQ(shown_name("C:\\Menu\\a"), "a");
}

}  // namespace
}  // namespace quillvane
