// The language files that ship with the program.
#include "machine/data_files.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "lang/character_set.h"
#include "lang/language_check.h"
#include "lang/window_texts.h"
#include "platform/folder/host_code_page.h"
#include "support/program_name.h"
#include "support/text.h"

namespace quillvane {
namespace {

struct Language {
  const char* name;
  int character_set;
  const char* code;
  const char* start;  // the caption of the button that begins a scan
};

constexpr Language kLanguages[] = {
    {"English", 0, "en", "Start"},     {"Deutsch", 0, "de", "Starten"},
    {"Français", 0, "fr", "Démarrer"}, {"Español", 0, "es", "Iniciar"},
    {"Русский", 204, "ru", "Начать"},  {"العربية", 178, "ar", "بدء"},
    {"日本語", 128, "ja", "開始"},     {"简体中文", 134, "zh", "开始"},
};

std::optional<LanguageBytes> shipped(const std::string& name) {
  for (const DataFile& file : data_files()) {
    if (file.name == "lang\\" + name) return language_bytes(std::string(file.bytes));
  }
  return std::nullopt;
}

std::optional<LanguageBytes> texts_of(const Language& language) {
  return shipped("fernwick-" + std::string(language.code) + ".lang");
}

const CodePage& page_of(const Language& language) {
  return *host_code_page(text_page_of_set(language.character_set));
}

std::string text(const Language& language, std::string_view section, std::string_view key) {
  return page_of(language).decode(language_value(texts_of(language)->bytes, section, key));
}

TEST(ShippedLanguages, AreOfferedByTheCatalogueForBothWindows) {
  const auto catalogue = shipped("data.lang");
  ASSERT_TRUE(catalogue);
  for (const char* program : {"fernwick", "Tidewrack"}) {
    const auto entries = Split(language_value(catalogue->bytes, "lang", program), "|");
    ASSERT_EQ(entries.size(), std::size(kLanguages)) << program;
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const auto fields = Split(entries[i], ",");
      EXPECT_EQ(page_of(kLanguages[i]).decode(part(fields, 0)), kLanguages[i].name);
      EXPECT_EQ(part(fields, 1), std::to_string(kLanguages[i].character_set));
      EXPECT_EQ(part(fields, 2), kLanguages[i].code);
      EXPECT_EQ(fields.size(), 3U);
    }
  }
}

TEST(ShippedLanguages, HaveEveryTextInItsPlaceAndNoOther) {
  for (const Language& language : kLanguages) {
    SCOPED_TRACE(language.code);
    const auto file = texts_of(language);
    ASSERT_TRUE(file);
    for (const LanguageFinding& finding :
         check_language_file(*file, page_of(language), text_page_of_set(language.character_set))) {
      ADD_FAILURE() << finding.line << " [" << finding.section << "] " << finding.key << ": "
                    << finding.what;
    }
  }
}

TEST(ShippedLanguages, AreInTheCodePageOfTheirCharacterSet) {
  for (const Language& language : kLanguages) {
    const bool is_ascii = std::string_view(language.code) == "en";
    EXPECT_EQ(texts_of(language)->is_utf8, is_ascii) << language.code;
    EXPECT_EQ(text(language, "Form7", "cmd_start"), language.start);
  }
}

TEST(ShippedLanguages, NameProgramVersionAndAddressesAsTheyAre) {
  for (const Language& language : kLanguages) {
    SCOPED_TRACE(language.code);
    EXPECT_EQ(text(language, "frmabout", "Label2(0)"), kProgramName);
    EXPECT_NE(text(language, "frmabout", "Label2(1)").find(QUILLVANE_VERSION), std::string::npos);
    EXPECT_EQ(text(language, "frmabout", "Label2(2)"), kWebAddress);
    EXPECT_EQ(text(language, "frmabout", "Label2(3)"), kMailAddress);
  }
}

// Patterns, which a user types as they stand.
TEST(ShippedLanguages, KeepThePatternsOfTheExamples) {
  for (const Language& language : kLanguages) {
    EXPECT_TRUE(text(language, "Form5", "Label2(0)").ends_with("*.tmp,*.log")) << language.code;
    EXPECT_TRUE(text(language, "Form5", "Label2(1)").ends_with("*.exe,*.doc")) << language.code;
  }
}

}  // namespace
}  // namespace quillvane
