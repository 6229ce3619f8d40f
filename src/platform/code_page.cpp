#include "platform/code_page.h"

#include <algorithm>
#include <utility>

#include "platform/utf8.h"

namespace quillvane {

namespace {

constexpr unsigned kAsciiEnd = 0x80;
constexpr unsigned kControlsEnd = 0xA0;
constexpr char32_t kKeptByte = 0xDC00;  // the surrogates from here on stand for bytes
constexpr std::size_t kKeptLength = 3;

// Each Windows gives the characters for the user's own use other bytes, and fills gaps of its pages
// with them.
bool is_private(char16_t unit) { return unit >= 0xE000 && unit <= 0xF8FF; }

unsigned char byte_at(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

void append_kept(unsigned char byte, std::string& text) { append_utf8(kKeptByte + byte, text); }

// The byte that is kept at this place of a text; nothing when none is.
std::optional<char> kept_byte(std::string_view text, std::size_t at) {
  if (text.size() - at < kKeptLength) return std::nullopt;
  const unsigned low = byte_at(text, at + 2);
  const unsigned middle = byte_at(text, at + 1);
  if (byte_at(text, at) != 0xED || (middle != 0xB2 && middle != 0xB3) || (low & 0xC0U) != 0x80) {
    return std::nullopt;
  }
  return static_cast<char>((middle & 0x03U) << 6U | (low & 0x3FU));
}

std::optional<char16_t> ask(const CodePage::AskHost& host, std::string_view bytes) {
  const auto unit = host(bytes);
  return unit && *unit >= kAsciiEnd && !is_private(*unit) ? unit : std::nullopt;
}

}  // namespace

bool is_system_code_page(int number) {
  constexpr std::array kPages = {874,  932,  936,  949,  950,  1250, 1251,         1252,
                                 1253, 1254, 1255, 1256, 1257, 1258, kUtf8CodePage};
  return std::find(kPages.begin(), kPages.end(), number) != kPages.end();
}

CodePage::CodePage(const AskHost& host) : utf8_(false) {
  for (unsigned byte = 0; byte < single_.size(); ++byte) {
    const auto value = static_cast<unsigned char>(byte);
    const std::string bytes(1, static_cast<char>(byte));
    if (byte < kAsciiEnd) {
      single_[byte] = value;
      continue;
    }
    if (const auto unit = ask(host, bytes)) {
      single_[byte] = *unit;
    } else {
      ask_for_pairs(host, value);
      if (pairs_[byte].empty() && byte < kControlsEnd) single_[byte] = value;
    }
    if (single_[byte] != kNone) bytes_of_.emplace(single_[byte], bytes);
  }
}

void CodePage::ask_for_pairs(const AskHost& host, unsigned char lead) {
  std::string bytes{static_cast<char>(lead), '\0'};
  for (unsigned trail = 0; trail < single_.size(); ++trail) {
    bytes[1] = static_cast<char>(trail);
    const auto unit = ask(host, bytes);
    if (!unit) continue;
    pairs_[lead].resize(single_.size());
    pairs_[lead][trail] = *unit;
    bytes_of_.emplace(*unit, bytes);
  }
}

char16_t CodePage::pair_unit(unsigned char lead, unsigned char trail) const {
  return pairs_[lead].empty() ? kNone : pairs_[lead][trail];
}

std::string CodePage::decode(std::string_view bytes) const {
  if (utf8_) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const unsigned char byte = byte_at(bytes, at);
    if (byte < kAsciiEnd || single_[byte] != kNone) {
      append_utf8(single_[byte], text);
      continue;
    }
    const char16_t unit = at + 1 < bytes.size() ? pair_unit(byte, byte_at(bytes, at + 1)) : kNone;
    if (unit == kNone) {
      append_kept(byte, text);
    } else {
      append_utf8(unit, text);
      ++at;
    }
  }
  return text;
}

// False when a character has no bytes. What kept bytes make with their neighbours is not looked at.
bool CodePage::encode_units(std::string_view text, std::string& bytes) const {
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint character = decode_utf8(text, at);
    if (const auto kept = character.valid ? std::nullopt : kept_byte(text, at)) {
      bytes.push_back(*kept);
      at += kKeptLength;
      continue;
    }
    if (!character.valid || character.value > 0xFFFF) return false;
    at += character.length;
    if (character.value < kAsciiEnd) {
      bytes.push_back(static_cast<char>(character.value));
      continue;
    }
    const auto found = bytes_of_.find(static_cast<char16_t>(character.value));
    if (found == bytes_of_.end()) return false;
    bytes += found->second;
  }
  return true;
}

std::optional<std::string> CodePage::encode(std::string_view text) const {
  if (utf8_) return std::string(text);
  std::string bytes;
  bytes.reserve(text.size());
  if (!encode_units(text, bytes) || decode(bytes) != text) return std::nullopt;
  return bytes;
}

const CodePage* KnownCodePages::find(int number) {
  if (!is_system_code_page(number)) return nullptr;
  const std::lock_guard lock(mutex_);
  auto [page, is_new] = pages_.try_emplace(number);
  if (is_new) {
    if (number == kUtf8CodePage) {
      page->second.emplace();
    } else if (const CodePage::AskHost host = open_(number)) {
      page->second.emplace(host);
    }
  }
  return page->second ? &*page->second : nullptr;
}

}  // namespace quillvane
