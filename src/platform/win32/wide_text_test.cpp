#include "platform/win32/wide_text.h"

#include <gtest/gtest.h>

#include <string>

namespace quillvane {
namespace {

TEST(WideText, LettersOfEveryWidthKeepTheirMeaning) {
  // One, two, three and four bytes; the last needs two UTF-16 units.
  EXPECT_EQ(widen("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"), L"a\u00E4\u20AC\xD83D\xDE00");
  EXPECT_EQ(narrow(L"a\u00E4\u20AC\xD83D\xDE00"), "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(WideText, AByteThatIsNoUtf8IsSubstituted) { EXPECT_EQ(widen("a\xFF"), L"a\uFFFD"); }

TEST(WideText, AHalfOfASurrogatePairIsSubstituted) {
  const wchar_t name[] = {L'a', static_cast<wchar_t>(0xD83D), L'b'};
  EXPECT_EQ(narrow({name, 3}),
            "a\xEF\xBF\xBD"
            "b");
}

TEST(WideText, ZerosInsideATextAreKept) {
  EXPECT_EQ(widen(std::string_view("a\0b", 3)), std::wstring(L"a\0b", 3));
  EXPECT_EQ(narrow(std::wstring_view(L"a\0b", 3)), std::string("a\0b", 3));
}

TEST(WideText, EmptyStaysEmpty) {
  EXPECT_EQ(widen(""), L"");
  EXPECT_EQ(narrow(L""), "");
}

TEST(WideText, AppendingKeepsWhatIsThere) {
  std::string text = "C:\\";
  append_narrow(L"Temp", text);
  append_narrow(L"\u00E4", text);
  EXPECT_EQ(text, "C:\\Temp\xC3\xA4");
}

}  // namespace
}  // namespace quillvane
