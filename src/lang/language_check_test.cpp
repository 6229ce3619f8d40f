#include "lang/language_check.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lang/text_width.h"
#include "lang/window_texts.h"
#include "platform/folder/host_code_page.h"

namespace quillvane {
namespace {

using Findings = std::vector<std::string>;

std::string full_section(const WindowTexts& window) {
  std::string text = "[" + std::string(window.window) + "]\r\n";
  for (const TextKey& key : window.keys) {
    text += std::string(key.key) + (key.rule == TextRule::kShown ? "=x\r\n" : "=\r\n");
  }
  return text;
}

// A file without a fault, one section behind the other: that of Form4 has the lines 1 to 5.
std::string full_file() {
  std::string text = full_section(*texts_of_window("Form4"));
  for (const WindowTexts& window : window_texts()) {
    if (window.window != "Form4") text += full_section(window);
  }
  return text;
}

// The same with other lines for the section of Form4.
std::string file_with_form4(const std::string& lines) {
  std::string text = full_file();
  return "[Form4]\r\n" + lines + text.substr(full_section(*texts_of_window("Form4")).size());
}

Findings check(const std::string& content, int page = 1252) {
  Findings texts;
  const auto file = language_bytes(content);
  for (const LanguageFinding& finding : check_language_file(*file, *host_code_page(page), page)) {
    texts.push_back(std::to_string(finding.line) + " [" + finding.section + "] " + finding.key +
                    ": " + finding.what);
  }
  return texts;
}

constexpr const char* kOthers = "Label222(1)=x\r\nLabel1(0)=x\r\nLabel1(1)=x\r\n";

TEST(LanguageCheck, AFullFileHasNoFinding) { EXPECT_EQ(check(full_file()), Findings{}); }

TEST(LanguageCheck, TellsMissingKeysAtTheirSection) {
  EXPECT_EQ(check(file_with_form4("Label222(1)=x\r\nLabel1(1)=x\r\n")),
            (Findings{"1 [Form4] Command2: is missing", "1 [Form4] Label1(0): is missing"}));
}

TEST(LanguageCheck, TellsAMissingSection) {
  const std::string all = full_file();
  const std::string without = all.substr(full_section(*texts_of_window("Form4")).size());

  EXPECT_EQ(check(without), Findings{"0 [Form4] : the section is missing"});
}

TEST(LanguageCheck, TellsUnknownKeysAndSections) {
  const std::string lines = std::string("Command2=x\r\n") + kOthers + "Command9=x\r\n";

  EXPECT_EQ(check(file_with_form4(lines)),
            Findings{"6 [Form4] Command9: is no key of this window"});
  EXPECT_EQ(check("[Form9]\r\na=b\r\n" + full_file()),
            Findings{"1 [Form9] : no window has this section"});
}

TEST(LanguageCheck, TellsWhatIsThereTwice) {
  const std::string lines = std::string("Command2=x\r\ncommand2=y\r\n") + kOthers;

  EXPECT_EQ(check(file_with_form4(lines)),
            Findings{"3 [Form4] command2: stands in line 2 already"});
  EXPECT_EQ(check(file_with_form4(std::string("Command2=x\r\n") + kOthers + "[form4]\r\nb=c\r\n")),
            Findings{"6 [form4] : the section stands in line 1 already"});
}

TEST(LanguageCheck, TellsLinesThatAreNeitherSectionNorKey) {
  EXPECT_EQ(check(file_with_form4(std::string("# Close\r\n\r\nCommand2=x\r\n") + kOthers)),
            Findings{"2 [Form4] # Close: is neither a section nor a key"});
  EXPECT_EQ(check("Command2=x\r\n" + full_file()),
            Findings{"1 [] Command2: stands before the first section"});
}

TEST(LanguageCheck, TellsTextsThatAreNoneOrCut) {
  const auto with = [](const std::string& line) {
    return check(file_with_form4(line + "\r\n" + kOthers));
  };

  EXPECT_EQ(with("Command2"), Findings{"2 [Form4] Command2: has no ="});
  EXPECT_EQ(with("Command2="), Findings{"2 [Form4] Command2: is empty"});
  EXPECT_EQ(with("Command2=\" \""), Findings{"2 [Form4] Command2: is empty"});
  EXPECT_EQ(with("Command2=a=b"),
            Findings{"2 [Form4] Command2: ends at its second =, what follows is lost"});
}

TEST(LanguageCheck, TellsATextWhereTheProgramKeepsItsState) {
  std::string file = full_file();
  file.replace(file.find("Text4="), 6, "Text4=1");

  const Findings found = check(file);

  ASSERT_EQ(found.size(), 1U);
  EXPECT_NE(found[0].find("[Form7] Text4: must be empty"), std::string::npos);
}

TEST(LanguageCheck, TellsBytesThatAreNoLettersOfTheCodePage) {
  const std::string lines = std::string("Command2=\x81\x20\r\n") + kOthers;

  EXPECT_EQ(check(file_with_form4(lines)),
            Findings{"2 [Form4] Command2: has bytes that are no letters of code page 1252"});
}

TEST(LanguageCheck, TellsLettersOfUtf8ThatTheCodePageDoesNotHold) {
  const std::string lines = std::string("Command2=Закрыть\r\n") + kOthers;

  EXPECT_EQ(check(file_with_form4(lines)),
            Findings{"2 [Form4] Command2: has letters that code page 1252 does not hold"});
  EXPECT_EQ(check(file_with_form4(lines), 1251), Findings{});
}

// 13 letters of 9.9 pixels and more, where there is room for 100 pixels.
TEST(LanguageCheck, TellsATextThatIsTooLongForItsPlace) {
  const std::string lines = std::string("Command2=MMMMMMMMMMMMM\r\n") + kOthers;

  EXPECT_EQ(check(file_with_form4(lines)),
            Findings{"2 [Form4] Command2: takes about 134 pixels where there are 100"});
}

TEST(LanguageCheck, AnEmptyFileLacksEverySection) { EXPECT_EQ(check("").size(), 7U); }

TEST(TextWidth, OfWideLettersIsTwiceThatOfOthers) {
  EXPECT_EQ(estimated_width(""), 0);
  EXPECT_EQ(estimated_width("日本語"), 36);
  EXPECT_EQ(estimated_width("\xC3\xA4"), 7);
  EXPECT_GT(estimated_width("mmmm"), 2 * estimated_width("iiii"));
}

TEST(LanguageNames, HoldTheCode) {
  EXPECT_EQ(language_code_of("fernwick-de.lang"), "de");
  EXPECT_EQ(language_code_of("FERNWICK-PT-BR.LANG"), "pt-br");
  EXPECT_EQ(language_code_of("fernwick-.lang"), "");
  EXPECT_EQ(language_code_of("data.lang"), "");
}

TEST(LanguageNames, TheCatalogueTellsTheCharacterSetOfACode) {
  const auto catalogue = language_bytes("[lang]\nfernwick=English,0,en|Other,204,ru|Bare\n");

  EXPECT_EQ(catalogue_character_set(*catalogue, "fernwick", "RU"), 204);
  EXPECT_EQ(catalogue_character_set(*catalogue, "fernwick", "de"), std::nullopt);
  EXPECT_EQ(catalogue_character_set(*catalogue, "Tidewrack", "ru"), std::nullopt);
}

}  // namespace
}  // namespace quillvane
