// A long text in which the walker looks for paths, once for each folder or file it found.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

// Keeps a text and, beside it, an index of the places where a path can begin. Looking for a path
// costs the same at any length of the text, and the answer is that of a plain search. The index is
// made when it is first needed after a change.
class SearchableText {
 public:
  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] bool empty() const { return text_.empty(); }
  void set_text(std::string_view text);

  // Whether `wanted` occurs anywhere in the text. As in the handlers, an empty text occurs nowhere.
  // Texts that do not begin with letter, ":" and "\" are searched for from end to end.
  [[nodiscard]] bool contains(std::string_view wanted) const;

  // The same, but for an occurrence at the very beginning of the text.
  [[nodiscard]] bool contains_behind_beginning(std::string_view wanted) const;

  // Raised by each change, so that callers can keep answers as long as they hold.
  [[nodiscard]] std::uint64_t version() const { return version_; }

 private:
  // Whether `wanted` begins at the place `first` or behind it. Requires: first is 0 or 1.
  [[nodiscard]] bool occurs(std::string_view wanted, std::uint32_t first) const;
  void build_index() const;
  [[nodiscard]] std::string_view from(std::uint32_t place) const {
    return std::string_view(text_).substr(place);
  }

  std::string text_;
  std::uint64_t version_ = 0;
  mutable bool indexed_ = false;
  // The places where letter, ":" and "\" stand, in the order of the texts that begin there.
  mutable std::vector<std::uint32_t> places_;
};

}  // namespace quillvane
