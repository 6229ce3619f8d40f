#include "drivesearch/type_families.h"

#include <gtest/gtest.h>

#include <string>

namespace quillvane {
namespace {

TEST(IconOfPattern, GoesByTheLastThreeCharacters) {
  const struct {
    const char* pattern;
    const char* icon;
  } cases[] = {
      {"", "0by"},      {"  ", "0by"},       {"*.tmp", "tmp"},  {"*.TMP", "tmp"}, {"*.temp", "tmp"},
      {"*.ba~", "tmp"}, {"*.$$$", "tmp"},    {"*.~xy", "oth"},  {"*.~x", "tmp"},  {"x.~", "tmp"},
      {"*.~tm", "tmp"}, {"*.a~b", "tmp"},    {"name.^", "tmp"}, {"*.gid", "gid"}, {"*.ftg", "gid"},
      {"*.fts", "gid"}, {"*.bak", "bak"},    {"*.cpy", "bak"},  {"*.nav", "bak"}, {"*.prv", "bak"},
      {"*.syd", "bak"}, {"report.*", "bak"}, {"*.a_dd", "bak"}, {"*.old", "oth"}, {"*.log", "oth"},
      {"*.*", "oth"},   {"~", "oth"},        {"a~", "oth"},     {"T.~", "bak"},
  };
  for (const auto& c : cases) EXPECT_EQ(icon_of_pattern(c.pattern), c.icon) << c.pattern;
}

TEST(WordsOnType, GoByTheDescription) {
  const struct {
    const char* description;
    const char* title;
  } cases[] = {
      {"Backup files", "Backup Files"},
      {"  OLD versions", "Backup Files"},
      {"Help index", "Temporary help Files"},
      {"Log files", "Log Files"},
      {"Temporary files", "General Temporary Files"},
      {"General junk", "General Temporary Files"},
      {"Index fts", "General Temporary Files"},
      {"Scandisk clusters", "Scan disk lost Files"},
      {"My help", ""},
      {"", ""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(words_on_type(c.description).title, c.title) << c.description;
}

TEST(WordsOnType, AreTheseSentences) {
  EXPECT_EQ(words_on_type("back").text,
            "Backup files are files created by programs to reduce risk of loosing data.");
  EXPECT_EQ(words_on_type("help").text,
            "Temporary help files created to speed up the loading of help pages that were opened "
            "already once.");
  EXPECT_EQ(words_on_type("log").text,
            "Log files track the behavior of applications and services to help guess problems.");
  EXPECT_EQ(words_on_type("temp").text,
            "Temporary files are used by applications as an intermediate storage space and removed "
            "after use.");
  EXPECT_EQ(words_on_type("scan").text,
            "Many repair applications search your hard disk for lost clusters and save them as "
            "files.");
  EXPECT_EQ(words_on_type("other").text, "");
}

}  // namespace
}  // namespace quillvane
