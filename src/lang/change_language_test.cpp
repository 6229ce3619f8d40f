#include "lang/change_language.h"

#include <gtest/gtest.h>

#include <string>

#include "dialogs/about_window.h"
#include "dialogs/custom_dialog.h"
#include "dialogs/custom_entry_dialog.h"
#include "dialogs/ignore_dialog.h"
#include "dialogs/type_dialog.h"
#include "lang/window_texts.h"
#include "shortcuts/form3.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

constexpr const char* kChoice = "SOFTWARE\\Quillvane\\Tidewrack\\fernwick";
constexpr const char* kFontKey = "SOFTWARE\\Quillvane\\Tidewrack";

struct Stage : ScanFixture {
  using ScanFixture::ScanFixture;

  void choose(const std::string& code, const std::string& character_set = "0") {
    machine.set_registry_text(Hive::kLocalMachine, kChoice, "lang", code);
    machine.set_registry_text(Hive::kLocalMachine, kChoice, "langcode", character_set);
  }
  // A file in which the text of each key is the key itself between angle brackets.
  void add_full_file(const std::string& code) {
    std::string text;
    for (const WindowTexts& window : window_texts()) {
      text += "[" + std::string(window.window) + "]\r\n";
      for (const auto& [key, room, rule] : window.keys) {
        text += std::string(key) + "=<" + std::string(key) + ">\r\n";
      }
    }
    add_program_file("lang\\fernwick-" + code + ".lang", text);
  }
};

std::string shown_text(const Window& window, std::string_view key) {
  const TextPlace place = text_place(key);
  const Control* control = window.find(place.control);
  if (const auto* list = dynamic_cast<const ListView*>(control)) {
    return list->columns().at(static_cast<std::size_t>(place.column) - 1);
  }
  if (const auto* box = dynamic_cast<const TextBox*>(control)) return box->text();
  const auto* clickable = dynamic_cast<const Clickable*>(control);
  return clickable != nullptr ? clickable->caption() : "nothing to show it";
}

// That each key of the window's table that names one of its controls has set that control's text.
// Answers how many did.
int expect_all_texts(const Window& window) {
  int set = 0;
  for (const auto& [key, room, rule] : texts_of_window(window.name())->keys) {
    if (window.find(text_place(key).control) == nullptr) continue;
    EXPECT_EQ(shown_text(window, key), "<" + std::string(key) + ">");
    ++set;
  }
  return set;
}

TEST(ChangeLanguage, SetsEachTextOfTheMainWindowThatItsTableNames) {
  Stage stage;
  stage.choose("xx");
  stage.add_full_file("xx");
  Form7& form = stage.start();

  EXPECT_GE(expect_all_texts(form), 40);
  EXPECT_EQ(form.cmd_start.caption(), "<cmd_start>");
  EXPECT_EQ(form.b8.caption(), "<b8>");
  EXPECT_EQ(form.view1.columns()[1], "<View1.ColumnHeaders.Item(2)>");
}

TEST(ChangeLanguage, SetsTheTextsOfTheSmallWindowsWhenTheyOpen) {
  Stage stage;
  stage.choose("xx");
  stage.add_full_file("xx");
  TextBox& mail = stage.start().Text14;
  Session& session = stage.program->session;
  Form1 ignored(session, mail);
  Form2 list(session, stage.program->windows, mail);
  Form5 entry(session, list, mail);
  Form7& form = stage.program->main_window();
  Form4 type(session, form.View101, mail, form.view1);
  frmabout about(session);

  type.load();
  ignored.load();
  list.load();
  entry.load();
  about.load();

  EXPECT_EQ(expect_all_texts(type), 4);
  EXPECT_EQ(expect_all_texts(ignored), 6);
  EXPECT_EQ(expect_all_texts(list), 8);
  EXPECT_EQ(expect_all_texts(entry), 12);
  EXPECT_EQ(expect_all_texts(about), 5);
}

TEST(ChangeLanguage, SetsEachTextOfTheShortcutWindow) {
  Stage stage;
  stage.choose("xx", "204");
  stage.add_full_file("xx");
  stage.start();
  Form3& form = stage.program->load_shortcut_window();

  EXPECT_EQ(expect_all_texts(form), 31);
  EXPECT_EQ(form.cmd_where.font(), (Font{"Segoe UI", 9, 204}));
}

TEST(ChangeLanguage, TheShortcutWindowOffersTheLanguagesOfItsOwnCatalogueEntry) {
  Stage stage;
  stage.add_full_file("oo");
  stage.add_program_file("lang\\data.lang",
                         "[lang]\r\nfernwick=A,0,aa\r\nTidewrack=B,0,bb|O,0,oo\r\n");
  stage.start();
  Form3& form = stage.program->load_shortcut_window();
  EXPECT_EQ(form.language_count(), 2);

  form.chameleonButton13.click();
  EXPECT_TRUE(form.pictrlang.visible());
  form.language(1)->click();

  EXPECT_FALSE(form.pictrlang.visible());
  EXPECT_EQ(form.cmd_fix.caption(), "<cmd_fix>");
}

TEST(ChangeLanguage, LeavesTreeStatusAndMessagesEnglish) {
  Stage stage;
  stage.choose("xx");
  stage.add_full_file("xx");
  stage.machine.add_file("C:\\Windows\\Temp\\a.tmp", 120);
  Form7& form = stage.start();

  form.cmd_start.click();
  stage.machine.dialogs().answer(Answer::kNo);
  form.cmd_clean.click();

  EXPECT_EQ(form.Tv1.node(2).text, "System Temporary ( 1 files, 120 B )");
  EXPECT_EQ(form.Label11.caption().substr(0, 18), "Junk files found :");
  const auto boxes = stage.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text.substr(0, 12), "Are You sure");
}

TEST(ChangeLanguage, AKeyThatTheFileLacksBlanksItsText) {
  Stage stage;
  stage.choose("xx");
  stage.add_program_file("lang\\fernwick-xx.lang", "[Form7]\r\ncmd_clean=Putzen\r\n");
  const Form7& form = stage.start();

  EXPECT_EQ(form.cmd_start.caption(), "");
  EXPECT_EQ(form.cmd_clean.caption(), "Putzen");
  EXPECT_EQ(form.view5.columns()[0], "");
}

TEST(ChangeLanguage, WithoutAChoiceTheWindowStaysAsDesigned) {
  Stage stage;
  stage.add_full_file("xx");
  const Form7& form = stage.start();

  EXPECT_EQ(form.cmd_start.caption(), "Start");
  EXPECT_FALSE(form.cmd_start.font());
  EXPECT_EQ(stage.program->session.langfile, "fernwick-.lang");
}

TEST(ChangeLanguage, AMissingFileKeepsTheTextsOfBefore) {
  Stage stage;
  stage.choose("xx");
  stage.add_full_file("xx");
  const Form7& form = stage.start();
  stage.choose("yy");
  changelangorv(stage.program->session, form);

  EXPECT_EQ(form.cmd_start.caption(), "<cmd_start>");
  EXPECT_EQ(stage.program->session.lang, "yy");
}

TEST(ChangeLanguage, ChosenFileInOddShapeCountsAsMissing) {
  Stage stage;
  stage.choose("xx");
  stage.add_program_file("lang\\fernwick-xx.lang",
                         std::string_view("[Form7]\r\ncmd_start=A\0", 22));
  const Form7& form = stage.start();

  EXPECT_EQ(form.cmd_start.caption(), "Start");
}

TEST(ChangeLanguage, ItsFontGoesToTheControlsOfTheMainWindowsList) {
  Stage stage;
  stage.choose("xx", "178");
  stage.add_full_file("xx");
  const Form7& form = stage.start();
  const Font font{"Segoe UI", 9, 178};

  EXPECT_EQ(form.cmd_start.font(), font);
  EXPECT_EQ(form.view5.font(), font);
  EXPECT_EQ(form.cmd_report.font(), font);
  EXPECT_EQ(form.View101.font(), font);
  EXPECT_FALSE(form.b1.font()) << "menus are not in the list";
  EXPECT_FALSE(form.Tv1.font());
}

TEST(ChangeLanguage, ItsFontIsTheOneThatTheSuiteNames) {
  Stage stage;
  stage.choose("xx", "128");
  stage.machine.set_registry_text(Hive::kLocalMachine, kFontKey, "font name", "Meiryo UI");
  stage.machine.set_registry_text(Hive::kLocalMachine, kFontKey, "font size", "10");
  stage.add_full_file("xx");
  const Form7& form = stage.start();

  EXPECT_EQ(form.cmd_all.font(), (Font{"Meiryo UI", 10, 128}));
}

TEST(ChangeLanguage, AFontSizeThatIsNoneIsTheUsualOne) {
  Stage stage;
  stage.choose("xx");
  stage.machine.set_registry_text(Hive::kLocalMachine, kFontKey, "font size", "large");
  stage.add_full_file("xx");
  const Form7& form = stage.start();

  EXPECT_EQ(form.cmd_all.font(), (Font{"Segoe UI", 9, 0}));
}

TEST(ChangeLanguage, SmallWindowsGiveTheFontToWhatTheirKeysName) {
  Stage stage;
  stage.choose("xx", "204");
  stage.add_full_file("xx");
  stage.start();
  frmabout about(stage.program->session);
  about.load();

  EXPECT_EQ(about.Label2_0.font(), (Font{"Segoe UI", 9, 204}));
  EXPECT_FALSE(about.Label6.font());
}

TEST(ChangeLanguage, TextIsInItsScriptWhateverTheSystemsCodePage) {
  Stage stage;
  stage.choose("ar", "178");
  stage.add_program_file("lang\\fernwick-ar.lang", "[Form7]\r\ncmd_start=\xC8\xCF\xC1\r\n");
  const Form7& form = stage.start();

  EXPECT_EQ(form.cmd_start.caption(), "بدء");
}

TEST(ChangeLanguage, NumbersThatAreNoneReadAsZero) {
  Stage stage;
  stage.choose("xx", "many");
  stage.machine.set_registry_text(Hive::kLocalMachine, kChoice, "langindex", "99999999999");
  stage.start();

  EXPECT_EQ(stage.program->session.langcode, 0);
  EXPECT_EQ(stage.program->session.langindex, 0);
}

// What a change in the main window leaves to the others: they read it when they open.
TEST(ChangeLanguage, AWindowThatOpensLaterHasTheLanguageOfThen) {
  Stage stage;
  stage.add_full_file("xx");
  TextBox& mail = stage.start().Text14;
  Form1 before(stage.program->session, mail);
  before.load();
  stage.choose("xx");
  Form1 after(stage.program->session, mail);
  after.load();

  EXPECT_EQ(before.Command3.caption(), "Add");
  EXPECT_EQ(after.Command3.caption(), "<Command3>");
}

TEST(WindowTexts, AKeyNamesAControlOrAColumnOfAList) {
  EXPECT_EQ(text_place("Label8(6)").control, "Label8(6)");
  EXPECT_EQ(text_place("Label8(6)").column, 0);
  EXPECT_EQ(text_place("View2.ColumnHeaders.Item(4)").control, "View2");
  EXPECT_EQ(text_place("View2.ColumnHeaders.Item(4)").column, 4);
  EXPECT_EQ(texts_of_window("FORM7"), texts_of_window("Form7"));
  EXPECT_EQ(texts_of_window("Form9"), nullptr);
}

}  // namespace
}  // namespace quillvane
