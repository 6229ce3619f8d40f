// The windows in other languages: chosen in the panel, and as they look.
#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>

#include "platform/win32/wide_text.h"
#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/program_on_screen.h"

namespace quillvane {
namespace {

constexpr const wchar_t* kChoice = L"SOFTWARE\\Quillvane\\Tidewrack\\fernwick";

void store(const wchar_t* name, const std::string& text) {
  const std::wstring wide = widen(text);
  EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kChoice, name, REG_SZ, wide.c_str(),
                            static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t))),
            ERROR_SUCCESS);
}

// Captions of the buttons that open the small windows, and the titles of these.
struct Language {
  const char* name;
  const char* code;
  int character_set;
  int index;
  const char* start;
  const char* ignore_button;
  const char* ignore_title;
  const char* custom_button;
  const char* custom_title;
  const char* new_button;
  const char* entry_label;  // of the window of one entry
  const char* about_title;
};

constexpr Language kGerman = {"german",    "de",           0,
                              1,           "Starten",      "Ausnahmen",
                              "Ausnahmen", "Eigene Suche", "Benutzerdefinierte Suche",
                              "Neu",       "Einschließen", "Info"};
constexpr Language kArabic = {"arabic",
                              "ar",
                              178,
                              5,
                              "بدء",
                              "قائمة التجاهل",
                              "قائمة التجاهل",
                              "بحث مخصص",
                              "بحث مخصص عن الملفات",
                              "جديد",
                              "تضمين",
                              "حول"};

class LanguagesOnScreen : public testing::Test {
 protected:
  ~LanguagesOnScreen() override {
    program_ = nullptr;
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, kChoice);
  }

  void start() { program_ = std::make_unique<ProgramOnScreen>(); }

  [[nodiscard]] HWND await_form(const char* title) const {
    HWND form = nullptr;
    EXPECT_TRUE(eventually(title, [&] { return (form = program_->form(title)) != nullptr; }));
    return form;
  }
  void close(HWND form) const {
    press_keys("Escape");
    ASSERT_TRUE(eventually("the end of the window", [form] { return IsWindow(form) == 0; }));
  }
  [[nodiscard]] std::string picture(const char* window, const Language& language) const {
    return std::string(window) + "-" + language.name;
  }

  void look_at_windows_in(const Language& language) {
    store(L"lang", language.code);
    store(L"langcode", std::to_string(language.character_set));
    store(L"langindex", std::to_string(language.index));
    start();
    EXPECT_NE(program_->control(language.start), nullptr);
    EXPECT_EQ(program_->nodes()[1].text, "System Temporary") << "the tree stays English";
    keep_picture(picture("window", language), program_->area());

    program_->click(language.ignore_button);
    const HWND ignored = await_form(language.ignore_title);
    keep_picture(picture("ignore-list", language), area_of(ignored));
    close(ignored);

    program_->click("About");
    const HWND about = await_form(language.about_title);
    keep_picture(picture("about", language), area_of(about));
    close(about);

    program_->click(language.custom_button);
    const HWND list = await_form(language.custom_title);
    keep_picture(picture("custom-list", language), area_of(list));
    click_in(list, language.new_button);
    HWND entry = nullptr;
    ASSERT_TRUE(eventually("the window of an entry", [&] {
      entry = GetForegroundWindow();
      return entry != list && control_in(entry, language.entry_label) != nullptr;
    }));
    keep_picture(picture("custom-entry", language), area_of(entry));
    close(entry);
    close(list);
  }

  std::unique_ptr<ProgramOnScreen> program_;
};

TEST_F(LanguagesOnScreen, TheWindowsAreInGerman) { look_at_windows_in(kGerman); }

TEST_F(LanguagesOnScreen, TheWindowsAreInArabicAndNotMirrored) {
  look_at_windows_in(kArabic);

  const RECT start = area_of(program_->control(kArabic.start));
  const RECT custom = area_of(program_->control(kArabic.custom_button));
  EXPECT_LT(start.left, custom.left);
}

TEST_F(LanguagesOnScreen, AChoiceInThePanelChangesTheWindowAtOnce) {
  start();
  const HWND languages = program_->control("Languages");
  ASSERT_NE(languages, nullptr);

  program_->click("Language");
  ASSERT_TRUE(eventually("the panel", [&] { return IsWindowVisible(languages) != 0; }));
  EXPECT_EQ(SendMessageW(languages, LB_GETCOUNT, 0, 0), 8);
  keep_picture("window-languages", program_->area());
  const RECT panel = area_of(languages);
  const int height = static_cast<int>(SendMessageW(languages, LB_GETITEMHEIGHT, 0, 0));
  click_at({panel.left + 60, panel.top + 1 + height + height / 2});  // the second

  ASSERT_TRUE(eventually("German", [&] { return program_->control("Starten") != nullptr; }));
  ASSERT_TRUE(eventually("no panel", [&] { return IsWindowVisible(languages) == 0; }));
}

TEST_F(LanguagesOnScreen, ThePanelIsWorkedByKeys) {
  start();
  const HWND languages = program_->control("Languages");
  program_->click("Language");
  ASSERT_TRUE(eventually("the panel", [&] { return IsWindowVisible(languages) != 0; }));

  press_keys("Escape");
  ASSERT_TRUE(eventually("no panel", [&] { return IsWindowVisible(languages) == 0; }));
  program_->click("Language");
  ASSERT_TRUE(eventually("the panel", [&] { return IsWindowVisible(languages) != 0; }));
  press_keys("Down");
  press_keys("Down");
  press_keys("Return");

  ASSERT_TRUE(eventually("French", [&] { return program_->control("Démarrer") != nullptr; }));
}

}  // namespace
}  // namespace quillvane
