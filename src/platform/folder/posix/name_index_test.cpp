#include "platform/folder/posix/name_index.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

#include "platform/folder/posix/descriptor.h"
#include "tests/support/host_faults.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

class NameIndexTest : public ::testing::Test {
 protected:
  NameIndexTest() : folder(open(host.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}

  [[nodiscard]] std::optional<std::string> find(const std::string& name) {
    return stored_name(folder.number(), name, index);
  }

  void remove(const char* name) const { unlink(host.path_of(name).c_str()); }

  TempFolder host;
  Descriptor folder;
  NameIndex index;
};

TEST_F(NameIndexTest, FindsTheStoredNameForANameInAnyCase) {
  for (const char* name : {"Report.TXT", "temp", "Temp", "\xC3\x84rger"}) host.write(name);
  EXPECT_EQ(find("report.txt"), "Report.TXT");
  EXPECT_EQ(find("\xC3\xA4RGER"), "\xC3\x84rger");
  // An exact match wins; without one the first by its bytes does.
  EXPECT_EQ(find("temp"), "temp");
  EXPECT_EQ(find("TEMP"), "Temp");
  EXPECT_EQ(find("missing"), std::nullopt);
  EXPECT_EQ(errno, ENOENT);
}

TEST_F(NameIndexTest, ReadsAFolderOnceForManyNames) {
  for (int i = 0; i < 1000; ++i) host.write("File" + std::to_string(i));
  for (int i = 0; i < 1000; ++i) {
    const std::string number = std::to_string(i);
    ASSERT_EQ(find("FILE" + number), "File" + number);
    ASSERT_EQ(find("other" + number), std::nullopt);
  }
  EXPECT_EQ(index.readings(), 1U);
}

TEST_F(NameIndexTest, SeesEveryNameThatComesByWhateverWay) {
  const auto path = [this](const char* name) { return host.path_of(name); };
  host.write("outside/moved");
  host.write("old");
  ASSERT_EQ(find("NOTHING"), std::nullopt);  // from here on the names are known
  host.write("written");
  EXPECT_EQ(find("WRITTEN"), "written");
  host.make_folder("folder");
  EXPECT_EQ(find("FOLDER"), "folder");
  host.make_link("link", "old");
  EXPECT_EQ(find("LINK"), "link");
  ASSERT_EQ(link(path("old").c_str(), path("second").c_str()), 0);
  EXPECT_EQ(find("SECOND"), "second");
  ASSERT_EQ(std::rename(path("outside/moved").c_str(), path("moved").c_str()), 0);
  EXPECT_EQ(find("MOVED"), "moved");
  ASSERT_EQ(std::rename(path("moved").c_str(), path("renamed").c_str()), 0);
  EXPECT_EQ(find("RENAMED"), "renamed");
  EXPECT_EQ(find("MOVED"), std::nullopt);
  EXPECT_EQ(index.readings(), 1U);
}

TEST_F(NameIndexTest, SeesANameThatGoes) {
  host.write("A.tmp");
  host.write("a.tmp");
  ASSERT_EQ(find("A.TMP"), "A.tmp");
  remove("A.tmp");
  EXPECT_EQ(find("A.TMP"), "a.tmp");
  remove("a.tmp");
  EXPECT_EQ(find("A.TMP"), std::nullopt);
  host.write("A.Tmp");
  EXPECT_EQ(find("A.TMP"), "A.Tmp");
}

TEST_F(NameIndexTest, PassesOverWhatIsNeitherFileNorFolder) {
  ASSERT_EQ(find("PIPE"), std::nullopt);
  ASSERT_EQ(mkfifo(host.path_of("Pipe").c_str(), 0600), 0);
  EXPECT_EQ(find("PIPE"), std::nullopt);
  host.write("pipe");
  EXPECT_EQ(find("PIPE"), "pipe");
}

TEST_F(NameIndexTest, ReadsAnewWhereTheHostTellsNoChanges) {
  for (const long call : {SYS_fstatfs, SYS_inotify_init1, SYS_inotify_add_watch, SYS_read}) {
    NameIndex blind;
    remove("b.tmp");
    host.write("a.tmp");
    with_failing_calls({call}, EMFILE, [&] {
      EXPECT_EQ(stored_name(folder.number(), "A.TMP", blind), "a.tmp") << call;
      EXPECT_EQ(stored_name(folder.number(), "B.TMP", blind), std::nullopt) << call;
    });
    host.write("b.tmp");
    with_failing_calls({call}, EMFILE, [&] {
      EXPECT_EQ(stored_name(folder.number(), "B.TMP", blind), "b.tmp") << call;
    });
  }
}

TEST_F(NameIndexTest, AFolderThatCannotBeReadHoldsNobodyKnowsWhat) {
  host.write("a.tmp");
  with_failing_calls({SYS_getdents64}, EIO, [this] {
    EXPECT_EQ(find("A.TMP"), std::nullopt);
    EXPECT_EQ(errno, EIO);
    EXPECT_EQ(find("a.tmp"), "a.tmp");
  });
  EXPECT_EQ(find("A.TMP"), "a.tmp");
}

TEST_F(NameIndexTest, ForgetsANameThatHasATwin) {
  host.write("A.tmp");
  host.write("a.tmp");
  index.forget_if_twin(folder.number(), "A.tmp", "A.tmp");
  remove("A.tmp");
  EXPECT_EQ(find("A.tmp"), std::nullopt);
  EXPECT_EQ(find("a.tmp"), "a.tmp");
  host.write("A.tmp");
  EXPECT_EQ(find("A.tmp"), "A.tmp");
}

TEST_F(NameIndexTest, ForgetsNothingWithoutATwin) {
  host.write("A.tmp");
  host.write("b.tmp");
  index.forget_if_twin(folder.number(), "A.tmp", "A.TMP");
  remove("A.tmp");
  EXPECT_EQ(find("A.tmp"), std::nullopt);
  host.write("a.tmp");
  EXPECT_EQ(find("A.tmp"), "a.tmp");
  EXPECT_EQ(find("A.TMP"), "a.tmp");
}

TEST_F(NameIndexTest, CountsMovesAndArrivals) {
  host.make_folder("sub");
  const Descriptor sub(open(host.path_of("sub").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  ASSERT_TRUE(index.watch(sub.number()));
  const NameIndex::State before = index.state();
  EXPECT_EQ(index.state(), before);
  host.write("sub/a.tmp");
  remove("sub/a.tmp");
  const NameIndex::State later = index.state();
  EXPECT_EQ(later.moves, before.moves);
  EXPECT_GT(later.arrivals, before.arrivals);
  ASSERT_EQ(std::rename(host.path_of("sub").c_str(), host.path_of("moved").c_str()), 0);
  EXPECT_GT(index.state().moves, later.moves);
}

TEST_F(NameIndexTest, BeginsAnewBeyondItsBounds) {
  for (std::size_t i = 0; i < NameIndex::kMostFolders + 10; ++i) {
    host.make_folder("sub" + std::to_string(i));
  }
  host.write("sub0/a.tmp");
  for (std::size_t i = 0; i < NameIndex::kMostFolders + 10; ++i) {
    const std::string path = host.path_of("sub" + std::to_string(i));
    const Descriptor sub(open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    const auto found = stored_name(sub.number(), "A.TMP", index);
    ASSERT_EQ(found, i == 0 ? std::optional<std::string>("a.tmp") : std::nullopt) << i;
  }
  host.write("sub0/b.tmp");
  const Descriptor sub(open(host.path_of("sub0").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  EXPECT_EQ(stored_name(sub.number(), "B.TMP", index), "b.tmp");
}

}  // namespace
}  // namespace quillvane
