#include "platform/win32/win32_code_page.h"

#include <windows.h>

#include <iterator>

namespace quillvane {

namespace {

CodePage::AskHost open_code_page(int number) {
  const auto page = static_cast<UINT>(number);
  if (!IsValidCodePage(page)) return {};
  return [page](std::string_view bytes) -> std::optional<char16_t> {
    wchar_t units[4];
    const int count = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(),
                                          static_cast<int>(bytes.size()), units, std::size(units));
    return count == 1 ? std::optional<char16_t>(units[0]) : std::nullopt;
  };
}

}  // namespace

const CodePage* win32_code_page(int number) {
  static KnownCodePages pages(open_code_page);
  return pages.find(number);
}

}  // namespace quillvane
