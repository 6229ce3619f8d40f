// Whether the texts of the languages that ship fit their places, measured in the fonts of this
// Windows at 100 percent.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "dialogs/about_window.h"
#include "dialogs/custom_dialog.h"
#include "dialogs/custom_entry_dialog.h"
#include "dialogs/ignore_dialog.h"
#include "lang/change_language.h"
#include "machine/data_files.h"
#include "platform/win32/wide_text.h"
#include "tests/support/scan_fixture.h"
#include "view/win32/form_window.h"
#include "view/win32/look/layouts.h"
#include "view/win32/screen.h"

namespace quillvane {
namespace {

struct Language {
  const char* code;
  int character_set;
  const wchar_t* letters;  // of its script

  // For the messages of tests.
  friend void PrintTo(const Language& language, std::ostream* out) { *out << language.code; }
};

constexpr Language kLanguages[] = {
    {"en", 0, L"Az"},
    {"de", 0, L"\u00C4\u00DF"},
    {"fr", 0, L"\u00C9\u00E0"},
    {"es", 0, L"\u00D1\u00F3"},
    {"ru", 204, L"\u041F\u044F"},
    {"ar", 178, L"\u0628\u0621"},
    {"ja", 128, L"\u958B\u30AD"},
    {"zh", 134, L"\u5F00\u7406"},
};

class LanguagesFit : public testing::TestWithParam<Language> {
 protected:
  LanguagesFit() {
    INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
    for (const DataFile& file : data_files()) {
      fixture_.add_program_file(std::string(file.name), file.bytes);
    }
    fixture_.machine.set_registry_text(Hive::kLocalMachine, kLanguageKey, "lang", GetParam().code);
    fixture_.machine.set_registry_text(Hive::kLocalMachine, kLanguageKey, "langcode",
                                       std::to_string(GetParam().character_set));
    main_ = &fixture_.start();
  }

  void SetUp() override {
    const FontOwner font = make_font({"Segoe UI", 9, GetParam().character_set}, FW_NORMAL, 96);
    const HDC dc = GetDC(nullptr);
    WORD glyphs[2] = {0xFFFF, 0xFFFF};
    {
      const Selected selected(dc, font.get());
      GetGlyphIndicesW(dc, GetParam().letters, 2, glyphs, GGI_MARK_NONEXISTING_GLYPHS);
    }
    ReleaseDC(nullptr, dc);
    if (std::find(std::begin(glyphs), std::end(glyphs), 0xFFFF) != std::end(glyphs)) {
      GTEST_SKIP() << "no font on this computer has the letters of " << GetParam().code;
    }
  }

  // Shows the window and looks at all its texts.
  void expect_fits(Window& model) {
    const WindowLayout& layout = *find_layout(model.name());
    const FormWindow window(model, layout, nullptr, [] { return false; });
    MoveWindow(window.window(), 0, 0, layout.width, layout.height, TRUE);
    unseen_.clear();
    for (const ControlPlace& place : layout.controls) unseen_.insert(widen(place.accessible_name));
    // Notes among them, which are painted in as many lines as they take.
    for (const PageGrid& page : layout.page_set.pages) {
      for (const ControlPlace& place : page.controls) unseen_.insert(widen(place.accessible_name));
    }
    texts_ = 0;
    EnumChildWindows(window.window(), look_at, reinterpret_cast<LPARAM>(this));
    EXPECT_GE(texts_, 5) << model.name();
  }

  static BOOL CALLBACK look_at(HWND control, LPARAM test) {
    auto& self = *reinterpret_cast<LanguagesFit*>(test);
    wchar_t kind[40] = L"";
    GetClassNameW(control, kind, 40);
    const std::wstring name = kind;
    if (name == WC_HEADERW) self.look_at_columns(control);
    if (name == WC_BUTTONW || name == WC_STATICW) self.look_at_text(control, name == WC_BUTTONW);
    return TRUE;
  }

  void look_at_text(HWND control, bool is_button) {
    wchar_t text[300] = L"";
    GetWindowTextW(control, text, 300);
    RECT area{};
    GetClientRect(control, &area);
    if (text[0] == L'\0' || unseen_.contains(text)) return;
    expect_room(control, text, static_cast<int>(area.right) - (is_button ? kBesideCaption : 0));
  }

  void look_at_columns(HWND header) {
    const auto count = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
      wchar_t text[300] = L"";
      HDITEMW item{};
      item.mask = HDI_TEXT | HDI_WIDTH;
      item.pszText = text;
      item.cchTextMax = 300;
      SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
      expect_room(header, text, item.cxy - kBesideColumn);
    }
  }

  void expect_room(HWND control, const wchar_t* text, int room) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    EXPECT_NE(font, nullptr) << narrow(text);
    EXPECT_LE(text_width(font, text), room) << narrow(text);
    ++texts_;
  }

  static constexpr int kBesideCaption = 8;
  static constexpr int kBesideColumn = 12;

  const PictureLibrary library_;
  ScanFixture fixture_;
  Form7* main_ = nullptr;
  std::set<std::wstring> unseen_;  // what only a screen reader says of a control
  int texts_ = 0;
};

INSTANTIATE_TEST_SUITE_P(ThatShip, LanguagesFit, testing::ValuesIn(kLanguages),
                         [](const auto& language) { return std::string(language.param.code); });

TEST_P(LanguagesFit, InTheMainWindow) { expect_fits(*main_); }

TEST_P(LanguagesFit, InTheSmallWindows) {
  Session& session = fixture_.program->session;
  Form1 ignored(session, main_->Text14);
  Form2 list(session, fixture_.program->windows, main_->Text14);
  Form5 entry(session, list, main_->Text14);
  frmabout about(session);
  ignored.load();
  list.load();
  entry.load();
  about.load();

  expect_fits(ignored);
  expect_fits(list);
  expect_fits(entry);
  expect_fits(about);
}

}  // namespace
}  // namespace quillvane
