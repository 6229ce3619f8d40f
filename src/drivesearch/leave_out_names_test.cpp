#include "drivesearch/leave_out_names.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/like.h"

namespace quillvane {
namespace {

using Items = std::vector<std::string>;

TEST(LeaveOutNames, AnEmptyListKeepsNothingOut) {
  const LeaveOutNames none{{}};
  EXPECT_FALSE(none.keeps_out("a.tmp"));
  EXPECT_FALSE(none.keeps_out("a[.tmp"));
}

TEST(LeaveOutNames, ANameThatIsLikeAnItemIsKeptOut) {
  const LeaveOutNames names({"*.bak", "old?.txt", "log#", "[a-c].dat", "exact.doc", "*~", "ü*"});
  for (const char* name : {"x.bak", "old1.txt", "log7", "b.dat", "exact.doc", "a~", "über"}) {
    EXPECT_TRUE(names.keeps_out(name)) << name;
  }
  for (const char* name :
       {"x.ba", "x.bakx", "old.txt", "old12.txt", "logx", "d.dat", "exact.docx", "~a", "uber"}) {
    EXPECT_FALSE(names.keeps_out(name)) << name;
  }
}

TEST(LeaveOutNames, AnItemThatIsLikeTheNameKeepsItOut) {
  const LeaveOutNames names({"c:\\users\\", "file7", "abc"});
  EXPECT_TRUE(names.keeps_out("file#"));
  EXPECT_TRUE(names.keeps_out("[a]bc"));
  EXPECT_TRUE(names.keeps_out("[a][b][!x]"));
  EXPECT_TRUE(names.keeps_out("a[]bc"));
  EXPECT_TRUE(names.keeps_out("*users*"));
  EXPECT_FALSE(names.keeps_out("file##"));
  EXPECT_FALSE(names.keeps_out("[b]bc"));
  EXPECT_FALSE(names.keeps_out("c#users"));
}

TEST(LeaveOutNames, PatternsWithoutTextTakeWhatTheySay) {
  EXPECT_TRUE(LeaveOutNames({"*"}).keeps_out("anything"));
  EXPECT_TRUE(LeaveOutNames({"??"}).keeps_out("ab"));
  EXPECT_FALSE(LeaveOutNames({"??"}).keeps_out("abc"));
  EXPECT_TRUE(LeaveOutNames({"[ab][ab]"}).keeps_out("ba"));
}

TEST(LeaveOutNames, AnIllFormedItemKeepsEveryNameOut) {
  EXPECT_TRUE(LeaveOutNames({"a[b"}).keeps_out("x.tmp"));
  EXPECT_TRUE(LeaveOutNames({"x", "[c-a]"}).keeps_out("y"));
}

TEST(LeaveOutNames, AnIllFormedNameIsKeptOutByAnyItem) {
  EXPECT_TRUE(LeaveOutNames({"x"}).keeps_out("copy[1.tmp"));
  EXPECT_FALSE(LeaveOutNames({"x"}).keeps_out("copy[1].tmp"));
}

TEST(LeaveOutNames, AnEmptyItemIsNoName) {
  const LeaveOutNames names({""});
  EXPECT_FALSE(names.keeps_out("a"));
  EXPECT_TRUE(names.keeps_out("a["));
}

// Texts of a few letters and wildcards, the same in each run.
class RandomTexts {
 public:
  std::string next() {
    constexpr std::string_view kSigns = "aab.b*?#[]!-7";
    std::string text;
    const std::size_t length = number() % 6;
    for (std::size_t i = 0; i < length; ++i) text += kSigns[number() % kSigns.size()];
    return text;
  }

 private:
  std::uint32_t number() {
    state_ = state_ * 1664525 + 1013904223;
    return state_ >> 16U;
  }
  std::uint32_t state_ = 1;
};

TEST(LeaveOutNames, AnswersAsOneQuestionAfterTheOtherWould) {
  RandomTexts texts;
  int kept_out = 0;
  for (int round = 0; round < 400; ++round) {
    Items items;
    for (int i = 0; i < 3; ++i) items.push_back(texts.next());
    const LeaveOutNames names(items);
    for (int i = 0; i < 20; ++i) {
      const std::string name = texts.next();
      bool expected = false;
      for (const std::string& item : items) {
        expected = expected || likeness(name, item) != Likeness::kUnlike ||
                   likeness(item, name) != Likeness::kUnlike;
      }
      EXPECT_EQ(names.keeps_out(name), expected) << '"' << name << '"';
      kept_out += expected ? 1 : 0;
    }
  }
  EXPECT_GT(kept_out, 1000);
  EXPECT_LT(kept_out, 7000);
}

}  // namespace
}  // namespace quillvane
