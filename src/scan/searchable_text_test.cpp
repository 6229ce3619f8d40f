#include "scan/searchable_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {
namespace {

struct Case {
  std::string_view text;
  std::string_view wanted;
};

constexpr Case kFound[] = {
    // A path that is an entry, or the beginning of one.
    {"c:\\temp\\a.tmp|", "c:\\temp\\a.tmp"},
    {"c:\\temp\\a.tmp|", "c:\\temp\\"},
    {"c:\\temp\\a.tmp|", "c:\\"},
    {"c:\\one\\|c:\\temp\\deep\\a.tmp|", "c:\\temp\\"},
    {"d:\\x|c:\\temp\\|e:\\y|", "c:\\temp\\"},
    // The drives in one order, the folders on them in the other.
    {"c:\\z\\|d:\\a\\|", "c:\\z\\"},
    {"c:\\z\\|d:\\a\\|", "d:\\a\\"},
    // Entries that are there twice.
    {"c:\\a\\|c:\\a\\|c:\\a\\b|", "c:\\a\\b"},
    {"c:\\a\\|c:\\a\\|", "c:\\a\\"},
    // A path inside of other text.
    {"see also c:\\temp\\ and more", "c:\\temp\\"},
    {"??\\c:\\temp\\a.tmp", "c:\\temp\\a.tmp"},
    {"ac:\\x", "c:\\x"},
    {"c:\\c:\\x", "c:\\x"},
    // Across the end of an entry: the search knows no entries.
    {"c:\\a|d:\\b|", "c:\\a|d:\\b"},
    // Texts that begin otherwise.
    {"c:\\temp\\a.tmp|", "temp"},
    {"c:\\temp\\a.tmp|", "\\temp\\"},
    {"\\\\server\\share\\|", "\\\\server\\share\\"},
    {"c:\\temp\\a.tmp|", "c:"},
    {"c:\\temp\\a.tmp|", "|"},
    {"ä:\\x", "ä:\\x"},
};

TEST(SearchableText, FindsWhatOccursAnywhere) {
  for (const auto& [content, wanted] : kFound) {
    SearchableText text;
    text.set_text(content);
    EXPECT_TRUE(text.contains(wanted)) << wanted << " in " << content;
  }
}

constexpr Case kNotFound[] = {
    {"", "c:\\"},
    {"c:\\temp|", "c:\\temp\\"},      // the folder's backslash counts
    {"c:\\temp\\", "c:\\temp\\a"},    // longer than the entry
    {"c:\\temp\\a", "c:\\temp\\ab"},  // one letter more at the end of the text
    {"c:\\temp\\|", "d:\\temp\\"},
    {"c:\\temp\\|", "C:\\TEMP\\"},    // exact in case
    {"c:\\b\\|c:\\d\\|", "c:\\a\\"},  // before, between and behind all entries
    {"c:\\b\\|c:\\d\\|", "c:\\c\\"},
    {"c:\\b\\|c:\\d\\|", "c:\\e\\"},
    {"c:\\temp\\|", "tmp"},
};

TEST(SearchableText, DoesNotFindWhatDoesNotOccur) {
  for (const auto& [content, wanted] : kNotFound) {
    SearchableText text;
    text.set_text(content);
    EXPECT_FALSE(text.contains(wanted)) << wanted << " in " << content;
  }
}

TEST(SearchableText, AnEmptyTextOccursNowhere) {
  SearchableText text;
  EXPECT_FALSE(text.contains(""));
  text.set_text("c:\\temp\\|");
  EXPECT_FALSE(text.contains(""));
}

TEST(SearchableText, AnswersForTheTextItHoldsNow) {
  SearchableText text;
  text.set_text("c:\\old\\|");
  EXPECT_TRUE(text.contains("c:\\old\\"));

  text.set_text("c:\\new\\|");

  EXPECT_EQ(text.text(), "c:\\new\\|");
  EXPECT_FALSE(text.contains("c:\\old\\"));
  EXPECT_TRUE(text.contains("c:\\new\\"));
  text.set_text("");
  EXPECT_TRUE(text.empty());
  EXPECT_FALSE(text.contains("c:\\new\\"));
}

TEST(SearchableText, EachChangeRaisesItsVersion) {
  SearchableText text;
  const auto first = text.version();
  text.set_text("c:\\a\\|");
  const auto second = text.version();
  EXPECT_GT(second, first);
  EXPECT_FALSE(text.contains("c:\\b\\"));
  EXPECT_EQ(text.version(), second);
}

TEST(SearchableText, ACopyAnswersForItself) {
  SearchableText original;
  original.set_text("c:\\a\\|");
  EXPECT_TRUE(original.contains("c:\\a\\"));

  const SearchableText copy = original;
  original.set_text("c:\\b\\|");

  EXPECT_TRUE(copy.contains("c:\\a\\"));
  EXPECT_FALSE(copy.contains("c:\\b\\"));
}

// Makes texts and questions of few different letters, so that many of them come close.
class Generator {
 public:
  std::string text() {
    std::string out;
    const std::size_t entries = below(40);
    for (std::size_t i = 0; i < entries; ++i) {
      const bool again = !entries_.empty() && below(4) == 0;
      entries_.push_back(again ? entries_[below(entries_.size())] : entry());
      out += entries_.back() + "|";
    }
    return out;
  }

  // Something that may well be in `text`.
  std::string question(const std::string& text) {
    if (text.empty() || below(3) == 0) return path();
    const std::size_t colon = text.find(':', below(text.size()));
    const bool at_path = colon != std::string::npos && colon > 0 && below(4) != 0;
    const std::size_t begin = at_path ? colon - 1 : below(text.size());
    std::string out = text.substr(begin, 1 + below(24));
    if (below(4) == 0) out[below(out.size())] = letter();
    if (below(8) == 0) out += path();  // longer than any entry
    return out;
  }

 private:
  std::size_t below(std::size_t limit) { return random_() % limit; }
  char letter() { return "ab\\:|"[below(5)]; }
  std::string entry() { return below(5) == 0 ? word() + path() : path(); }
  std::string word() {
    std::string out;
    for (std::size_t length = below(5); length > 0; --length) out += letter();
    return out;
  }
  std::string path() {
    std::string out = below(2) == 0 ? "c:\\" : "d:\\";
    for (std::size_t depth = below(4); depth > 0; --depth) out += word() + "\\";
    return out;
  }

  std::mt19937 random_{20130307};
  std::vector<std::string> entries_;
};

TEST(SearchableText, AnswersAsAPlainSearchDoes) {
  Generator generator;
  int found = 0;
  int missing = 0;
  for (int round = 0; round < 300; ++round) {
    SearchableText text;
    text.set_text(generator.text());
    for (int i = 0; i < 100; ++i) {
      const std::string wanted = generator.question(text.text());
      const bool plain = text.text().find(wanted) != std::string::npos;
      ASSERT_EQ(text.contains(wanted), plain) << wanted << " in " << text.text();
      ++(plain ? found : missing);
    }
  }
  // Both answers were put to the test.
  EXPECT_GT(found, 5000);
  EXPECT_GT(missing, 5000);
}

TEST(SearchableText, AnOccurrenceAtTheBeginningCanBeLeftOutOfAccount) {
  SearchableText text;
  text.set_text("c:\\a\\|c:\\b\\|c:\\c\\|c:\\b\\|");
  EXPECT_TRUE(text.contains("c:\\a\\"));
  EXPECT_FALSE(text.contains_behind_beginning("c:\\a\\"));
  EXPECT_TRUE(text.contains_behind_beginning("c:\\b\\"));
  EXPECT_TRUE(text.contains_behind_beginning("a\\"));
  EXPECT_FALSE(text.contains_behind_beginning("c:\\d\\"));
  // The same folder at the beginning and once more.
  text.set_text("c:\\a\\|c:\\a\\|");
  EXPECT_TRUE(text.contains_behind_beginning("c:\\a\\"));
  text.set_text("0");
  EXPECT_FALSE(text.contains_behind_beginning("0"));
}

}  // namespace
}  // namespace quillvane
