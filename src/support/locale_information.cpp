#include "support/locale_information.h"

#include <cstddef>

#include "platform/unicode_case.h"
#include "platform/utf8.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::size_t kMostSettingLetters = 98;
constexpr std::size_t kFolderBuffer = 144;  // with the character that ends the path

}  // namespace

std::string GetInfomation::setting(int type) const {
  std::string text = platform_.locale.text(type).value_or(std::string());
  std::size_t end = 0;
  for (std::size_t letters = 0; end < text.size() && letters < kMostSettingLetters; ++letters) {
    end += decode_utf8(text, end).length;
  }
  text.resize(end);
  return text;
}

std::string GetInfomation::variable(const char* name) const {
  return platform_.environment.get(name);
}

std::string GetInfomation::SystemDir() const {
  const std::string folder = platform_.system.system_folder();
  if (utf16_length(folder) >= kFolderBuffer) return {};
  return std::string(Trim(folder));
}

}  // namespace quillvane
