#include "shortcuts/link_removal.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tests/support/failing_registry.h"
#include "tests/support/shortcut_fixture.h"

namespace quillvane {
namespace {

const std::string kBackups = kProgramFolder + "\\backup\\short\\";
const std::string kStamp = "21_11_2026_10.00.00";

// Rows of the test's own in the list of the window.
struct Removal : ShortcutFixture {
  void add_row(const std::string& name, const std::string& path, bool ticked = true) {
    ListView& list = form().view1;
    const int row = list.add(name);
    list.set_sub_item(row, kTargetColumn, "C:\\gone.exe");
    list.set_sub_item(row, kLinkPathColumn, path);
    list.set_checked(row, ticked);
  }
  Form3& form() {
    if (!program) ShortcutFixture::start();
    return *program->shortcut_window();
  }
  void say(Answer answer) { machine.dialogs().answer(answer); }
};

TEST(RemoveWithBackup, TellsWhatBecameOfEachLink) {
  Removal removal;
  removal.machine.add_text_file("C:\\a.lnk", "a");
  removal.machine.add_text_file("C:\\b.lnk", "b");
  removal.machine.machine().add_in_use("C:\\b.lnk");
  for (const char* name : {"a", "b", "c"})
    removal.add_row(name, "C:\\" + std::string(name) + ".lnk");
  removal.say(Answer::kYes);

  const auto links = remove_with_backup(removal.form(), UncopiedLinks::kGo);

  ASSERT_EQ(links.size(), 3U);
  EXPECT_TRUE(links[0].copied && links[0].removed);
  EXPECT_TRUE(links[1].copied);
  EXPECT_FALSE(links[1].removed);
  EXPECT_FALSE(links[2].copied || links[2].removed);
  EXPECT_EQ(removal.machine.file_text(kBackups + kStamp + "\\a.lnk2"), "a");
  EXPECT_EQ(removal.program_file("backup\\short\\" + kStamp + ".txt"),
            "a,C:\\a.lnk\r\nb,C:\\b.lnk\r\nc,C:\\c.lnk\r\n");
  EXPECT_EQ(removal.setting("statics\\shortcuts", "count"), "3");
  EXPECT_EQ(removal.form().view1.count(), 0);
}

TEST(RemoveWithBackup, CopiesIntoItsFolderWhateverARowIsCalled) {
  Removal removal;
  for (const char* name : {"..\\..\\..\\evil", "C:\\evil", "a/b", "stream:x", ".."}) {
    removal.machine.add_text_file("C:\\a.lnk", name);
    removal.add_row(name, "C:\\a.lnk");
    removal.say(Answer::kYes);

    const auto links = remove_with_backup(removal.form(), UncopiedLinks::kGo);

    ASSERT_EQ(links.size(), 1U);
    EXPECT_TRUE(links[0].copied) << name;
  }
  const std::string folder = kBackups + kStamp + "\\";
  EXPECT_EQ(removal.machine.file_text(folder + ".._.._.._evil.lnk2"), "..\\..\\..\\evil");
  EXPECT_EQ(removal.machine.file_text(folder + "C__evil.lnk2"), "C:\\evil");
  EXPECT_EQ(removal.machine.file_text(folder + "a_b.lnk2"), "a/b");
  EXPECT_EQ(removal.machine.file_text(folder + "stream_x.lnk2"), "stream:x");
  EXPECT_EQ(removal.machine.file_text(folder + "...lnk2"), "..");
  EXPECT_FALSE(removal.machine.has_file("C:\\evil.lnk2"));
  EXPECT_FALSE(removal.machine.has_file(kProgramFolder + "\\evil.lnk2"));
}

TEST(RemoveWithBackup, EndsAtAFailedCopyWhereThatIsAskedFor) {
  for (const UncopiedLinks uncopied : {UncopiedLinks::kGo, UncopiedLinks::kEndTheRun}) {
    Removal removal;
    for (const char* name : {"a", "b", "c"}) {
      const std::string path = "C:\\" + std::string(name) + ".lnk";
      removal.machine.add_text_file(path, name);
      removal.add_row(name, path);
    }
    // What a copy would replace is a folder.
    removal.machine.add_folder(kBackups + kStamp + "\\b.lnk2");
    removal.say(Answer::kYes);

    const auto links = remove_with_backup(removal.form(), uncopied);

    const bool goes_on = uncopied == UncopiedLinks::kGo;
    EXPECT_FALSE(removal.machine.has_file("C:\\a.lnk"));
    EXPECT_EQ(removal.machine.has_file("C:\\b.lnk"), !goes_on);
    EXPECT_EQ(removal.machine.has_file("C:\\c.lnk"), !goes_on);
    EXPECT_EQ(links.size(), goes_on ? 3U : 2U);
    EXPECT_FALSE(links[1].copied);
    EXPECT_EQ(removal.setting("statics\\shortcuts", "count"), goes_on ? "3" : "1");
    EXPECT_EQ(removal.program_file("backup\\short\\" + kStamp + ".txt"),
              goes_on ? "a,C:\\a.lnk\r\nb,C:\\b.lnk\r\nc,C:\\c.lnk\r\n" : "a,C:\\a.lnk\r\n");
  }
}

TEST(RemoveWithBackup, EndsBehindTheLinkInHandWhenTheProgramEnds) {
  Removal removal;
  for (const char* name : {"a", "b"}) {
    const std::string path = "C:\\" + std::string(name) + ".lnk";
    removal.machine.add_text_file(path, name);
    removal.add_row(name, path);
  }
  removal.say(Answer::kYes);
  removal.at_serving(2, [&] { removal.form().close(); });

  const auto links = remove_with_backup(removal.form(), UncopiedLinks::kGo);

  EXPECT_EQ(links.size(), 1U);
  EXPECT_TRUE(removal.machine.has_file("C:\\b.lnk"));
  EXPECT_EQ(removal.program_file("backup\\short\\" + kStamp + ".txt"), "a,C:\\a.lnk\r\n");
}

TEST(RemoveWithBackup, HasItsListOnTheDiskBeforeTheFirstLinkGoes) {
  Removal removal;
  removal.machine.add_text_file("C:\\a.lnk", "a");
  removal.add_row("a", "C:\\a.lnk");
  removal.say(Answer::kYes);
  std::optional<std::string> list;
  removal.at_serving(1, [&] {
    EXPECT_TRUE(removal.machine.has_file("C:\\a.lnk"));
    list = removal.program_file("backup\\short\\" + kStamp + ".txt");
  });

  static_cast<void>(remove_with_backup(removal.form(), UncopiedLinks::kGo));

  EXPECT_EQ(list, "a,C:\\a.lnk\r\n");
}

TEST(RemovedLinksCount, IsNotBegunAnewWhenItCannotBeRead) {
  ShortcutFixture fixture;
  fixture.set_setting("statics\\shortcuts", "count", "40");
  FailingRegistry registry(fixture.machine.platform().registry);
  Session session(fixture.machine.platform().with({.registry = &registry}));
  std::string told;
  session.on_problem = [&](std::string_view what, std::string_view /*why*/) { told = what; };
  registry.unreadable = {"count"};

  add_to_removed_links(session, 2);

  EXPECT_EQ(fixture.setting("statics\\shortcuts", "count"), "40");
  EXPECT_EQ(told, "count of removed links");
  registry.unreadable.clear();
  add_to_removed_links(session, 2);
  EXPECT_EQ(fixture.setting("statics\\shortcuts", "count"), "42");
}

}  // namespace
}  // namespace quillvane
