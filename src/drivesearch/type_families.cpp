#include "drivesearch/type_families.h"

#include <string>

#include "platform/unicode_case.h"
#include "support/characters.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::size_t kEnding = 3;  // characters that tell the family

struct Family {
  std::string_view icon;
  std::string_view endings;  // patterns of Like, a blank between them
};

// A later family takes what an earlier one has taken.
constexpr Family kFamilies[] = {
    {"tmp", "tmp emp ??~ $$$ .~* ~tm ?~? *.^"},
    {"gid", "gid ftg fts"},
    {"bak", "bak cpy nav prv syd t.* _dd"},
};

bool is_like_one_of(std::string_view text, std::string_view patterns) {
  for (const std::string& pattern : Split(patterns, " ")) {
    if (Like(text, pattern)) return true;
  }
  return false;
}

enum class Where { kBeginning, kEnd };

struct WordsRow {
  Where where;
  std::string_view part;
  TypeWords words;
};

constexpr TypeWords kBackups = {
    "Backup Files", "Backup files are files created by programs to reduce risk of loosing data."};
constexpr TypeWords kHelp = {
    "Temporary help Files",
    "Temporary help files created to speed up the loading of help pages that were opened already "
    "once."};
constexpr TypeWords kLogs = {
    "Log Files",
    "Log files track the behavior of applications and services to help guess problems."};
constexpr TypeWords kGeneral = {
    "General Temporary Files",
    "Temporary files are used by applications as an intermediate storage space and removed after "
    "use."};
constexpr TypeWords kLost = {
    "Scan disk lost Files",
    "Many repair applications search your hard disk for lost clusters and save them as files."};

constexpr WordsRow kWords[] = {
    {Where::kBeginning, "back", kBackups}, {Where::kBeginning, "old", kBackups},
    {Where::kBeginning, "help", kHelp},    {Where::kBeginning, "log", kLogs},
    {Where::kBeginning, "temp", kGeneral}, {Where::kBeginning, "gene", kGeneral},
    {Where::kEnd, "fts", kGeneral},        {Where::kBeginning, "scan", kLost},
};

}  // namespace

std::string_view icon_of_pattern(std::string_view pattern) {
  const std::string folded = lower_case(Trim(pattern));
  if (folded.empty()) return "0by";
  const std::string_view ending = last_characters(folded, kEnding);
  std::string_view icon = "oth";
  for (const Family& family : kFamilies) {
    if (is_like_one_of(ending, family.endings)) icon = family.icon;
  }
  return icon;
}

TypeWords words_on_type(std::string_view description) {
  const std::string folded = lower_case(Trim(description));
  for (const WordsRow& row : kWords) {
    const bool fits =
        row.where == Where::kBeginning ? folded.starts_with(row.part) : folded.ends_with(row.part);
    if (fits) return row.words;
  }
  return {};
}

}  // namespace quillvane
