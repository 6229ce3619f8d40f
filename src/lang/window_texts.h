// Which texts of which window a language file holds: one table a window.
//
// A key is the control's name as the window's code calls it, with its index in an array or the
// number of its column: "Label8(6)", "View2.ColumnHeaders.Item(4)".
#pragma once

#include <span>
#include <string_view>

namespace quillvane {

// What a text may be.
enum class TextRule {
  kShown,  // a user would miss it
  kMayBeNone,
  kMustBeNone,  // the program keeps a state there
};

struct TextKey {
  std::string_view key;
  // Pixels that the window has for it at 100 percent; 0: no screen shows it.
  int room = 0;
  TextRule rule = TextRule::kShown;
};

struct WindowTexts {
  std::string_view window;        // which is also the section
  std::span<const TextKey> keys;  // in the order in which they are read
  // The controls that get the language's font; empty: those that the keys name.
  std::span<const std::string_view> fonts;
};

[[nodiscard]] std::span<const WindowTexts> window_texts();

// Null for a window whose texts are in no file.
[[nodiscard]] const WindowTexts* texts_of_window(std::string_view window);

// A key taken apart.
struct TextPlace {
  std::string_view control;
  int column = 0;  // from 1; 0: the control's own text
};
[[nodiscard]] TextPlace text_place(std::string_view key);

}  // namespace quillvane
