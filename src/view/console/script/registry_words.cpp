#include "view/console/script/registry_words.h"

#include <charconv>
#include <cstdint>

#include "platform/multi_string.h"
#include "platform/unicode_case.h"
#include "view/console/script/script_error.h"

namespace quillvane {

namespace {

constexpr std::string_view kHexDigits = "0123456789abcdef";

std::string dword_data(std::string_view word) {
  std::uint32_t number = 0;
  const char* end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  if (stop != end || error != std::errc()) {
    throw ScriptError(std::string(word) + ": must be a number from 0 to 4294967295");
  }
  std::string data;
  for (int i = 0; i < 4; ++i) data.push_back(static_cast<char>(number >> 8 * i & 0xFFU));
  return data;
}

// The bytes of hex digits; the words only part them for the eye.
std::string binary_data(std::span<const std::string> words) {
  std::string digits;
  for (const std::string& word : words) digits += lower_case(word);
  const std::string problem = digits + ": must be pairs of hex digits";
  if (digits.size() % 2 != 0) throw ScriptError(problem);
  std::string data;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const std::size_t high = kHexDigits.find(digits[i]);
    const std::size_t low = kHexDigits.find(digits[i + 1]);
    if (high == std::string_view::npos || low == std::string_view::npos) throw ScriptError(problem);
    data.push_back(static_cast<char>(high << 4U | low));
  }
  return data;
}

std::string hex_text(std::string_view data) {
  std::string digits;
  for (const char c : data) {
    const auto byte = static_cast<unsigned char>(c);
    digits += kHexDigits[byte >> 4U];
    digits += kHexDigits[byte & 0x0FU];
  }
  return digits;
}

// Little-endian; a value that is too short lacks its upper bytes.
std::uint32_t number_of(std::string_view data) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < 4 && i < data.size(); ++i) {
    number |= std::uint32_t{static_cast<unsigned char>(data[i])} << 8 * i;
  }
  return number;
}

// A text was stored with its terminator or without.
std::string_view without_terminator(std::string_view data) {
  const std::size_t last = data.find_last_not_of('\0');
  return data.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

}  // namespace

Hive hive_named(std::string_view word) {
  if (same_name(word, "HKLM")) return Hive::kLocalMachine;
  if (same_name(word, "HKCU")) return Hive::kCurrentUser;
  if (same_name(word, "HKCR")) return Hive::kClassesRoot;
  if (same_name(word, "HKU")) return Hive::kUsers;
  throw ScriptError(std::string(word) + ": must be HKLM, HKCU, HKCR or HKU");
}

RegistryValue registry_value_of(std::string_view type, std::span<const std::string> words) {
  if (type == "binary") return {RegistryType::kBinary, binary_data(words)};
  if (type == "multi")
    return {RegistryType::kMultiSz, multi_string_data({words.begin(), words.end()})};
  if (type != "sz" && type != "expand" && type != "dword") {
    throw ScriptError(std::string(type) + ": must be sz, expand, dword, binary or multi");
  }
  if (words.size() != 1) throw ScriptError(std::string(type) + ": takes one value");
  if (type == "dword") return {RegistryType::kDword, dword_data(words[0])};
  return {type == "sz" ? RegistryType::kSz : RegistryType::kExpandSz, words[0] + '\0'};
}

Json registry_json(const RegistryValue& value) {
  switch (value.type) {
    case RegistryType::kSz:
      return {{"type", "sz"}, {"value", without_terminator(value.data)}};
    case RegistryType::kExpandSz:
      return {{"type", "expand"}, {"value", without_terminator(value.data)}};
    case RegistryType::kDword:
      return {{"type", "dword"}, {"value", number_of(value.data)}};
    case RegistryType::kMultiSz:
      return {{"type", "multi"}, {"value", multi_string_list(value.data)}};
    default:
      return {{"type", "binary"}, {"value", hex_text(value.data)}};
  }
}

}  // namespace quillvane
