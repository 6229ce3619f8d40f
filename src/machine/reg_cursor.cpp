#include "machine/reg_cursor.h"

#include <algorithm>

namespace quillvane {

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t'; }
bool is_line_end(char c) { return c == '\n' || c == '\r'; }
char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::string_view trim_blanks(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

bool RegCursor::fail(std::size_t line, const std::string& why) {
  if (problem_.empty()) problem_ = "line " + std::to_string(line) + ": " + why;
  return false;
}

bool RegCursor::skip_to_content() {
  for (;;) {
    skip_blanks();
    if (at_ >= text_.size()) return false;
    if (!at_line_end() && peek() != ';') return true;
    pass_line();
  }
}

void RegCursor::skip_blanks() {
  while (at_ < text_.size() && is_blank(text_[at_])) ++at_;
}

bool RegCursor::take(std::string_view word) {
  const std::string_view here = text_.substr(at_, word.size());
  const bool same = std::equal(here.begin(), here.end(), word.begin(), word.end(),
                               [](char c, char expected) { return lower(c) == expected; });
  if (same) at_ += word.size();
  return same;
}

std::string_view RegCursor::take_line() {
  const std::size_t begin = at_;
  while (at_ < text_.size() && !at_line_end()) ++at_;
  const std::string_view line = text_.substr(begin, at_ - begin);
  pass_line_end();
  return trim_blanks(line);
}

bool RegCursor::end_line() {
  skip_blanks();
  if (at_ < text_.size() && !at_line_end() && peek() != ';') {
    return fail(line_, "there is more behind the value");
  }
  pass_line();
  return true;
}

bool RegCursor::take_quoted(std::string& out) {
  const std::size_t begin_line = line_;
  ++at_;
  while (at_ < text_.size()) {
    const char c = text_[at_];
    if (c == '"') {
      ++at_;
      return true;
    }
    if (at_line_end()) {
      const std::size_t begin = at_;
      pass_line_end();
      out += text_.substr(begin, at_ - begin);
      continue;
    }
    const char next = at_ + 1 < text_.size() ? text_[at_ + 1] : '\0';
    const bool escaped = c == '\\' && (next == '"' || next == '\\');
    out.push_back(escaped ? next : c);
    at_ += escaped ? 2 : 1;
  }
  return fail(begin_line, "the text has no closing quote");
}

std::optional<std::uint32_t> RegCursor::take_hex_number() {
  constexpr int kMostDigits = 8;
  std::uint32_t number = 0;
  int digits = 0;
  while (const auto digit = take_digit()) {
    if (++digits > kMostDigits) return std::nullopt;
    number = number << 4U | *digit;
  }
  if (digits == 0) return std::nullopt;
  return number;
}

bool RegCursor::take_bytes(std::string& out) {
  for (bool more_needed = false;; more_needed = true) {
    if (!pass_continuation()) return false;
    const auto first = take_digit();
    if (!first) {
      if (!more_needed) return true;
      return fail(line_, "a byte is missing in the data");
    }
    const auto second = take_digit();
    out.push_back(static_cast<char>(second ? *first << 4U | *second : *first));
    if (!pass_continuation()) return false;
    if (!take(",")) return true;
  }
}

bool RegCursor::at_line_end() const { return at_ < text_.size() && is_line_end(text_[at_]); }

void RegCursor::pass_line_end() {
  if (!at_line_end()) return;
  at_ += text_.substr(at_, 2) == "\r\n" ? 2 : 1;
  ++line_;
}

void RegCursor::pass_line() {
  while (at_ < text_.size() && !at_line_end()) ++at_;
  pass_line_end();
}

// Blanks, and a backslash that ends the line together with what is no data behind it.
bool RegCursor::pass_continuation() {
  skip_blanks();
  if (peek() != '\\') return true;
  const std::size_t line = line_;
  ++at_;
  skip_blanks();
  if (!at_line_end() && peek() != ';') return fail(line, "the data go on behind a backslash");
  if (!skip_to_content()) return fail(line, "the data end in the middle");
  return true;
}

std::optional<unsigned> RegCursor::take_digit() {
  const char c = lower(peek());
  std::optional<unsigned> digit;
  if (c >= '0' && c <= '9') digit = static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') digit = static_cast<unsigned>(c - 'a' + 10);
  if (digit) ++at_;
  return digit;
}

}  // namespace quillvane
