#include "view/win32/input_box.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace quillvane {
namespace {

constexpr WORD kEditId = 101;

std::wstring typed_text;
WORD pressed_button = IDOK;

// Types and presses as soon as the window's parts are made: what is posted waits until it is shown.
LRESULT CALLBACK act_on_parts(int code, WPARAM window, LPARAM creation) {
  if (code == HCBT_CREATEWND) {
    const CREATESTRUCTW& part = *reinterpret_cast<CBT_CREATEWNDW*>(creation)->lpcs;
    const auto id = reinterpret_cast<UINT_PTR>(part.hMenu);
    if (part.hwndParent != nullptr && id == kEditId) {
      for (const wchar_t letter : typed_text) {
        PostMessageW(reinterpret_cast<HWND>(window), WM_CHAR, letter, 0);
      }
    }
    if (part.hwndParent != nullptr && id == pressed_button) {
      PostMessageW(part.hwndParent, WM_COMMAND, pressed_button, 0);
    }
  }
  return CallNextHookEx(nullptr, code, window, creation);
}

// What the box answers when this is typed and that button is pressed.
std::string answer_to(const std::wstring& typed, WORD button, const std::wstring& preset) {
  typed_text = typed;
  pressed_button = button;
  const HHOOK hook = SetWindowsHookExW(WH_CBT, act_on_parts, nullptr, GetCurrentThreadId());
  EXPECT_NE(hook, nullptr);
  std::string answer = ask_for_text(nullptr, L"Enter Description", L"Option", preset);
  UnhookWindowsHookEx(hook);
  return answer;
}

TEST(InputBox, AnswersWhatItBeganWith) {
  EXPECT_EQ(answer_to(L"", IDOK, L"Gr\u00F6\u00DFe"), "Gr\u00F6\u00DFe");
}

TEST(InputBox, AnswersWhatIsTypedInItsPlace) { EXPECT_EQ(answer_to(L"new", IDOK, L"old"), "new"); }

TEST(InputBox, AnswersNothingWhenItIsCancelled) {
  EXPECT_EQ(answer_to(L"new", IDCANCEL, L"old"), "");
}

}  // namespace
}  // namespace quillvane
