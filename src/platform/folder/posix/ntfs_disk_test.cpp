#include "platform/folder/posix/ntfs_disk.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/folder/machine_state.h"
#include "platform/folder/posix/folder_file_system.h"
#include "tests/support/ntfs_image.h"

namespace quillvane {
namespace {

using Kind = NtfsLink::Kind;

struct LinkCase {
  std::string data;
  Kind kind;
  char letter;
  std::string target;
};

TEST(NtfsLink, LeadsWhereWindowsWouldGo) {
  const LinkCase cases[] = {
      {junction_data("\\??\\D:\\data"), Kind::kOnDrive, 'D', "\\data"},
      {junction_data("\\??\\d:\\data\\"), Kind::kOnDrive, 'D', "\\data\\"},
      {junction_data("\\??\\C:"), Kind::kOnDrive, 'C', ""},
      {symbolic_link_data("\\??\\C:\\Größe", false), Kind::kOnDrive, 'C', "\\Größe"},
      {symbolic_link_data("..\\data\\a", true), Kind::kRelative, 0, "..\\data\\a"},
      {symbolic_link_data("\\data", true), Kind::kOwnRoot, 0, "\\data"},
      // A volume without a letter, another computer, no path.
      {junction_data("\\??\\Volume{12345678-1234-1234-1234-123456789abc}\\"), Kind::kNowhere, 0,
       ""},
      {junction_data("\\??\\UNC\\server\\data"), Kind::kNowhere, 0, ""},
      {symbolic_link_data("\\\\server\\data", true), Kind::kNowhere, 0, ""},
      {junction_data("D:\\data"), Kind::kNowhere, 0, ""},
      {junction_data("\\??\\D:data"), Kind::kNowhere, 0, ""},
      {junction_data(""), Kind::kNowhere, 0, ""},
      {symbolic_link_data("", true), Kind::kNowhere, 0, ""},
      // A compressed system file, a file that is kept elsewhere.
      {reparse_data(0x80000017, "abcd"), Kind::kNone, 0, ""},
      {reparse_data(0x9000001A, ""), Kind::kNone, 0, ""},
  };
  for (const LinkCase& c : cases) {
    const NtfsLink link = parse_ntfs_link(c.data);
    EXPECT_EQ(link.kind, c.kind) << c.target;
    EXPECT_EQ(link.letter, c.letter) << c.target;
    EXPECT_EQ(link.target, c.target);
  }
}

TEST(NtfsLink, OfDataThatAreCutLeadsNowhere) {
  for (const std::string& whole :
       {junction_data("\\??\\C:\\data"), symbolic_link_data("..\\data", true)}) {
    const std::size_t end = whole.size() - (whole[0] == '\x03' ? 4 : 0);
    for (std::size_t length = 0; length < end; ++length) {
      EXPECT_EQ(parse_ntfs_link(whole.substr(0, length)).kind, Kind::kNowhere) << length;
    }
  }
}

// A machine whose drive C: is a mounted NTFS disk, and which has no D:.
class NtfsDisk : public testing::Test {
 protected:
  void SetUp() override {
    if (!disk.is_mounted()) GTEST_SKIP() << "this host cannot mount an NTFS image through FUSE";
    machine.drives = {{'C', DriveType::kFixed, disk.folder(), {}, {}}};
    disk.write("data/precious.doc", "precious");
    disk.write("Temp/a.tmp", "12345");
  }

  void make_junction(const std::string& name, const std::string& target) const {
    disk.make_folder(name);
    disk.set(name, "system.ntfs_reparse_data", junction_data(target));
  }
  void make_link_to_file(const std::string& name, const std::string& target) const {
    disk.write(name);
    disk.set(name, "system.ntfs_reparse_data", symbolic_link_data(target, true));
  }
  void set_attributes(const std::string& name, std::uint32_t bits) const {
    disk.set(name, "system.ntfs_attrib", little_endian_bytes(bits, 4));
  }
  [[nodiscard]] std::string attributes(const std::string& name) const {
    return disk.get(name, "system.ntfs_attrib");
  }
  [[nodiscard]] std::vector<std::string> list(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& entry : files.list_folder(folder, "*.*")) names.push_back(entry.name);
    return names;
  }
  // Files of a folder of the tree below C:\; the folder's place comes first.
  [[nodiscard]] std::vector<std::string> walk() const {
    std::vector<std::string> names;
    const auto tree = files.read_tree("C:\\", "*.*");
    if (tree != nullptr) add_files(tree->root(), "", names);
    return names;
  }
  static void add_files(const ListedFolder& folder, const std::string& path,
                        std::vector<std::string>& names) {
    for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
      add_files(*sub, path + std::string(sub->name()) + "\\", names);
    }
    for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
      names.push_back(path + std::string(folder.name_of(i)));
    }
  }

  using Texts = std::vector<std::string>;
  NtfsImage disk;
  MachineState machine;
  FolderFileSystem files{machine, 1};
};

// The host shows it as a link to C:\data.
TEST_F(NtfsDisk, AJunctionToADriveThatIsNotThereLeadsNowhere) {
  make_junction("Temp/j", "\\??\\D:\\data");
  make_junction("Temp/volume", "\\??\\Volume{12345678-1234-1234-1234-123456789abc}\\");
  disk.mount_again();

  EXPECT_EQ(list("C:\\Temp"), Texts{"a.tmp"});
  EXPECT_EQ(walk(), (Texts{"data\\precious.doc", "Temp\\a.tmp"}));
  EXPECT_EQ(files.remove_file("C:\\Temp\\j\\precious.doc"), RemoveResult::kMissing);
  EXPECT_TRUE(disk.has("data/precious.doc"));
}

TEST_F(NtfsDisk, LinksToItsOwnDriveAreFollowed) {
  make_junction("Temp/j", "\\??\\C:\\DATA");
  make_link_to_file("Temp/up", "..\\data\\precious.doc");
  make_link_to_file("Temp/root", "\\data\\precious.doc");
  disk.mount_again();

  EXPECT_EQ(list("C:\\Temp"), (Texts{"a.tmp", "j", "root", "up"}));
  EXPECT_EQ(walk(), (Texts{"data\\precious.doc", "Temp\\j\\precious.doc", "Temp\\a.tmp",
                           "Temp\\root", "Temp\\up"}));
  EXPECT_EQ(files.read_file("C:\\Temp\\j\\precious.doc"), "precious");
  EXPECT_EQ(files.read_file("C:\\Temp\\up"), "precious");
  EXPECT_EQ(files.remove_file("C:\\Temp\\up"), RemoveResult::kRemoved);
  EXPECT_TRUE(disk.has("data/precious.doc"));
}

// Their tags are those of system files that Windows keeps compressed, and of files kept elsewhere.
TEST_F(NtfsDisk, WithATagThatIsNoLinkAFileIsAFile) {
  disk.write("Temp/packed");
  disk.set("Temp/packed", "system.ntfs_reparse_data", reparse_data(0x80000017, "abcd"));
  disk.make_folder("Temp/elsewhere");
  disk.set("Temp/elsewhere", "system.ntfs_reparse_data", reparse_data(0x9000001A, "abcd"));
  disk.mount_again();

  EXPECT_EQ(list("C:\\Temp"), (Texts{"a.tmp", "elsewhere", "packed"}));
  EXPECT_EQ(files.attributes("C:\\Temp\\packed"), kAttributeArchive);
  EXPECT_EQ(files.attributes("C:\\Temp\\elsewhere").value_or(0) & kAttributeFolder,
            kAttributeFolder);
  EXPECT_EQ(walk(), (Texts{"data\\precious.doc", "Temp\\a.tmp", "Temp\\packed"}));
  EXPECT_EQ(files.remove_file("C:\\Temp\\elsewhere"), RemoveResult::kDenied);
  EXPECT_EQ(files.remove_file("C:\\Temp\\packed"), RemoveResult::kRemoved);
  EXPECT_FALSE(disk.has("Temp/packed"));
}

TEST_F(NtfsDisk, AttributesAreThoseOfTheDisk) {
  set_attributes("Temp/a.tmp", 0x27);
  EXPECT_EQ(files.attributes("C:\\Temp\\a.tmp"), 0x27U);
  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kDenied);
  EXPECT_FALSE(files.write_file("C:\\Temp\\a.tmp", "new"));

  ASSERT_TRUE(files.set_attributes("C:\\Temp\\a.tmp", kAttributeHidden));
  EXPECT_EQ(attributes("Temp/a.tmp"), std::string("\x02\0\0\0", 4));
  EXPECT_EQ(disk.get("Temp/a.tmp", "user.DOSATTRIB"), "none");

  // A file that takes its place is hidden too, and archive, as each that was written to.
  ASSERT_TRUE(files.write_file("C:\\Temp\\a.tmp", "new"));
  EXPECT_EQ(files.attributes("C:\\Temp\\a.tmp"), kAttributeHidden | kAttributeArchive);

  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kRemoved);
}

TEST_F(NtfsDisk, AFileWasMadeWhenTheDiskSays) {
  const FileTime made{130'071'207'000'000'000};  // 2013-03-07 09:05:00
  disk.set("Temp/a.tmp", "system.ntfs_crtime",
           little_endian_bytes(static_cast<std::uint64_t>(made.ticks), 8));

  const auto entries = files.list_folder("C:\\Temp", "a.tmp");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].created, made);
  const auto tree = files.read_tree("C:\\Temp", "*.*");
  ASSERT_NE(tree, nullptr);
  EXPECT_EQ(tree->root().file(0).created, made);
}

TEST_F(NtfsDisk, OnAMountForReadingAloneNothingCanGo) {
  disk.mount_again("ro");
  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kWriteProtected);
  EXPECT_TRUE(disk.has("Temp/a.tmp"));
}

}  // namespace
}  // namespace quillvane
