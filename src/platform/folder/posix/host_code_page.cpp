#include "platform/folder/host_code_page.h"

#include <iconv.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace quillvane {

namespace {

// What Windows has and the library's tables leave out.
struct Addition {
  int page;
  unsigned char byte;
  char16_t unit;
};
constexpr Addition kAdditions[] = {
    {1255, 0xCA, 0x05BA},  // the point "holam haser for vav"
};

class Converter {
 public:
  explicit Converter(int page)
      : handle_(iconv_open("UTF-16LE", ("CP" + std::to_string(page)).c_str())) {}
  ~Converter() {
    if (is_open()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // POSIX' own word for a failed opening is -1 as a pointer.
  [[nodiscard]] bool is_open() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

  [[nodiscard]] std::optional<char16_t> unit_of(std::string_view bytes) const {
    std::array<char, 2> in{};
    bytes.copy(in.data(), in.size());
    std::array<char, 8> out{};
    char* from = in.data();
    char* to = out.data();
    std::size_t left = bytes.size();
    std::size_t room = out.size();
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    const std::size_t failed = iconv(handle_, &from, &left, &to, &room);
    // Some pages hold a letter back until they know that no accent follows.
    const std::size_t unfinished = iconv(handle_, nullptr, nullptr, &to, &room);
    if (failed != 0 || unfinished != 0 || left != 0 || out.size() - room != 2) return std::nullopt;
    return static_cast<char16_t>(static_cast<unsigned char>(out[0]) |
                                 static_cast<unsigned char>(out[1]) << 8U);
  }

 private:
  iconv_t handle_;
};

CodePage::AskHost open_code_page(int number) {
  const auto converter = std::make_shared<const Converter>(number);
  if (!converter->is_open()) return {};
  return [converter, number](std::string_view bytes) -> std::optional<char16_t> {
    for (const Addition& addition : kAdditions) {
      const bool is_it = bytes.size() == 1 && static_cast<unsigned char>(bytes[0]) == addition.byte;
      if (addition.page == number && is_it) return addition.unit;
    }
    return converter->unit_of(bytes);
  };
}

}  // namespace

const CodePage* host_code_page(int number) {
  static KnownCodePages pages(open_code_page);
  return pages.find(number);
}

}  // namespace quillvane
