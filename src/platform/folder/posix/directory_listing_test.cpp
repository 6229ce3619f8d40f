#include "platform/folder/posix/directory_listing.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/folder/posix/descriptor.h"
#include "tests/support/temp_folder.h"

namespace quillvane {

namespace {

using Names = std::vector<std::string>;
using Kind = DirectoryListing::Kind;

class DirectoryListingTest : public ::testing::Test {
 protected:
  [[nodiscard]] Descriptor open_folder(const std::string& path) const {
    return Descriptor(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  }

  // All names of the test's folder in order.
  Names read() {
    EXPECT_TRUE(listing.read(open_folder(host.path()).number()));
    listing.sort();
    Names names;
    for (const auto& entry : listing.entries()) names.emplace_back(listing.name(entry));
    return names;
  }

  TempFolder host;
  DirectoryListing listing;
};

}  // namespace

TEST_F(DirectoryListingTest, OrdersNamesWithoutRegardToCase) {
  for (const char* name : {"b", "C", "a", "B2", "_", "Z", "[", "~", "1"}) host.write(name);
  // Capitals decide, so "[", "_" and "~" come behind all letters.
  EXPECT_EQ(read(), (Names{"1", "a", "b", "B2", "C", "Z", "[", "_", "~"}));
}

TEST_F(DirectoryListingTest, OrdersNamesThatDifferLateOrOnlyByLength) {
  for (const char* name :
       {"abcdefgh", "abcdefg", "ABCDEFGHI", "abcdefgz", "abcdefghij", "abcdefgi"}) {
    host.write(name);
  }
  EXPECT_EQ(read(),
            (Names{"abcdefg", "abcdefgh", "ABCDEFGHI", "abcdefghij", "abcdefgi", "abcdefgz"}));
}

TEST_F(DirectoryListingTest, OrdersNamesThatDifferOnlyByCaseByTheirBytes) {
  for (const char* name : {"temp", "TEMP", "Temp", "tEMP", "temporary.a", "Temporary.A"}) {
    host.write(name);
  }
  EXPECT_EQ(read(), (Names{"TEMP", "Temp", "tEMP", "temp", "Temporary.A", "temporary.a"}));
}

TEST_F(DirectoryListingTest, OrdersLettersAboveAsciiByTheirCapitals) {
  // The long s has the capital S, the i without a dot the capital I.
  for (const char* name :
       {"ä", "Ä", "z", "Å", "ſ", "t", "r", "s", "ıb", "ia", "ic", "aä", "aÄb", "az"}) {
    host.write(name);
  }
  EXPECT_EQ(read(),
            (Names{"az", "aä", "aÄb", "ia", "ıb", "ic", "r", "s", "ſ", "t", "z", "Ä", "ä", "Å"}));
}

TEST_F(DirectoryListingTest, PassesNamesThatAreNoUtf8) {
  host.write("\xFF\xFE.tmp");
  host.write("a\x80");
  host.write("b");
  EXPECT_EQ(read(), (Names{"a\x80", "b", "\xFF\xFE.tmp"}));
}

TEST_F(DirectoryListingTest, TellsFilesFoldersAndLinksApart) {
  host.write("a");
  host.make_folder("b");
  host.make_link("c", "nowhere");
  ASSERT_EQ(read(), (Names{"a", "b", "c"}));
  EXPECT_EQ(listing.entries()[0].kind, Kind::kFile);
  EXPECT_EQ(listing.entries()[1].kind, Kind::kFolder);
  EXPECT_EQ(listing.entries()[2].kind, Kind::kLink);
  EXPECT_TRUE(listing.has_links());
}

TEST_F(DirectoryListingTest, LeavesOutWhatWindowsDoesNotKnow) {
  host.write("a");
  host.write("back\\slash");
  ASSERT_EQ(mkfifo(host.path_of("pipe").c_str(), 0600), 0);
  const Descriptor bound(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string path = host.path_of("socket");
  ASSERT_LT(path.size(), sizeof address.sun_path);
  std::copy(path.begin(), path.end(), address.sun_path);
  ASSERT_EQ(bind(bound.number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(read(), Names{"a"});
  EXPECT_FALSE(listing.has_links());
}

TEST_F(DirectoryListingTest, ReadsAFolderLargerThanItsBuffer) {
  Names expected;
  for (int i = 10000; i < 13500; ++i) {
    expected.push_back(std::to_string(i) + std::string(60, 'n'));
    host.write(expected.back());
  }
  EXPECT_EQ(read(), expected);
}

TEST_F(DirectoryListingTest, ForgetsTheFolderBefore) {
  host.write("a");
  host.make_folder("empty");
  host.make_link("link", "a");
  EXPECT_EQ(read().size(), 3U);
  EXPECT_TRUE(listing.read(open_folder(host.path_of("empty")).number()));
  EXPECT_TRUE(listing.entries().empty());
  EXPECT_FALSE(listing.has_links());
}

TEST_F(DirectoryListingTest, TellsThatAFolderCannotBeRead) {
  host.write("a");
  const Descriptor file(open(host.path_of("a").c_str(), O_RDONLY | O_CLOEXEC));
  EXPECT_FALSE(listing.read(file.number()));
  EXPECT_TRUE(listing.entries().empty());
}

}  // namespace quillvane
