#include "support/text_file.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/temp_machine.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

const std::string kMark = "\xEF\xBB\xBF";
const std::string kPath = "C:\\list.txt";

// A machine with this code page.
struct Stage {
  explicit Stage(int code_page) : machine("{\"codePage\": " + std::to_string(code_page) + "}") {}

  // What is read from a file of these bytes.
  std::string text_of(const std::string& bytes) {
    machine.add_text_file(kPath, bytes);
    const FileText file = read_text_file(machine.platform(), kPath);
    return file.problem.empty() ? file.text : "problem: " + file.problem;
  }
  // What a file of this text holds.
  std::string bytes_of(const std::string& text) {
    EXPECT_TRUE(write_text_file(machine.platform(), kPath, text));
    return machine.file_text(kPath).value_or("nothing");
  }

  TempMachine machine;
};

TEST(TextFile, IsReadInTheSystemsCodePageUnlessItIsUtf8) {
  const struct {
    int code_page;
    std::string bytes;
    std::string text;
  } cases[] = {
      {1252, "", ""},
      {1252, "C:\\Temp\r\n", "C:\\Temp\r\n"},
      {1252,
       "Gr\xF6\xDF"
       "e",
       "Gr\u00F6\u00DFe"},
      {1252, "Gr\u00F6\u00DFe", "Gr\u00F6\u00DFe"},          // valid UTF-8 throughout
      {1252, "Gr\u00F6\xDF", "Gr\u00C3\u00B6\u00DF"},        // not throughout
      {1252, kMark + "Gr\u00F6\u00DFe", "Gr\u00F6\u00DFe"},  // by its mark
      {1252, kMark + "Gr\u00F6\xDF", "Gr\u00F6\xDF"},        // the mark rules, broken bytes stay
      {1252, kMark, ""},
      {1250,
       "Gr\xF6\xDF"
       "e \xB9",
       "Gr\u00F6\u00DFe \u0105"},
      {1251, "\xCC\xE8\xF0", "\u041C\u0438\u0440"},
      {932, "\x83\x5C\x83\x74\x83\x67", "\u30BD\u30D5\u30C8"},  // its first character ends in "\"
      {65001, "Gr\u00F6\xDF", "Gr\u00F6\xDF"},
  };
  for (const auto& c : cases) EXPECT_EQ(Stage(c.code_page).text_of(c.bytes), c.text);
}

TEST(TextFile, IsWrittenInTheSystemsCodePageAsFarAsThatHoldsIt) {
  const struct {
    int code_page;
    std::string text;
    std::string bytes;
  } cases[] = {
      {1252, "", ""},
      {1252, "C:\\Temp\r\n", "C:\\Temp\r\n"},
      {1252, "Gr\u00F6\u00DFe",
       "Gr\xF6\xDF"
       "e"},
      {1252, "Gr\u00F6\u00DFe \u0416", kMark + "Gr\u00F6\u00DFe \u0416"},
      {1252, "\u0151", kMark + "\u0151"},              // never as the "o" that looks like it
      {1252, "\u00C3\u00A4", kMark + "\u00C3\u00A4"},  // in 1252 it would be read as UTF-8
      {1252, "\u00EF\u00BB\u00BFx\u00E4", kMark + "\u00EF\u00BB\u00BFx\u00E4"},  // as a mark
      {1252, kMark + "x", kMark + kMark + "x"},
      {1252, "a\xFF", kMark + "a\xFF"},
      {932, "\u30BD\u30D5\u30C8", "\x83\x5C\x83\x74\x83\x67"},
      {936, "\u4E2D \u20AC", "\xD6\xD0 \x80"},
      {65001, "Gr\u00F6\u00DFe \u0416", "Gr\u00F6\u00DFe \u0416"},
      {437, "plain", "plain"},  // a page that no Windows has as its own
      {437, "\u00E4", kMark + "\u00E4"},
  };
  for (const auto& c : cases) {
    Stage stage(c.code_page);
    EXPECT_EQ(stage.bytes_of(c.text), c.bytes);
    EXPECT_EQ(stage.text_of(c.bytes), c.text);
  }
}

// 0x81 means nothing in 1252, nor does a lone first byte in 932.
TEST(TextFile, BytesThatMeanNothingAreStillThereWhenItIsWrittenAgain) {
  for (const std::string bytes : {"a\x81\xE4\r\n\x8D\x8F\x90\x9D", "\x81\x81\x81", "\x80\xFF"}) {
    for (const int code_page : {1252, 1253, 932, 936, 949, 950, 65001}) {
      Stage stage(code_page);
      EXPECT_EQ(stage.bytes_of(stage.text_of(bytes)), bytes) << code_page;
    }
  }
}

// A text that has become too wide for the code page takes such bytes along.
TEST(TextFile, BytesThatMeanNothingSurviveInUtf8Too) {
  Stage stage(932);
  const std::string text = stage.text_of("a\xFD\r\n") + "\u00C0";
  EXPECT_EQ(stage.text_of(stage.bytes_of(text)), text);
}

TEST(TextFile, AMissingOneIsEmptyAndNoProblem) {
  Stage stage(1252);
  const FileText file = read_text_file(stage.machine.platform(), "C:\\missing.txt");
  EXPECT_EQ(file.text, "");
  EXPECT_EQ(file.problem, "");
}

TEST(TextFile, WhatIsThereAndCannotBeReadIsAProblem) {
  TempMachine machine;
  const struct {
    ReadFailure failure;
    std::string problem;
  } cases[] = {
      {ReadFailure::kMissing, ""},
      {ReadFailure::kFolder, "a folder has its name"},
      {ReadFailure::kInUse, "another program has it open"},
      {ReadFailure::kDenied, "access is denied"},
      {ReadFailure::kTooLarge, "it is too large"},
      {ReadFailure::kTooLong, "its path is too long"},
      {ReadFailure::kUnreadable, "it cannot be read"},
  };
  for (const auto& c : cases) {
    UnreadableFile files(machine.platform().files, kPath, c.failure);
    EXPECT_EQ(read_text_file(machine.platform().with({.files = &files}), kPath).problem, c.problem);
  }
}

TEST(TextFile, WhatIsNoTextIsAProblem) {
  Stage stage(1252);
  // UTF-16 with its mark, and zeros such as a crash leaves.
  EXPECT_EQ(stage.text_of(std::string("\xFF\xFE"
                                      "C\0:\0",
                                      6)),
            "problem: it is no text");
  EXPECT_EQ(stage.text_of(std::string(100, '\0')), "problem: it is no text");
}

TEST(TextFile, LettersOfACodePageThatIsNotInstalledAreAProblem) {
  Stage stage(437);
  EXPECT_EQ(stage.text_of("plain"), "plain");
  EXPECT_EQ(stage.text_of("\u00E4"), "\u00E4");
  EXPECT_EQ(stage.text_of("\x84"), "problem: its code page 437 is not installed");
}

TEST(TextField, IsFilledUpOrCutBehindAWholeCharacter) {
  const struct {
    int code_page;
    std::string text;
    std::string field;
  } cases[] = {
      {1252, "", "     "},
      {1252, "abc", "abc  "},
      {1252, "abcdef", "abcde"},
      {1252, "\u00F6\u00DF", "\xF6\xDF   "},
      {1252, "\u00F6\u00DF\u00F6\u00DF\u00F6\u00DF", "\xF6\xDF\xF6\xDF\xF6"},
      {1252, "abcde\u0416", "abcde"},                    // what is cut off need not fit
      {1252, "a\u0416", "a\xD0\x96  "},                  // UTF-8 in this field, without a mark
      {1252, "abcd\u0416", "abcd "},                     // no half character
      {1252, "\u00C3\u00A4", "\u00C3\u00A4 "},           // in 1252 it would be read as UTF-8
      {932, "\u65E5\u672C\u65E5", "\x93\xFA\x96\x7B "},  // no half pair
      {65001, "\u00F6\u00F6\u00F6", "\u00F6\u00F6 "},
      {437, "\u00F6", "\u00F6   "},
  };
  for (const auto& c : cases) {
    Stage stage(c.code_page);
    const SystemInfo& system = stage.machine.platform().system;
    EXPECT_EQ(field_of_text(system, c.text, 5), c.field) << c.text;
  }
}

TEST(TextField, IsReadByItself) {
  Stage stage(1252);
  const SystemInfo& system = stage.machine.platform().system;
  EXPECT_EQ(text_of_bytes(system, "\xF6\xDF   "), "\u00F6\u00DF   ");
  EXPECT_EQ(text_of_bytes(system, "a\xD0\x96  "), "a\u0416  ");
}

}  // namespace
}  // namespace quillvane
