// An 8-bit code page of Windows: from its bytes to the program's text and back, character by
// character. The same on every host, whatever the host's own ways with what a page leaves open.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

inline constexpr int kUtf8CodePage = 65001;

// Whether a Windows can have this page as its system's; no other one is known to the program.
[[nodiscard]] bool is_system_code_page(int number);

class CodePage {
 public:
  // Asks the host what one or two bytes stand for: a UTF-16 unit; nothing when they are no
  // character by themselves.
  using AskHost = std::function<std::optional<char16_t>(std::string_view bytes)>;

  // Code page 65001, which leaves text as it is.
  CodePage() = default;
  explicit CodePage(const AskHost& host);

  // The bytes as text in UTF-8. A byte from 0x80 to 0x9F that the page leaves undefined is the
  // control character of that number, as to Windows. Any other that is no character is kept as
  // what no text in UTF-8 holds: its surrogate, U+DC00 + byte, in three bytes.
  [[nodiscard]] std::string decode(std::string_view bytes) const;

  // The bytes that decode() makes this very text of; nothing when there are none, since a character
  // has no place in the page. Never a character that only looks like the one meant.
  [[nodiscard]] std::optional<std::string> encode(std::string_view text) const;

 private:
  static constexpr char16_t kNone = 0;

  void ask_for_pairs(const AskHost& host, unsigned char lead);
  [[nodiscard]] char16_t pair_unit(unsigned char lead, unsigned char trail) const;
  [[nodiscard]] bool encode_units(std::string_view text, std::string& bytes) const;

  bool utf8_ = true;
  std::array<char16_t, 256> single_{};            // by byte; kNone: no character by itself
  std::array<std::vector<char16_t>, 256> pairs_;  // by first and second byte; empty: no first byte
  std::map<char16_t, std::string> bytes_of_;      // above ASCII; of several ways the lowest
};

// The pages that were asked for, each made once.
class KnownCodePages {
 public:
  // What the host can be asked for a page; an empty function when it does not have it.
  using OpenHost = std::function<CodePage::AskHost(int number)>;

  explicit KnownCodePages(OpenHost open) : open_(std::move(open)) {}

  // Null for a page that is_system_code_page or the host does not know.
  [[nodiscard]] const CodePage* find(int number);

 private:
  OpenHost open_;
  std::mutex mutex_;
  std::map<int, std::optional<CodePage>> pages_;
};

}  // namespace quillvane
