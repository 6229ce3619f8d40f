#include "platform/folder/json_document.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <utility>
#include <vector>

namespace quillvane {

namespace {

using Json = nlohmann::json;

constexpr std::size_t kDeepest = 32;
constexpr std::size_t kMostValues = 2'000'000;
constexpr std::size_t kLongestReason = 160;

std::string one_short_line(std::string_view text) {
  std::string line(text.substr(0, kLongestReason));
  if (text.size() > kLongestReason) line += "...";
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, '?');
  return line;
}

// The library's reason without its own number in front.
std::string parse_failure(std::string_view what) {
  const std::size_t number = what.find("] ");
  if (number != std::string_view::npos) what.remove_prefix(number + 2);
  return "is no JSON: " + one_short_line(what);
}

// Watches a document while it is read, for keys that are there twice.
class KeyWatch {
 public:
  void see(Json::parse_event_t event, const Json& parsed) {
    if (event == Json::parse_event_t::object_start) open_.emplace_back();
    if (event == Json::parse_event_t::object_end) open_.pop_back();
    if (event != Json::parse_event_t::key) return;
    const auto& key = parsed.get_ref<const std::string&>();
    if (!open_.back().insert(key).second && twice_.empty()) twice_ = one_short_line(key);
  }

  [[nodiscard]] const std::string& twice() const { return twice_; }

 private:
  std::vector<std::set<std::string>> open_;  // the keys of each object that is not at its end
  std::string twice_;
};

// The place behind the string whose opening quote stands at `at`.
std::size_t behind_string(std::string_view text, std::size_t at) {
  for (++at; at < text.size() && text[at] != '"'; ++at) {
    if (text[at] == '\\') ++at;
  }
  return at + 1;
}

}  // namespace

std::optional<std::string> json_excess(std::string_view text) {
  std::size_t depth = 0;
  std::size_t values = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char c = text[at];
    at = c == '"' ? behind_string(text, at) : at + 1;
    if (c == '[' || c == '{') ++depth;
    if ((c == ']' || c == '}') && depth > 0) --depth;
    if (c == '[' || c == '{' || c == ',') ++values;
    if (depth > kDeepest) return "is nested too deeply";
    if (values > kMostValues) return "holds too many values";
  }
  return std::nullopt;
}

std::variant<Json, std::string> read_json(std::string_view text) {
  if (auto excess = json_excess(text)) return *std::move(excess);
  try {
    KeyWatch watch;
    auto document = Json::parse(text, [&](int, Json::parse_event_t event, Json& parsed) {
      watch.see(event, parsed);
      return true;
    });
    if (!watch.twice().empty()) return watch.twice() + ": is there twice";
    return document;
  } catch (const Json::exception& problem) {
    return parse_failure(problem.what());
  }
}

}  // namespace quillvane
