#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "machine/reg_file.h"
#include "machine/reg_words.h"
#include "platform/utf8.h"

namespace quillvane {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
// Data in hex go on in a new line once a line has grown to this many columns.
constexpr std::size_t kHexLineColumns = 77;

std::string in_quotes(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  return out + '"';
}

std::string hex_number(std::uint32_t number, std::size_t width) {
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
  const std::string text(digits.data(), end);
  return std::string(width > text.size() ? width - text.size() : 0, '0') + text;
}

// Whether the quoted form gives the same bytes back: one terminator, at the end, and no character
// that could be lost or would break the line.
bool is_plain_text(const RegistryValue& value) {
  if (value.type != RegistryType::kSz || !value.data.ends_with('\0')) return false;
  const std::string_view text = std::string_view(value.data).substr(0, value.data.size() - 1);
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint point = decode_utf8(text, at);
    if (!point.valid || point.value < 0x20) return false;
    at += point.length;
  }
  return true;
}

// `column` is where the data begin in their line.
void append_hex(std::string_view bytes, std::size_t column, std::string& out) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    out += kDigits[byte >> 4U];
    out += kDigits[byte & 0xFU];
    if (i + 1 == bytes.size()) return;
    out += ',';
    column += 3;
    if (column < kHexLineColumns) continue;
    out += "\\";
    out += kLineEnd;
    out += "  ";
    column = 2;
  }
}

void append_value(const NamedRegistryValue& named, std::string& out) {
  const RegistryValue& value = named.value;
  std::string line = named.name.empty() ? "@" : in_quotes(named.name);
  line += '=';
  if (is_plain_text(value)) {
    out += line + in_quotes(std::string_view(value.data).substr(0, value.data.size() - 1));
  } else if (value.type == RegistryType::kDword && value.data.size() == 4) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i > 0; --i) {
      number = number << 8U | static_cast<unsigned char>(value.data[i - 1]);
    }
    out += line + "dword:" + hex_number(number, 8);
  } else {
    line += "hex";
    if (value.type != RegistryType::kBinary) {
      line += "(" + hex_number(static_cast<std::uint32_t>(value.type), 1) + ")";
    }
    line += ':';
    out += line;
    const bool text = is_text_type(value.type);
    append_hex(text ? reg_units_from_text(value.data) : value.data, line.size(), out);
  }
  out += kLineEnd;
}

// `depth` counts the keys that it lies in. Deeper ones than a registry can have are those of a
// damaged one, which need not come to an end.
bool append_key(const Registry& registry, Hive hive, const std::string& key, std::size_t depth,
                std::string& out) {
  if (depth > kDeepestKey) return false;
  const auto values = registry.values(hive, key);
  const auto sub_keys = registry.sub_keys(hive, key);
  if (!values || !sub_keys) return false;
  // The hives are there anyway.
  if (!key.empty() || !values->empty()) {
    out += "[";
    out += hive_name(hive);
    if (!key.empty()) out += "\\" + key;
    out += "]";
    out += kLineEnd;
    for (const NamedRegistryValue& value : *values) append_value(value, out);
    out += kLineEnd;
  }
  for (const std::string& name : *sub_keys) {
    std::string below = key.empty() ? key : key + "\\";
    below += name;
    if (!append_key(registry, hive, below, depth + 1, out)) return false;
  }
  return true;
}

}  // namespace

std::optional<std::string> export_reg_file(const Registry& registry) {
  std::string out(kRegHeader5);
  out += kLineEnd;
  out += kLineEnd;
  for (const Hive hive :
       {Hive::kClassesRoot, Hive::kCurrentUser, Hive::kLocalMachine, Hive::kUsers}) {
    if (!append_key(registry, hive, "", 0, out)) return std::nullopt;
  }
  return out;
}

}  // namespace quillvane
