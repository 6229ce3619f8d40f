#include "lang/character_set.h"

#include <gtest/gtest.h>

#include <optional>

namespace quillvane {
namespace {

TEST(CharacterSet, OfACodePageIsTheOneOfItsScript) {
  EXPECT_EQ(character_set_of_page(1252), 0);
  EXPECT_EQ(character_set_of_page(932), 128);
  EXPECT_EQ(character_set_of_page(949), 129);
  EXPECT_EQ(character_set_of_page(936), 134);
  EXPECT_EQ(character_set_of_page(950), 136);
  EXPECT_EQ(character_set_of_page(1255), 177);
  EXPECT_EQ(character_set_of_page(1256), 178);
  EXPECT_EQ(character_set_of_page(1253), 161);
  EXPECT_EQ(character_set_of_page(1254), 162);
  EXPECT_EQ(character_set_of_page(1258), 163);
  EXPECT_EQ(character_set_of_page(874), 222);
  EXPECT_EQ(character_set_of_page(1257), 238);
  EXPECT_EQ(character_set_of_page(1251), 204);
  EXPECT_EQ(character_set_of_page(1250), std::nullopt);
  EXPECT_EQ(character_set_of_page(65001), std::nullopt);
}

TEST(CharacterSet, IsThatOfASystemByThePairsOfTheTable) {
  EXPECT_TRUE(is_set_of_page(0, 1252));
  EXPECT_TRUE(is_set_of_page(1, 1252));
  EXPECT_TRUE(is_set_of_page(129, 949));
  EXPECT_TRUE(is_set_of_page(130, 949));
  EXPECT_TRUE(is_set_of_page(186, 1257));
  EXPECT_TRUE(is_set_of_page(204, 1251));
  EXPECT_FALSE(is_set_of_page(204, 1252));
  EXPECT_FALSE(is_set_of_page(178, 1255));
  EXPECT_FALSE(is_set_of_page(5, 1252));
}

TEST(CharacterSet, PairsThatNameNoRealCodePageAreMeantSo) {
  EXPECT_TRUE(is_set_of_page(2, 2));
  EXPECT_TRUE(is_set_of_page(255, 255));
  EXPECT_TRUE(is_set_of_page(77, 77));
  EXPECT_TRUE(is_set_of_page(238, 1257));
  EXPECT_FALSE(is_set_of_page(238, 1250));
}

TEST(CharacterSet, NamesTheCodePageOfItsTexts) {
  EXPECT_EQ(text_page_of_set(0), 1252);
  EXPECT_EQ(text_page_of_set(178), 1256);
  EXPECT_EQ(text_page_of_set(238), 1250);
  EXPECT_EQ(text_page_of_set(1), 0) << "the system's";
  EXPECT_EQ(text_page_of_set(2), 0);
  EXPECT_EQ(text_page_of_set(77), 0);
}

TEST(CharacterSet, IsReadFromADecimalNumberAlone) {
  EXPECT_EQ(character_set_from("128"), 128);
  EXPECT_EQ(character_set_from(" 0 "), 0);
  EXPECT_EQ(character_set_from(""), std::nullopt);
  EXPECT_EQ(character_set_from("abc"), std::nullopt);
  EXPECT_EQ(character_set_from("12x"), std::nullopt);
  EXPECT_EQ(character_set_from("40000"), std::nullopt) << "a font cannot hold it";
}

}  // namespace
}  // namespace quillvane
