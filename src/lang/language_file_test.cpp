#include "lang/language_file.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

const std::string kFile = kProgramFolder + "\\lang\\fernwick-xx.lang";

// A language file of this content, and the value of a key in it.
struct Stage : ScanFixture {
  explicit Stage(std::string_view content, std::string_view machine_json = {})
      : ScanFixture(machine_json), session(machine.platform()) {
    add_program_file("lang\\fernwick-xx.lang", content);
  }
  [[nodiscard]] std::string value(std::string_view key, std::string_view section = "Form7") const {
    return readlangfile(session, kFile, section, key);
  }

  Session session;
};

TEST(LanguageFile, KeysMatchWithoutRegardToCase) {
  const Stage stage("[Form7]\r\nCMD_START=Los\r\nview5.columnheaders.ITEM(1)=Datei\r\n");

  EXPECT_EQ(stage.value("cmd_start"), "Los");
  EXPECT_EQ(stage.value("View5.ColumnHeaders.Item(1)"), "Datei");
}

TEST(LanguageFile, SectionsMatchWithoutRegardToCaseAndBlanks) {
  const Stage stage("  [FORM7] \r\ncmd_start=Los\r\n");

  EXPECT_EQ(stage.value("cmd_start"), "Los");
}

TEST(LanguageFile, TheValueEndsAtTheSecondEqualsSign) {
  const Stage stage("[Form7]\r\na=b=c\r\n");

  EXPECT_EQ(stage.value("a"), "b");
}

TEST(LanguageFile, BlanksBesideTheKeyGoAndThoseOfTheValueStay) {
  const Stage stage("[Form7]\r\n  key = Scan  now \r\n");

  EXPECT_EQ(stage.value("key"), " Scan  now");
}

TEST(LanguageFile, TabsAreNoBlanks) {
  const Stage stage("[Form7]\r\n\tkey=Scan\r\n");

  EXPECT_EQ(stage.value("key"), "");
  EXPECT_EQ(stage.value("\tkey"), "Scan");
}

TEST(LanguageFile, EveryQuoteOfAValueIsDropped) {
  const Stage stage("[Form7]\r\na=\"Scan \"\r\nb=say \"Scan\" now\r\nc= \" x \"\r\n");

  EXPECT_EQ(stage.value("a"), "Scan ");
  EXPECT_EQ(stage.value("b"), "say Scan now");
  EXPECT_EQ(stage.value("c"), "  x ");
}

TEST(LanguageFile, AKeyIsFoundInALaterSectionToo) {
  const Stage stage("[Form7]\r\na=one\r\n[Form3]\r\nb=two\r\n");

  EXPECT_EQ(stage.value("b"), "two");
}

TEST(LanguageFile, AKeyBeforeItsSectionIsNotFound) {
  const Stage stage("a=none\r\n[Form3]\r\na=three\r\n[Form7]\r\nb=two\r\n");

  EXPECT_EQ(stage.value("a"), "");
  EXPECT_EQ(stage.value("a", "Form3"), "three");
}

TEST(LanguageFile, TheFirstLineOfAKeyCounts) {
  const Stage stage("[Form7]\r\na=one\r\na=two\r\n");

  EXPECT_EQ(stage.value("a"), "one");
}

TEST(LanguageFile, AKeyLineWithoutAnEqualsSignIsAnEmptyValue) {
  const Stage stage("[Form7]\r\na\r\na=one\r\nb=\r\n");

  EXPECT_EQ(stage.value("a"), "");
  EXPECT_EQ(stage.value("b"), "");
}

TEST(LanguageFile, ASectionLineIsNoKey) {
  const Stage stage("[Form7]\r\n[Form3]\r\na=one\r\n");

  EXPECT_EQ(stage.value("Form3"), "");
  EXPECT_EQ(stage.value("a"), "one");
}

TEST(LanguageFile, WhatIsAlmostASectionIsNone) {
  const Stage stage("[Form7\r\na=one\r\nForm7]\r\na=two\r\n[ Form7 ]\r\na=three\r\n");

  EXPECT_EQ(stage.value("a"), "");
}

TEST(LanguageFile, LinesMayEndInAnyWay) {
  const Stage stage("[Form7]\na=one\r\nb=two\rc=three");

  EXPECT_EQ(stage.value("a"), "one");
  EXPECT_EQ(stage.value("b"), "two");
  EXPECT_EQ(stage.value("c"), "three");
}

TEST(LanguageFile, AMissingFileHasEmptyValues) {
  const Stage stage("");

  EXPECT_EQ(readlangfile(stage.session, kFile + "x", "Form7", "a"), "");
  EXPECT_EQ(stage.value("a"), "");
}

TEST(LanguageFile, BytesAreOfTheChosenLanguagesCodePage) {
  Stage stage("[Form7]\r\na=\xC7\xC8\r\n");

  EXPECT_EQ(stage.value("a"), "ÇÈ") << "no language: the system's code page";
  stage.session.langpage = 1251;
  EXPECT_EQ(stage.value("a"), "ЗИ");
  stage.session.langpage = 1256;
  EXPECT_EQ(stage.value("a"), "اب");
}

TEST(LanguageFile, WithoutALanguageBytesAreOfTheSystemsCodePage) {
  const Stage stage("[Form7]\r\na=\xC7\xC8\r\n", R"({"codePage": 1251})");

  EXPECT_EQ(stage.value("a"), "ЗИ");
}

TEST(LanguageFile, ACodePageThatIsNotThereIsTheSystems) {
  Stage stage("[Form7]\r\na=\xE4\r\n");
  stage.session.langpage = 4711;

  EXPECT_EQ(stage.value("a"), "ä");
}

// The second byte of the letter is that of "|", and the first one of another letter is a quote in
// no page.
TEST(LanguageFile, LettersOfTwoBytesStayWhole) {
  Stage stage("[Form7]\r\na=\x83\x7C=x\r\n");
  stage.session.langpage = 932;

  EXPECT_EQ(stage.value("a"), "ポ");
}

TEST(LanguageFile, InUtf8ItIsReadWhateverTheLanguage) {
  Stage plain("[Form7]\r\na=Größe\r\n");
  Stage marked("\xEF\xBB\xBF[Form7]\r\na=Größe\r\n");
  plain.session.langpage = 1251;

  EXPECT_EQ(plain.value("a"), "Größe");
  EXPECT_EQ(marked.value("a"), "Größe");
}

TEST(LanguageFile, WithNulBytesItIsNone) {
  const Stage stage("[Form7]\r\na=one\r\n\0"s);

  EXPECT_EQ(stage.value("a"), "");
  EXPECT_FALSE(read_language_bytes(stage.session, kFile));
}

TEST(LanguageFile, OfMoreThanAMegabyteItIsNone) {
  const std::string key = "[Form7]\r\na=one\r\n";
  const Stage largest(key + std::string(1024 * 1024 - key.size(), ' '));
  const Stage larger(key + std::string(1024 * 1024 - key.size() + 1, ' '));

  EXPECT_EQ(largest.value("a"), "one");
  EXPECT_EQ(larger.value("a"), "");
}

TEST(LanguageFile, AFolderOfItsNameIsNone) {
  ScanFixture fixture;
  fixture.machine.add_folder(kFile);
  const Session session(fixture.machine.platform());

  EXPECT_FALSE(read_language_bytes(session, kFile));
  EXPECT_EQ(readlangfile(session, kFile, "Form7", "a"), "");
}

TEST(LanguageFile, OddBytesDoNoHarm) {
  std::string bytes = "[Form7]\r\n";
  for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
  Stage stage(bytes + "\r\na=one\r\n=\r\n==\r\n\"\r\n[]\r\n[");
  for (const int page : {0, 874, 932, 936, 949, 950, 1255, 1258}) {
    stage.session.langpage = page;
    EXPECT_EQ(stage.value("a"), "one") << page;
  }
  EXPECT_EQ(stage.value(""), "") << "a line of a lone equals sign has a key without letters";
}

}  // namespace
}  // namespace quillvane
