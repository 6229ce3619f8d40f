#include "support/characters.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

TEST(Characters, AreCountedAsLettersNotAsBytes) {
  EXPECT_EQ(character_count(""), 0U);
  EXPECT_EQ(character_count("abc"), 3U);
  EXPECT_EQ(character_count("Gr\u00F6\u00DFe"), 5U);
  EXPECT_EQ(character_count("\U0001F600"), 1U);
  EXPECT_EQ(character_count("a\xFF\xFE"), 3U);
}

TEST(Characters, OfTheBeginningAreAtMostThoseThatAreThere) {
  EXPECT_EQ(first_characters("Gr\u00F6\u00DFe", 3), "Gr\u00F6");
  EXPECT_EQ(first_characters("ab", 3), "ab");
  EXPECT_EQ(first_characters("ab", 0), "");
}

TEST(Characters, OfTheEndAreAtMostThoseThatAreThere) {
  EXPECT_EQ(last_characters("*.tmp", 3), "tmp");
  EXPECT_EQ(last_characters("Gr\u00F6\u00DFe", 3), "\u00F6\u00DFe");
  EXPECT_EQ(last_characters("ab", 3), "ab");
  EXPECT_EQ(last_characters("", 3), "");
}

}  // namespace
}  // namespace quillvane
