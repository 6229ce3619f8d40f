#include "platform/folder/json_document.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace quillvane {
namespace {

std::string problem_of(std::string_view text) {
  const auto result = read_json(text);
  const auto* problem = std::get_if<std::string>(&result);
  return problem == nullptr ? "none" : *problem;
}

std::string nested(std::size_t depth) {
  return std::string(depth, '[') + "7" + std::string(depth, ']');
}

TEST(JsonDocument, IsReadToTheLastValue) {
  const auto result = read_json(R"({"a": [1, {"a": "x\"]"}], "b": null})");
  const auto* document = std::get_if<nlohmann::json>(&result);
  ASSERT_NE(document, nullptr);
  EXPECT_EQ((*document)["a"][0], 1);
  EXPECT_EQ((*document)["a"][1]["a"], "x\"]");
  EXPECT_TRUE((*document)["b"].is_null());
}

TEST(JsonDocument, MayBeNested32Deep) {
  EXPECT_EQ(problem_of(nested(32)), "none");
  EXPECT_EQ(problem_of(nested(33)), "is nested too deeply");
}

TEST(JsonDocument, OfAMillionLevelsIsRefusedBeforeItIsRead) {
  EXPECT_EQ(problem_of(std::string(1'000'000, '[')), "is nested too deeply");
  std::string objects;
  for (int level = 0; level < 100'000; ++level) objects += "{\"a\":";
  EXPECT_EQ(problem_of(objects), "is nested too deeply");
}

TEST(JsonDocument, BracketsInATextAreNoLevels) {
  EXPECT_EQ(problem_of("[\"" + std::string(1000, '[') + "\"]"), "none");
  EXPECT_EQ(problem_of("[\"\\\"" + std::string(1000, '[') + "\"]"), "none");
  EXPECT_EQ(problem_of("[\"\\\\\"," + nested(40) + "]"), "is nested too deeply");
}

TEST(JsonDocument, MayHoldTwoMillionValues) {
  std::string list = "[0";
  for (int i = 0; i < 1'999'999; ++i) list += ",0";
  EXPECT_EQ(json_excess(list + "]"), std::nullopt);
  EXPECT_EQ(json_excess(list + ",0]"), "holds too many values");
}

TEST(JsonDocument, AKeyIsThereOnce) {
  EXPECT_EQ(problem_of(R"({"a": 1, "b": {"a": 2}, "c": [{"a": 3}, {"a": 4}]})"), "none");
  EXPECT_EQ(problem_of(R"({"a": 1, "b": {"c": 2, "c": 3}})"), "c: is there twice");
  EXPECT_EQ(problem_of("{\"a\\n\": 1, \"a\\n\": 2}"), "a?: is there twice");
  EXPECT_EQ(
      problem_of("{\"" + std::string(200, 'k') + "\": 1, \"" + std::string(200, 'k') + "\": 2}"),
      std::string(160, 'k') + "...: is there twice");
}

TEST(JsonDocument, WhatIsNoJsonIsToldInOneShortLine) {
  for (const char* text :
       {"", "{", "{]", "nan", "[NaN]", "[1e999]", "\"\\ud800\"", "[1] 2", "{\"a\n\": 1}"}) {
    const std::string problem = problem_of(text);
    EXPECT_TRUE(problem.starts_with("is no JSON: ")) << text << ": " << problem;
    EXPECT_EQ(problem.find('\n'), std::string::npos) << text << ": " << problem;
    EXPECT_LE(problem.size(), 200U) << text;
  }
}

}  // namespace
}  // namespace quillvane
