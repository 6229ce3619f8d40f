#include "platform/folder/win32/windows_machine_files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "platform/win32/system_handle.h"
#include "platform/win32/wide_text.h"
#include "tests/support/temp_folder.h"
#include "tests/windows/folder_link.h"
#include "tests/windows/wine.h"

namespace quillvane {
namespace {

using Names = std::vector<std::string>;

class WindowsMachineFilesTest : public testing::Test {
 protected:
  WindowsMachineFilesTest() {
    host.make_folder("drive_c");
    host.make_folder("drive_d");
    machine.drives = {{'C', DriveType::kFixed, host.path_of("drive_c"), {}, {}},
                      {'D', DriveType::kFixed, host.path_of("drive_d"), {}, {}}};
  }
  // Before the folder, whose removal must not come upon a link.
  ~WindowsMachineFilesTest() override {
    for (const std::wstring& link : links) EXPECT_TRUE(remove_folder_link(link)) << narrow(link);
  }

  void add_link(const std::string& name, const std::string& target) {
    links.push_back(widen(host.path_of(name)));
    ASSERT_TRUE(make_folder_link(links.back(), widen(host.path_of(target)))) << name;
  }

  [[nodiscard]] Names list(const std::string& folder) const {
    Names names;
    for (const FolderEntry& entry : files.list_folder(folder, "*.*")) names.push_back(entry.name);
    return names;
  }
  // All files and folders of a walk by their paths below its folder.
  [[nodiscard]] Names walk(const std::string& folder) const {
    const auto tree = files.read_tree(folder, "*.*");
    Names names;
    if (tree != nullptr) add_names(tree->root(), "", names);
    return names;
  }

  TempFolder host;
  MachineState machine;
  WindowsMachineFiles files{machine};
  std::vector<std::wstring> links;

 private:
  static void add_names(const ListedFolder& folder, const std::string& path, Names& names) {
    for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
      names.push_back(path + std::string(sub->name()) + "\\");
      add_names(*sub, names.back(), names);
    }
    for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
      names.push_back(path + std::string(folder.name_of(i)));
    }
  }
};

TEST_F(WindowsMachineFilesTest, EachDriveHasItsFolder) {
  host.write("drive_c/a.txt", "c");
  host.write("drive_d/a.txt", "d");
  EXPECT_EQ(files.read_file("C:\\a.txt"), "c");
  EXPECT_EQ(files.read_file("d:/A.TXT"), "d");
  EXPECT_EQ(files.read_file("E:\\a.txt"), ReadFailure::kMissing);
  EXPECT_EQ(files.attributes("C:\\"), kAttributeFolder);
  EXPECT_EQ(files.attributes("E:\\"), std::nullopt);
}

TEST_F(WindowsMachineFilesTest, ALinkWithinTheDriveLeadsToItsTarget) {
  host.write("drive_c/Temp/a.tmp", "x");
  add_link("drive_c/link", "drive_c/Temp");
  EXPECT_EQ(files.read_file("C:\\LINK\\a.tmp"), "x");
  EXPECT_EQ(files.attributes("C:\\link"), kAttributeFolder);
  EXPECT_EQ(walk("C:\\"), (Names{"link\\", "link\\a.tmp", "Temp\\", "Temp\\a.tmp"}));
  EXPECT_TRUE(files.write_file("C:\\link\\b.tmp", "y"));
  EXPECT_EQ(host.read("drive_c/Temp/b.tmp"), "y");
  EXPECT_EQ(files.remove_file("C:\\link\\a.tmp"), RemoveResult::kRemoved);
  EXPECT_FALSE(host.has("drive_c/Temp/a.tmp"));
}

TEST_F(WindowsMachineFilesTest, ALinkOutOfTheDriveLeadsNowhere) {
  host.write("outside/a.tmp", "x");
  host.write("outside/deep/b.tmp", "x");
  host.write("drive_c/own.tmp");
  add_link("drive_c/link", "outside");
  EXPECT_EQ(list("C:\\"), Names{"own.tmp"});
  EXPECT_EQ(walk("C:\\"), Names{"own.tmp"});
  EXPECT_EQ(files.read_tree("C:\\link", "*.*"), nullptr);
  EXPECT_EQ(list("C:\\link\\deep"), Names{});
  EXPECT_EQ(files.attributes("C:\\link"), std::nullopt);
  EXPECT_EQ(files.read_file("C:\\link"), ReadFailure::kUnreadable);
  EXPECT_EQ(files.attributes("C:\\link\\a.tmp"), std::nullopt);
  EXPECT_FALSE(files.set_attributes("C:\\link\\a.tmp", kAttributeHidden));
  EXPECT_EQ(files.file_size("C:\\link\\a.tmp"), std::nullopt);
  EXPECT_EQ(files.read_file("C:\\link\\a.tmp"), ReadFailure::kMissing);
  EXPECT_FALSE(files.can_open("C:\\link\\a.tmp"));
  EXPECT_FALSE(files.write_file("C:\\link\\a.tmp", "y"));
  EXPECT_FALSE(files.write_file("C:\\link\\new.tmp", "y"));
  EXPECT_FALSE(files.rename_file("C:\\link\\a.tmp", "C:\\b.tmp"));
  EXPECT_FALSE(files.rename_file("C:\\own.tmp", "C:\\link\\b.tmp"));
  EXPECT_FALSE(files.copy_file("C:\\own.tmp", "C:\\link\\b.tmp"));
  EXPECT_FALSE(files.make_folder("C:\\link\\new"));
  EXPECT_EQ(files.remove_file("C:\\link\\a.tmp"), RemoveResult::kMissing);
  files.remove_contents("C:\\link");
  EXPECT_EQ(host.read("outside/a.tmp"), "x");
  EXPECT_TRUE(host.has("outside/deep/b.tmp"));
  EXPECT_FALSE(host.has("outside/new.tmp"));
  EXPECT_FALSE(host.has("outside/new"));
  EXPECT_TRUE(host.has("drive_c/own.tmp"));
}

TEST_F(WindowsMachineFilesTest, AnotherDriveOrAFolderOfLikeNameIsOutsideToo) {
  host.write("drive_c2/a.tmp");
  host.write("drive_d/b.tmp");
  add_link("drive_c/like", "drive_c2");
  add_link("drive_c/other", "drive_d");
  EXPECT_EQ(walk("C:\\"), Names{});
}

TEST_F(WindowsMachineFilesTest, ALinkBackIsEnteredNoSecondTime) {
  host.write("drive_c/a/f.tmp");
  add_link("drive_c/a/up", "drive_c");
  EXPECT_EQ(walk("C:\\a"), (Names{"up\\", "up\\a\\", "f.tmp"}));
  EXPECT_TRUE(files.read_tree("C:\\a", "*.*")->left_out_loops());
}

TEST_F(WindowsMachineFilesTest, TheDriveItselfMayBeReachedThroughALink) {
  host.write("real/a.txt", "x");
  add_link("drive_e", "real");
  machine.drives.push_back({'E', DriveType::kFixed, host.path_of("drive_e"), {}, {}});
  EXPECT_EQ(files.read_file("E:\\a.txt"), "x");
  EXPECT_EQ(list("E:\\"), Names{"a.txt"});
}

TEST_F(WindowsMachineFilesTest, AFolderThatIsDeniedCannotBeListedByAnyPath) {
  host.write("drive_c/Secret/a.tmp", "x");
  host.write("drive_c/Secret/deep/b.tmp");
  add_link("drive_c/link", "drive_c/Secret");
  machine.denied = {"C:\\SECRET\\"};
  EXPECT_EQ(list("C:\\Secret"), Names{});
  EXPECT_EQ(list("C:\\link"), Names{});
  EXPECT_EQ(files.read_tree("C:\\secret", "*.*"), nullptr);
  EXPECT_EQ(walk("C:\\"), (Names{"link\\", "Secret\\"}));
  EXPECT_EQ(files.read_file("C:\\Secret\\a.tmp"), "x");
  EXPECT_EQ(list("C:\\Secret\\deep"), Names{"b.tmp"});
}

TEST_F(WindowsMachineFilesTest, AFileInUseIsKnownByWhateverPath) {
  host.write("drive_c/Temp/a.tmp", "x");
  add_link("drive_c/link", "drive_c/Temp");
  machine.in_use = {"C:\\link\\A.TMP"};
  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kInUse);
  EXPECT_FALSE(files.set_attributes("C:\\Temp\\a.tmp", kAttributeHidden));
  EXPECT_FALSE(files.write_file("C:\\Temp\\a.tmp", "y"));
  EXPECT_FALSE(files.rename_file("C:\\Temp\\a.tmp", "C:\\Temp\\b.tmp"));
  EXPECT_EQ(files.read_file("C:\\Temp\\a.tmp"), "x");
}

TEST_F(WindowsMachineFilesTest, WhatAProgramOfTheHostHoldsIsInUseToo) {
  host.write("drive_c/a.tmp", "x");
  const FileHandle held(CreateFileW(widen(host.path_of("drive_c/a.tmp")).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(held.is_valid());
  EXPECT_EQ(files.remove_file("C:\\a.tmp"), RemoveResult::kInUse);
  EXPECT_FALSE(files.write_file("C:\\a.tmp", "y"));
  EXPECT_EQ(files.read_file("C:\\a.tmp"), "x");
  EXPECT_EQ(list("C:\\"), Names{"a.tmp"});
}

TEST_F(WindowsMachineFilesTest, OnlyTheMachinesOwnPathIsLimited) {
  const std::string name(120, 'n');
  const std::string below = "C:\\" + name + "\\" + name;
  ASSERT_TRUE(files.make_folder("C:\\" + name));
  ASSERT_TRUE(files.make_folder(below));
  // 3 + 120 + 1 + 120 + 1 = 245 units; on the host it is far more than 260 with the name.
  EXPECT_TRUE(files.write_file(below + "\\" + std::string(14, 'f'), "x"));
  EXPECT_FALSE(files.write_file(below + "\\" + std::string(15, 'f'), "x"));
  EXPECT_EQ(files.read_file(below + "\\" + std::string(14, 'f')), "x");
  EXPECT_EQ(list(below), Names{std::string(14, 'f')});
  EXPECT_EQ(walk("C:\\" + name), (Names{name + "\\", name + "\\" + std::string(14, 'f')}));
  EXPECT_EQ(files.remove_file(below + "\\" + std::string(14, 'f')), RemoveResult::kRemoved);
}

TEST_F(WindowsMachineFilesTest, PatternsMatchTheShortNamesOfTheMachine) {
  for (const char* name : {"letter to b.txt", "letter to a.txt", "LETTER~1.TXT", "a.tmpx"}) {
    host.write(std::string("drive_c/") + name);
  }
  const auto found = files.list_folder("C:\\", "letter~2.*");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].name, "letter to a.txt");
  EXPECT_EQ(files.list_folder("C:\\", "*.tmp").size(), 1U);
  // A short name is good for patterns only.
  EXPECT_EQ(files.attributes("C:\\LETTER~2.TXT"), std::nullopt);
}

TEST_F(WindowsMachineFilesTest, NamesThatMeanSomethingToWindowsAreNoFiles) {
  host.write("drive_c/a.txt", "x");
  for (const char* path : {"C:\\a.txt:stream", "C:\\?.txt", "C:\\a.*", "C:\\a.txt::$DATA"}) {
    EXPECT_EQ(files.attributes(path), std::nullopt) << path;
    EXPECT_FALSE(files.read_file(path)) << path;
    EXPECT_FALSE(files.write_file(path, "y")) << path;
    EXPECT_EQ(files.remove_file(path), RemoveResult::kMissing) << path;
  }
  EXPECT_EQ(list("C:\\"), Names{"a.txt"});
  EXPECT_EQ(host.read("drive_c/a.txt"), "x");
}

TEST_F(WindowsMachineFilesTest, AWriteKeepsNameAndAttributesAndLeavesNothingBeside) {
  host.write("drive_c/List.TXT", "old");
  ASSERT_TRUE(files.set_attributes("C:\\list.txt", kAttributeHidden | kAttributeArchive));
  EXPECT_TRUE(files.write_file("C:\\LIST.txt", "new"));
  EXPECT_EQ(list("C:\\"), Names{"List.TXT"});
  EXPECT_EQ(files.attributes("C:\\list.txt"), kAttributeHidden | kAttributeArchive);
  EXPECT_EQ(host.read("drive_c/List.TXT"), "new");
}

TEST_F(WindowsMachineFilesTest, AFoldersContentsGoWithReadOnlyFilesAndTheFolderStays) {
  host.write("drive_c/bin/a.txt");
  host.write("drive_c/bin/s/t/b.txt");
  ASSERT_TRUE(files.set_attributes("C:\\bin\\s\\t\\b.txt", kAttributeReadOnly));
  files.remove_contents("C:\\BIN");
  EXPECT_EQ(walk("C:\\"), Names{"bin\\"});
}

TEST_F(WindowsMachineFilesTest, AFoldersContentsGoWithoutTheFilesInUse) {
  host.write("drive_c/bin/s/a.txt");
  host.write("drive_c/bin/s/b.txt");
  machine.in_use = {"C:\\bin\\s\\A.TXT"};
  files.remove_contents("C:\\bin");
  EXPECT_FALSE(host.has("drive_c/bin/s/b.txt"));
  EXPECT_TRUE(host.has("drive_c/bin/s/a.txt"));
}

TEST_F(WindowsMachineFilesTest, WhatALinkLeadsToSurvivesTheLink) {
  host.write("drive_c/bin/a.txt");
  host.write("drive_c/kept/b.txt");
  add_link("drive_c/bin/link", "drive_c/kept");
  files.remove_contents("C:\\bin");
  EXPECT_EQ(files.remove_file("C:\\bin\\link"),
            is_wine() ? RemoveResult::kDenied : RemoveResult::kMissing);
  EXPECT_FALSE(host.has("drive_c/bin/a.txt"));
  EXPECT_TRUE(host.has("drive_c/kept/b.txt"));
  // Wine opens what a link leads to, never the link, which so stays.
  if (!is_wine()) links.clear();
}

}  // namespace
}  // namespace quillvane
