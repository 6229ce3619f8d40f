#include "platform/folder/collected_names.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillvane {
namespace {

using Kind = NameListing::Kind;
using Names = std::vector<std::string>;

Names sorted(CollectedNames& listing) {
  listing.sort();
  Names names;
  for (const auto& entry : listing.entries()) names.emplace_back(listing.name(entry));
  return names;
}

TEST(CollectedNames, AreOrderedWithoutRegardToCase) {
  CollectedNames listing;
  for (const char* name : {"b", "C", "a", "B2", "_", "Z", "\xC3\xA4", "\xC3\x84"}) {
    listing.add(name, Kind::kFile);
  }
  // Capitals decide, so the underscore comes behind the letters, and a letter above ASCII last.
  EXPECT_EQ(sorted(listing), (Names{"a", "b", "B2", "C", "Z", "_", "\xC3\x84", "\xC3\xA4"}));
}

TEST(CollectedNames, KeepTheirKind) {
  CollectedNames listing;
  listing.add("file", Kind::kFile);
  listing.add("folder", Kind::kFolder);
  ASSERT_EQ(listing.entries().size(), 2U);
  EXPECT_EQ(listing.entries()[0].kind, Kind::kFile);
  EXPECT_EQ(listing.entries()[1].kind, Kind::kFolder);
}

TEST(CollectedNames, MayBeMoreThanTheRoomAtFirst) {
  CollectedNames listing;
  Names expected;
  for (int i = 1000; i < 1500; ++i) {
    expected.push_back(std::to_string(i) + std::string(i == 1200 ? 9000 : 20, 'n'));
    listing.add(expected.back(), Kind::kFile);
  }
  EXPECT_EQ(sorted(listing), expected);
}

}  // namespace
}  // namespace quillvane
