#include "tests/script/expected_output.h"

#include <algorithm>
#include <regex>
#include <sstream>

namespace quillvane {

namespace {

constexpr const char* kAnything = "...";

bool is_date(const std::string& text) {
  static const std::regex form(R"(\d{1,2}/\d{1,2}/\d{4}( \d{1,2}:\d\d:\d\d [AP]M)?)");
  return std::regex_match(text, form);
}

bool objects_match(const Json& expected, const Json& printed) {
  const bool further = expected.contains(kAnything);
  if (!further && expected.size() != printed.size()) return false;
  auto place = printed.begin();
  for (auto wanted = expected.begin(); wanted != expected.end(); ++wanted) {
    if (wanted.key() == kAnything) continue;
    while (further && place != printed.end() && place.key() != wanted.key()) ++place;
    if (place == printed.end() || place.key() != wanted.key()) return false;
    if (!matches(wanted.value(), place.value())) return false;
    ++place;
  }
  return true;
}

bool lists_match(const Json& expected, const Json& printed) {
  auto place = printed.begin();
  bool others_before = false;
  for (const Json& wanted : expected) {
    if (wanted == kAnything) {
      others_before = true;
      continue;
    }
    if (others_before) {
      place = std::find_if(place, printed.end(),
                           [&](const Json& item) { return matches(wanted, item); });
    }
    if (place == printed.end() || !matches(wanted, *place)) return false;
    ++place;
    others_before = false;
  }
  return others_before || place == printed.end();
}

}  // namespace

std::vector<Json> expected_values(const std::string& text) {
  std::string values;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with('#')) values += line + '\n';
  }
  std::vector<Json> result;
  std::istringstream stream(values);
  while (!(stream >> std::ws).eof()) stream >> result.emplace_back();
  return result;
}

std::vector<Json> printed_values(const std::string& output) {
  std::vector<Json> result;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);) result.push_back(Json::parse(line));
  return result;
}

bool matches(const Json& expected, const Json& printed) {
  if (expected == "<date>") return printed.is_string() && is_date(printed.get<std::string>());
  if (expected.is_object() && printed.is_object()) return objects_match(expected, printed);
  if (expected.is_array() && printed.is_array()) return lists_match(expected, printed);
  return expected == printed;
}

std::string difference(const std::vector<Json>& expected, const std::vector<Json>& printed) {
  const std::size_t shared = std::min(expected.size(), printed.size());
  for (std::size_t i = 0; i < shared; ++i) {
    if (matches(expected[i], printed[i])) continue;
    return "value " + std::to_string(i + 1) + " is\n  " + json_text(printed[i]) +
           "\nand should be\n  " + json_text(expected[i]);
  }
  if (printed.size() > shared) return "there is more: " + json_text(printed[shared]);
  if (expected.size() > shared) return "this is missing: " + json_text(expected[shared]);
  return "";
}

}  // namespace quillvane
