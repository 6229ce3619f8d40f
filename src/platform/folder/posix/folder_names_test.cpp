#include "platform/folder/posix/folder_names.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/folder/posix/descriptor.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

using Names = std::vector<std::string>;

TEST(FolderNames, AnEmptyFolderHasNoOthers) {
  EXPECT_EQ(FolderNames().others("a.tmp"), Names{});
  EXPECT_FALSE(FolderNames().has_twins());
}

TEST(FolderNames, FindsWhatDiffersOnlyByCaseAndNotTheNameItself) {
  FolderNames names;
  for (const char* name : {"b.tmp", "a.tmp", "A.tmp", "A.TMP", "aa.tmp"}) names.add(name);
  EXPECT_EQ(names.others("A.tmp"), (Names{"A.TMP", "a.tmp"}));
  EXPECT_EQ(names.others("a.Tmp"), (Names{"A.TMP", "A.tmp", "a.tmp"}));
  EXPECT_EQ(names.others("b.tmp"), Names{});
  EXPECT_EQ(names.others("c.tmp"), Names{});
}

TEST(FolderNames, FoldsLettersAboveAscii) {
  FolderNames names;
  names.add(
      "Gr\xC3\xB6\xC3\x9F"
      "e.tmp");  // "Größe.tmp"
  EXPECT_EQ(names.others("GR\xC3\x96\xC3\x9F"
                         "E.TMP"),
            Names{"Gr\xC3\xB6\xC3\x9F"
                  "e.tmp"});
  names.add("\xFF.tmp");
  EXPECT_EQ(names.others("\xFF.TMP"), Names{"\xFF.tmp"});
}

TEST(FolderNames, KnowsOfTwinsOnlyWhenThereAreSome) {
  FolderNames names;
  names.add("a.tmp");
  names.add("a.tmp");
  names.add("b.tmp");
  EXPECT_FALSE(names.has_twins());
  names.add("B.tmp");
  EXPECT_TRUE(names.has_twins());
}

TEST(FolderNames, FindsEachOfManyNames) {
  FolderNames names;
  for (int i = 0; i < 5000; ++i) names.add("File " + std::to_string(i) + ".tmp");
  for (int i = 0; i < 5000; ++i) {
    const std::string number = std::to_string(i);
    ASSERT_EQ(names.others("FILE " + number + ".TMP"), Names{"File " + number + ".tmp"});
  }
  EXPECT_FALSE(names.has_twins());
}

TEST(FolderNames, ReadsTheNamesOfAFolder) {
  const TempFolder host;
  host.write("A.tmp");
  host.write("sub/b.tmp");
  const Descriptor folder(open(host.path().c_str(), O_RDONLY | O_DIRECTORY));
  FolderNames names;
  ASSERT_TRUE(names.read(folder.number()));
  EXPECT_EQ(names.others("a.TMP"), Names{"A.tmp"});
  EXPECT_EQ(names.others("SUB"), Names{"sub"});
  EXPECT_EQ(names.others("b.TMP"), Names{});
}

TEST(FolderNames, SaysThatAFolderCannotBeRead) { EXPECT_FALSE(FolderNames().read(-1)); }

}  // namespace
}  // namespace quillvane
