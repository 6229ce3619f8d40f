#include "view/win32/input_box.h"

#include <cstdint>
#include <vector>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

constexpr WORD kPromptId = 100;
constexpr WORD kLineId = 101;
constexpr WORD kButtonClass = 0x80;
constexpr WORD kEditClass = 0x81;
constexpr WORD kLabelClass = 0x82;
constexpr DWORD kPart = WS_CHILD | WS_VISIBLE;

// A dialog in memory, as Windows reads it: words, texts ended by a zero, each part at a multiple of
// four bytes. Places are in dialog units.
class DialogTemplate {
 public:
  DialogTemplate(const std::wstring& title, short width, short height, WORD parts) {
    number(DS_MODALFRAME | DS_SETFONT | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU);
    number(0);
    for (const WORD word : {parts, WORD{0}, WORD{0}}) words_.push_back(word);
    words_.push_back(static_cast<WORD>(width));
    words_.push_back(static_cast<WORD>(height));
    for (int empty = 0; empty < 2; ++empty) words_.push_back(0);  // no menu, the usual class
    text(title);
    words_.push_back(8);  // points
    text(L"MS Shell Dlg");
  }

  void add(WORD id, WORD window_class, DWORD style, const RECT& place,
           const std::wstring& caption) {
    if (words_.size() % 2 != 0) words_.push_back(0);
    number(kPart | style);
    number(0);
    for (const LONG unit :
         {place.left, place.top, place.right - place.left, place.bottom - place.top}) {
      words_.push_back(static_cast<WORD>(unit));
    }
    words_.push_back(id);
    words_.push_back(0xFFFF);  // a class by its number
    words_.push_back(window_class);
    text(caption);
    words_.push_back(0);  // nothing for its making
  }

  [[nodiscard]] const DLGTEMPLATE* get() const {
    return reinterpret_cast<const DLGTEMPLATE*>(words_.data());
  }

 private:
  void number(DWORD value) {
    words_.push_back(LOWORD(value));
    words_.push_back(HIWORD(value));
  }
  void text(const std::wstring& letters) {
    for (const wchar_t letter : letters) words_.push_back(static_cast<WORD>(letter));
    words_.push_back(0);
  }

  std::vector<WORD> words_;
};

struct Question {
  const std::wstring& preset;
  std::wstring answer;
};

std::wstring text_of_line(HWND dialog) {
  const HWND line = GetDlgItem(dialog, kLineId);
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(line)) + 1, L'\0');
  const int length = GetWindowTextW(line, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

INT_PTR CALLBACK run_dialog(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(dialog, GWLP_USERDATA, lparam);
    const auto* question = reinterpret_cast<const Question*>(lparam);
    SetDlgItemTextW(dialog, kLineId, question->preset.c_str());
    SendDlgItemMessageW(dialog, kLineId, EM_SETSEL, 0, -1);
    SetFocus(GetDlgItem(dialog, kLineId));
    return FALSE;  // the focus stands where it was put
  }
  if (message != WM_COMMAND) return FALSE;
  const WORD id = LOWORD(wparam);
  if (id != IDOK && id != IDCANCEL) return FALSE;
  auto* question = reinterpret_cast<Question*>(GetWindowLongPtrW(dialog, GWLP_USERDATA));
  if (id == IDOK && question != nullptr) question->answer = text_of_line(dialog);
  EndDialog(dialog, id);
  return TRUE;
}

}  // namespace

std::string ask_for_text(HWND owner, const std::wstring& prompt, const std::wstring& title,
                         const std::wstring& preset) {
  DialogTemplate dialog(title, 220, 66, 4);
  dialog.add(kPromptId, kLabelClass, SS_LEFT, {7, 7, 213, 17}, prompt);
  dialog.add(kLineId, kEditClass, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, {7, 20, 213, 34}, L"");
  dialog.add(IDOK, kButtonClass, BS_DEFPUSHBUTTON | WS_TABSTOP, {109, 44, 159, 58}, L"OK");
  dialog.add(IDCANCEL, kButtonClass, BS_PUSHBUTTON | WS_TABSTOP, {163, 44, 213, 58}, L"Cancel");
  Question question{preset, {}};
  DialogBoxIndirectParamW(GetModuleHandleW(nullptr), dialog.get(), owner, run_dialog,
                          reinterpret_cast<LPARAM>(&question));
  return narrow(question.answer);
}

}  // namespace quillvane
