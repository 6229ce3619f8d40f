#include "platform/code_page.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace quillvane {
namespace {

// A made-up page: 0xE4 and 0xE5 are letters, 0xF0 is for private use, 0x90 begins pairs.
std::optional<char16_t> made_up(std::string_view bytes) {
  static const std::map<std::string, char16_t, std::less<>> kCharacters = {
      {"\xE4", u'\u00E4'},     {"\xE5", u'\u65E5'},     {"\xF0", u'\uF8FF'},
      {"\x90\x41", u'\u65E5'}, {"\x90\x42", u'\u672C'},
  };
  const auto found = kCharacters.find(bytes);
  return found == kCharacters.end() ? std::nullopt : std::optional(found->second);
}

const std::string kKept90 = "\xED\xB2\x90";  // U+DC90, as three bytes
const std::string kKeptF0 = "\xED\xB3\xB0";  // U+DCF0

struct Case {
  std::string bytes;
  std::string text;
};

TEST(CodePage, BytesAndTextStandForEachOther) {
  const CodePage page(made_up);
  const Case cases[] = {
      {"", ""},
      {"plain \\ text\r\n", "plain \\ text\r\n"},
      {"\xE4", "\u00E4"},
      {"a\x90\x42z", "a\u672Cz"},
      {"\x90\x42\x90\x42", "\u672C\u672C"},
      // Undefined: a control character, or the byte itself.
      {"\x81", "\u0081"},
      {"\xF0", kKeptF0},
      {"\xF0\xF0", kKeptF0 + kKeptF0},
      // The first byte of a pair without a second that fits.
      {"\x90", kKept90},
      {"\x90\x7Az", kKept90 + "zz"},
      {"\x90\xE4", kKept90 + "\u00E4"},
      {"\x90\x90\x42", kKept90 + "\u672C"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(page.decode(c.bytes), c.text);
    EXPECT_EQ(page.encode(c.text), c.bytes);
  }
}

TEST(CodePage, OfSeveralWaysToWriteACharacterTheLowestIsTaken) {
  const CodePage page(made_up);
  EXPECT_EQ(page.decode("\xE5"), "\u65E5");
  EXPECT_EQ(page.encode("\u65E5"), "\x90\x41");
}

TEST(CodePage, ATextThatHasNoPlaceInThePageHasNoBytes) {
  const CodePage page(made_up);
  const std::string cases[] = {
      "\u0416",        // a letter of another script
      "a\U0001F600",   // beyond 16 bits
      "\uF8FF",        // for private use
      "\u0090",        // a control character whose byte begins pairs
      "\xE4",          // no UTF-8
      "\xED\xA0\x80",  // a surrogate that stands for no byte
      kKept90 + "A",   // together they are another character
      kKept90 + "\u00E4\xE4",
      "\xED\xB3\xA4",  // U+DCE4: that byte is a letter
      "\xED\xB2",      // cut short
  };
  for (const std::string& text : cases) EXPECT_EQ(page.encode(text), std::nullopt) << text;
}

TEST(CodePage, ThePageOfUtf8LeavesEverythingAsItIs) {
  const CodePage page;
  for (const std::string text : {"", "Gr\u00F6\u00DFe", "\xFF\xC3", "\xED\xB2\x90"}) {
    EXPECT_EQ(page.decode(text), text);
    EXPECT_EQ(page.encode(text), text);
  }
}

TEST(KnownCodePages, AHostIsAskedOnceAndOnlyForPagesThatASystemCanHave) {
  std::map<int, int> opened;
  KnownCodePages pages([&](int number) {
    ++opened[number];
    return number == 1252 ? CodePage::AskHost(made_up) : CodePage::AskHost();
  });
  const CodePage* page = pages.find(1252);
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->decode("\xE4"), "\u00E4");
  EXPECT_EQ(pages.find(1252), page);
  EXPECT_EQ(pages.find(932), nullptr);
  EXPECT_EQ(pages.find(932), nullptr);
  for (const int number : {0, -1, 37, 437, 1200, 1259, 50220, 65000}) {
    EXPECT_EQ(pages.find(number), nullptr) << number;
  }
  EXPECT_NE(pages.find(kUtf8CodePage), nullptr);
  EXPECT_EQ(opened, (std::map<int, int>{{932, 1}, {1252, 1}}));
}

}  // namespace
}  // namespace quillvane
