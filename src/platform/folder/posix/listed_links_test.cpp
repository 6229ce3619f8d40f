#include "platform/folder/posix/listed_links.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/temp_folder.h"

namespace quillvane {

TEST(ListedLinks, AreWhatTheyLeadTo) {
  using Kind = DirectoryListing::Kind;
  const TempFolder host;
  host.write("outside/file");
  host.write("drive/in/file");
  host.make_link("drive/in/to_file", "file");
  host.make_link("drive/in/to_folder", "../in");
  host.make_link("drive/in/to_nothing", "missing");
  host.make_link("drive/in/to_outside", "../../outside");
  const DriveFolder drive(host.path_of("drive"));
  const std::vector<std::string> names = {"in"};
  const auto place = drive.find(names);
  ASSERT_TRUE(place);
  DirectoryListing listing;
  ASSERT_TRUE(listing.read(open_for_listing(*place).number()));

  follow_links(listing, drive, "in");

  listing.sort();
  std::vector<std::pair<std::string, Kind>> found;
  for (const auto& entry : listing.entries()) found.emplace_back(listing.name(entry), entry.kind);
  const std::vector<std::pair<std::string, Kind>> expected = {
      {"file", Kind::kFile}, {"to_file", Kind::kLinkToFile}, {"to_folder", Kind::kFolder}};
  EXPECT_EQ(found, expected);
}

}  // namespace quillvane
