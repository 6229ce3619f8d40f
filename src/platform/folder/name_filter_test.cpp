#include "platform/folder/name_filter.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/folder/collected_names.h"

namespace quillvane {

namespace {

using Names = std::vector<std::string>;
using Folders = NameFilter::Folders;
using Matches = std::vector<std::pair<std::string, std::uint32_t>>;

class NameFilterTest : public ::testing::Test {
 protected:
  // The names that the filter leaves, with the patterns that they match.
  Matches matches(const TreeRequest& request, std::size_t path_units, Folders folders) {
    CollectedNames listing;
    for (const auto& [name, kind] : folder) listing.add(name, kind);
    NameFilter(request, folders).apply(listing, path_units);
    Matches left;
    for (const auto& entry : listing.entries()) {
      left.emplace_back(listing.name(entry), entry.matches);
    }
    return left;
  }
  Names left_by(const std::string& pattern, Folders folders = Folders::kMatched) {
    Names names;
    for (const auto& [name, bits] : matches({pattern}, 3, folders)) names.push_back(name);
    return names;
  }

  void add(const char* name) { folder.emplace_back(name, NameListing::Kind::kFile); }
  void add_folder(const char* name) { folder.emplace_back(name, NameListing::Kind::kFolder); }

  std::vector<std::pair<std::string, NameListing::Kind>> folder;
};

}  // namespace

TEST_F(NameFilterTest, LeavesWhatMatchesInOrder) {
  for (const char* name : {"b.tmp", "A.TMP", "c.log"}) add(name);
  EXPECT_EQ(left_by("*.tmp"), (Names{"A.TMP", "b.tmp"}));
  EXPECT_EQ(left_by("*.*"), (Names{"A.TMP", "b.tmp", "c.log"}));
  EXPECT_EQ(left_by("?.l*"), Names{"c.log"});
  EXPECT_EQ(left_by(""), Names{});
}

TEST_F(NameFilterTest, MatchesTheEndOfShortNamesToo) {
  for (const char* name : {"a.tmpx", "b.tmpfile", "c.tm", "d.t mp"}) add(name);
  EXPECT_EQ(left_by("*.tmp"), (Names{"a.tmpx", "b.tmpfile", "d.t mp"}));
}

TEST_F(NameFilterTest, MatchesTheNumbersOfShortNames) {
  for (const char* name : {"letter to b.txt", "letter to a.txt", "LETTER~1.TXT", "letter.txt"}) {
    add(name);
  }
  // One name has the number 1 already; the others get 2 and 3 in their order.
  EXPECT_EQ(left_by("letter~1.*"), Names{"LETTER~1.TXT"});
  EXPECT_EQ(left_by("letter~2.*"), Names{"letter to a.txt"});
  EXPECT_EQ(left_by("LETTER~3.TXT"), Names{"letter to b.txt"});
  EXPECT_EQ(left_by("letter~?.txt"), (Names{"letter to a.txt", "letter to b.txt", "LETTER~1.TXT"}));
}

TEST_F(NameFilterTest, MatchesWhatStandsBeforeTheDotOfShortNames) {
  for (const char* name : {"a.tmpx", "b c.txt", "tmp", "History", "historical.db"}) {
    add(name);
  }
  EXPECT_EQ(left_by("*tmp.*"), (Names{"a.tmpx", "tmp"}));  // A~1.TMP ends in the letters
  EXPECT_EQ(left_by("BC~1.*"), Names{"b c.txt"});
  EXPECT_EQ(left_by("History.*"), Names{"History"});
}

TEST_F(NameFilterTest, TakesFoldersOfAnyNameWhenAsked) {
  add_folder("cache");
  add_folder("cache.tmp");
  add("a.tmp");
  EXPECT_EQ(left_by("*.tmp", Folders::kAll), (Names{"a.tmp", "cache", "cache.tmp"}));
  EXPECT_EQ(left_by("*.tmp", Folders::kMatched), (Names{"a.tmp", "cache.tmp"}));
}

TEST_F(NameFilterTest, TellsWhichPatternsMatch) {
  for (const char* name : {"a.tmp", "b.log", "c.txt", "data.logx"}) add(name);
  EXPECT_EQ(matches({"*.tmp", "*.log", "?.*"}, 3, Folders::kMatched),
            (Matches{{"a.tmp", 1 | 4}, {"b.log", 2 | 4}, {"c.txt", 4}, {"data.logx", 2}}));
}

TEST_F(NameFilterTest, TellsTheFirstPatternThatMatches) {
  for (const char* name : {"a.tmp", "b.log", "c.txt", "data.logx"}) add(name);
  TreeRequest request({"*.log", "?.*", "*.tmp"});
  request.tells = TreeRequest::Tells::kFirstMatch;
  EXPECT_EQ(matches(request, 3, Folders::kMatched),
            (Matches{{"a.tmp", 2}, {"b.log", 1}, {"c.txt", 2}, {"data.logx", 1}}));
}

TEST_F(NameFilterTest, CountsOnlyThePatternsThatFitBehindThePath) {
  for (const char* name : {"a.tmp", "b.log"}) add(name);
  // 255 units of path and four of pattern are 259.
  EXPECT_EQ(matches({"*.tmp", "b*.*"}, 255, Folders::kMatched), (Matches{{"b.log", 2}}));
  EXPECT_EQ(matches({"*.*"}, 256, Folders::kMatched), (Matches{{"a.tmp", 1}, {"b.log", 1}}));
  EXPECT_EQ(matches({"*.*"}, 257, Folders::kMatched), Matches{});
}

}  // namespace quillvane
