#include "lang/language_panel.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

constexpr const char* kChoice = "SOFTWARE\\Quillvane\\Tidewrack\\fernwick";

struct Stage : ScanFixture {
  using ScanFixture::ScanFixture;

  Form7& start_with(std::string_view catalogue) {
    add_program_file("lang\\data.lang", catalogue);
    return start();
  }
  [[nodiscard]] std::optional<std::string> stored(const char* name) {
    return machine.registry_text(Hive::kLocalMachine, kChoice, name);
  }
};

// English, German (its second byte is a u with dots in 1252), Russian, Arabic.
constexpr const char* kCatalogue =
    "[lang]\r\nfernwick=English,0,en|T\xFCrk,162,tr|\xD0\xF3\xF1,204,ru|\xC7\xC8,178,ar\r\n"
    "Tidewrack=English,0,en\r\n";

Texts captions(LanguagePanel& panel) {
  Texts texts;
  for (int i = 0; i < panel.language_count(); ++i) texts.push_back(panel.language(i)->caption());
  return texts;
}

TEST(LanguagePanel, WithoutACatalogueOffersEnglishAlone) {
  Stage stage;
  Form7& form = stage.start();

  EXPECT_EQ(captions(form), Texts{"English"});
  EXPECT_EQ(form.lbllanguage_0.font()->name, "Arial Unicode MS");
}

TEST(LanguagePanel, HasALabelForEachEntryOfTheCatalogue) {
  Stage stage;
  Form7& form = stage.start_with(kCatalogue);

  EXPECT_EQ(captions(form), (Texts{"English", "Türk", "Рус", "اب"}));
  const Label& russian = *form.language(2);
  EXPECT_EQ(russian.name(), "lbllanguage(2)");
  EXPECT_EQ(form.find("lbllanguage(2)"), &russian);
  EXPECT_EQ(russian.tag(), "ru");
  EXPECT_EQ(russian.font(), (Font{"Arial Unicode MS", 10, 204}));
  EXPECT_TRUE(russian.visible());
  EXPECT_EQ(form.language(4), nullptr);
  EXPECT_EQ(form.language(-1), nullptr);
}

TEST(LanguagePanel, EachLabelStandsBelowTheOneBeforeIt) {
  Stage stage;
  Form7& form = stage.start_with(kCatalogue);

  for (int i = 1; i < 4; ++i) {
    EXPECT_EQ(form.language(i)->top(),
              form.language(i - 1)->top() + form.language(i - 1)->height());
    EXPECT_GT(form.language(i)->height(), 0);
  }
  EXPECT_EQ(form.pictrlang.height(), form.language(3)->top() + form.language(3)->height() + 100);
}

TEST(LanguagePanel, ACatalogueInUtf8IsReadToo) {
  Stage stage;
  Form7& form = stage.start_with("[lang]\nfernwick=Русский,204,ru|日本語,128,ja\n");

  EXPECT_EQ(captions(form), (Texts{"Русский", "日本語"}));
}

TEST(LanguagePanel, AnEmptyCatalogueLeavesALabelWithoutACaption) {
  Stage stage;
  Form7& form = stage.start_with("[lang]\r\nfernwick=\r\n");

  EXPECT_EQ(captions(form), Texts{""});
  EXPECT_EQ(form.lbllanguage_0.tag(), "");
}

TEST(LanguagePanel, ACharacterSetThatIsNoNumberFailsAlone) {
  Stage stage;
  Form7& form = stage.start_with("[lang]\r\nfernwick=English,0,en|Other,abc,oo|Bare\r\n");

  EXPECT_EQ(captions(form), (Texts{"English", "Other", "Bare"}));
  EXPECT_EQ(form.language(1)->tag(), "oo");
  EXPECT_EQ(form.language(1)->font()->character_set, 0);
  EXPECT_EQ(form.language(2)->tag(), "");
}

TEST(LanguagePanel, AChoiceIsStored) {
  Stage stage;
  Form7& form = stage.start_with(kCatalogue);

  form.turn_over();
  form.language(2)->click();

  EXPECT_EQ(stage.stored("langcode"), "204");
  EXPECT_EQ(stage.stored("lang"), "ru");
  EXPECT_EQ(stage.stored("langindex"), "2");
  EXPECT_EQ(stage.program->session.langcode, 204);
  EXPECT_EQ(stage.program->session.lang, "ru");
  EXPECT_EQ(stage.program->session.langindex, 2);
  EXPECT_EQ(stage.program->session.langfile, "fernwick-ru.lang");
  EXPECT_FALSE(form.pictrlang.visible());
  EXPECT_EQ(form.language(2)->back_color(), 0xFFFFFFU);
  EXPECT_EQ(form.language(2)->fore_color(), 0U);
  EXPECT_EQ(form.imglangselect.top(), form.language(2)->top());
}

TEST(LanguagePanel, AChoiceIsAppliedAtOnce) {
  Stage stage;
  stage.add_program_file("lang\\fernwick-ru.lang", "[Form7]\r\ncmd_start=\xCF\xF3\xF1\xEA\r\n");
  Form7& form = stage.start_with(kCatalogue);

  form.language(2)->click();

  EXPECT_EQ(form.cmd_start.caption(), "Пуск");
}

TEST(LanguagePanel, TheMarkStandsAtTheChosenLanguageWhenTheProgramStarts) {
  Stage stage;
  stage.machine.set_registry_text(Hive::kLocalMachine, kChoice, "langindex", "3");
  Form7& form = stage.start_with(kCatalogue);

  EXPECT_EQ(form.imglangselect.top(), form.language(3)->top());
  EXPECT_GT(form.imglangselect.top(), form.language(0)->top());
}

TEST(LanguagePanel, AnIndexBeyondTheCatalogueLeavesTheMarkAtTheFirst) {
  Stage stage;
  stage.machine.set_registry_text(Hive::kLocalMachine, kChoice, "langindex", "12");
  Form7& form = stage.start_with(kCatalogue);

  EXPECT_EQ(form.imglangselect.top(), form.lbllanguage_0.top());
}

TEST(LanguagePanel, MenusAreDrawnByTheProgramWhereTheSystemHasAnotherScript) {
  Stage stage(R"({"codePage": 1251})");
  Form7& form = stage.start_with(kCatalogue);
  std::vector<bool> drawn;
  form.renew_menus = [&](bool by_program) { drawn.push_back(by_program); };

  form.language(2)->click();
  form.language(3)->click();
  form.language(0)->click();

  EXPECT_EQ(drawn, (std::vector<bool>{false, true, true}));
}

TEST(LanguagePanel, TheLabelUnderTheMouseIsLitUntilTheMouseLeavesIt) {
  Stage stage;
  Form7& form = stage.start_with(kCatalogue);

  form.mouse_over(1);
  EXPECT_EQ(form.language(1)->back_color(), 15126960U);

  form.language(0)->set_fore_color(255);
  form.mouse_over_panel();
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(form.language(i)->back_color(), 0x80000005U);
    EXPECT_EQ(form.language(i)->fore_color(), 0U);
  }
  form.mouse_over(9);
}

}  // namespace
}  // namespace quillvane
