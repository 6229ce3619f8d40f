#include "platform/folder/short_name.h"

#include <gtest/gtest.h>

#include <string>

namespace quillvane {

namespace {

struct Case {
  const char* name;
  const char* short_name;
};

constexpr Case kFirstOfItsFolder[] = {
    {"a.tmpx", "A~1.TMP"},
    {"Program Files", "PROGRA~1"},
    {"Local Settings", "LOCALS~1"},
    {"archive.tar.gz", "ARCHIV~1.GZ"},
    {"a b.txt", "AB~1.TXT"},
    {".gitignore", "GITIGN~1"},
    {"..hidden.files", "HIDDEN~1.FIL"},
    {"index.html", "INDEX~1.HTM"},
    {"one+two=3.txt", "ONE_TW~1.TXT"},
    {"a,b.c", "A_B~1.C"},
    {"ninechars.txt", "NINECH~1.TXT"},
    {"éa.txt", "_A~1.TXT"},
    {"\xFFlong.text", "_LONG~1.TEX"},
    {"x. y", "X~1.Y"},
};

}  // namespace

TEST(ShortName, IsMadeOfSixLettersANumberAndThreeLetters) {
  for (const Case& c : kFirstOfItsFolder) {
    EXPECT_FALSE(is_short_name(c.name)) << c.name;
    EXPECT_EQ(ShortNames().make(c.name), c.short_name) << c.name;
  }
}

TEST(ShortName, IsNotGivenToANameOfThatForm) {
  for (const char* name : {"a", "a.b", "autoexec.bat", "README", "Foo.Txt", "PROGRA~1",
                           "a-b_(1).$$$", "12345678.123", "~.x"}) {
    EXPECT_TRUE(is_short_name(name)) << name;
  }
  for (const char* name :
       {"", ".a", "a.", "a.b.c", "a b", "123456789", "a.1234", "a+b", "é", "a.é"}) {
    EXPECT_FALSE(is_short_name(name)) << name;
  }
}

TEST(ShortName, NumbersNamesThatBeginAlikeInTheirOrder) {
  ShortNames names;
  EXPECT_EQ(names.make("letter to a.txt"), "LETTER~1.TXT");
  EXPECT_EQ(names.make("letter to b.txt"), "LETTER~2.TXT");
  EXPECT_EQ(names.make("letter to b.doc"), "LETTER~1.DOC");
  EXPECT_EQ(names.make("Letter to c.text"), "LETTER~1.TEX");
}

TEST(ShortName, SkipsANumberThatANeighbourBears) {
  ShortNames names;
  names.reserve("progra~1");
  EXPECT_EQ(names.make("Program Files"), "PROGRA~2");
  EXPECT_EQ(names.make("Program Files (x86)"), "PROGRA~3");
}

TEST(ShortName, GivesALongNumberTheRoomOfLetters) {
  ShortNames names;
  std::string last;
  for (int i = 1; i <= 100; ++i) last = names.make("letter to me.txt");
  EXPECT_EQ(last, "LETT~100.TXT");
}

TEST(ShortName, HasAnExtensionThatNeedsNoNeighbours) {
  EXPECT_EQ(short_extension("a.tmpx"), ".TMP");
  EXPECT_EQ(short_extension("a.b c"), ".BC");
  EXPECT_EQ(short_extension("Program Files"), "");
  EXPECT_EQ(short_extension(".gitignore"), "");
}

}  // namespace quillvane
