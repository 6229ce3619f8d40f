#include "platform/folder/json_fields.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace quillvane {
namespace {

using Json = nlohmann::json;

TEST(JsonFields, AnAbsentFieldLeavesItsTarget) {
  JsonFields fields;
  std::string text = "before";
  bool flag = true;
  std::optional<std::uint64_t> bytes = 7;
  fields.text(Json::object(), "", "text", text);
  fields.flag(Json::object(), "", "flag", flag);
  fields.byte_count(Json::object(), "", "bytes", bytes);
  EXPECT_EQ(fields.number(Json::object(), "", "number", 0, 9), std::nullopt);
  EXPECT_EQ(text, "before");
  EXPECT_TRUE(flag);
  EXPECT_EQ(bytes, 7U);
  EXPECT_EQ(fields.error(), "");
}

TEST(JsonFields, ANeededFieldMustBeThere) {
  JsonFields fields;
  std::string text;
  fields.needed_text(Json::object(), "drives[2].", "letter", text);
  EXPECT_EQ(fields.error(), "drives[2].letter: is missing");
}

TEST(JsonFields, TheFirstMistakeIsKept) {
  JsonFields fields;
  std::string text;
  const Json object = {{"a", 1}, {"b", 2}};
  fields.text(object, "", "a", text);
  fields.text(object, "", "b", text);
  EXPECT_EQ(fields.error(), "a: must be a text");
}

TEST(JsonFields, NumbersLieWithinTheirBounds) {
  const Json object = {{"n", 5}, {"huge", 18446744073709551615U}, {"real", 5.0}};
  EXPECT_EQ(JsonFields().number(object, "", "n", 5, 5), 5);
  EXPECT_EQ(JsonFields().number(object, "", "n", 6, 9), std::nullopt);
  EXPECT_EQ(JsonFields().number(object, "", "n", 0, 4), std::nullopt);
  EXPECT_EQ(JsonFields().number(object, "", "huge", 0, 9), std::nullopt);
  EXPECT_EQ(JsonFields().number(object, "", "real", 0, 9), std::nullopt);
}

TEST(JsonFields, ElementsOfListsAreNamedByTheirNumber) {
  JsonFields fields;
  std::vector<std::string> places;
  const Json object = {{"list", {{{"x", 1}}, {{"x", 2}}}}};
  fields.objects(object, "list",
                 [&](const Json&, const std::string& prefix) { places.push_back(prefix); });
  EXPECT_EQ(places, (std::vector<std::string>{"list[0].", "list[1]."}));
}

TEST(JsonFields, AMistakeEndsTheReadingOfItsList) {
  JsonFields fields;
  std::vector<std::string> texts;
  fields.texts({{"list", {"a", 1, 2}}}, "list", texts);
  EXPECT_EQ(fields.error(), "list[1]: must be a text");
  EXPECT_EQ(texts.size(), 2U);
}

TEST(JsonFields, TheReasonStaysOneLineWhateverTheNames) {
  JsonFields fields;
  fields.fail("a\nb\tc", "is\rwrong");
  EXPECT_EQ(fields.error(), "a?b?c: is?wrong");
}

}  // namespace
}  // namespace quillvane
