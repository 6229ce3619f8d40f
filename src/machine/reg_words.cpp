#include "machine/reg_words.h"

#include <cstddef>

#include "platform/unicode_case.h"
#include "platform/utf8.h"

namespace quillvane {

namespace {

struct Root {
  std::string_view name;
  Hive hive;
  std::string_view key;  // where in the hive the root lies
};

constexpr Root kRoots[] = {
    {"HKEY_CLASSES_ROOT", Hive::kClassesRoot, ""},
    {"HKEY_CURRENT_USER", Hive::kCurrentUser, ""},
    {"HKEY_LOCAL_MACHINE", Hive::kLocalMachine, ""},
    {"HKEY_USERS", Hive::kUsers, ""},
    {"HKEY_CURRENT_CONFIG", Hive::kLocalMachine,
     "SYSTEM\\CurrentControlSet\\Hardware Profiles\\Current"},
};

// A byte b that is no UTF-8 is the unit kByteUnits + b.
constexpr char32_t kByteUnits = 0xDC00;

char32_t unit_at(std::string_view units, std::size_t at) {
  return static_cast<char32_t>(static_cast<unsigned char>(units[at]) |
                               static_cast<unsigned char>(units[at + 1]) << 8U);
}

bool is_high_surrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool is_low_surrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
bool is_byte_unit(char32_t unit) { return unit >= kByteUnits + 0x80 && unit <= kByteUnits + 0xFF; }

void append_unit(char32_t unit, std::string& out) {
  out.push_back(static_cast<char>(unit & 0xFFU));
  out.push_back(static_cast<char>(unit >> 8U));
}

}  // namespace

std::string_view hive_name(Hive hive) {
  for (const Root& root : kRoots) {
    if (root.hive == hive) return root.name;
  }
  return {};
}

std::optional<std::pair<Hive, std::string>> hive_and_key(std::string_view path) {
  const std::size_t end = path.find('\\');
  const std::string_view below = end == std::string_view::npos ? "" : path.substr(end + 1);
  for (const Root& root : kRoots) {
    if (!same_name(path.substr(0, end), root.name)) continue;
    std::string key(root.key);
    if (!key.empty() && !below.empty()) key += '\\';
    key += below;
    return std::pair(root.hive, key);
  }
  return std::nullopt;
}

bool is_text_type(RegistryType type) {
  return type == RegistryType::kSz || type == RegistryType::kExpandSz ||
         type == RegistryType::kMultiSz;
}

std::string text_from_reg_units(std::string_view units) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string text;
  for (std::size_t at = 0; at + 1 < units.size(); at += 2) {
    const char32_t unit = unit_at(units, at);
    if (is_high_surrogate(unit) && at + 3 < units.size() &&
        is_low_surrogate(unit_at(units, at + 2))) {
      append_utf8(0x10000 + ((unit - 0xD800) << 10U) + (unit_at(units, at + 2) - 0xDC00), text);
      at += 2;
    } else if (is_byte_unit(unit)) {
      text.push_back(static_cast<char>(unit - kByteUnits));
    } else {
      const bool lone = is_high_surrogate(unit) || is_low_surrogate(unit);
      append_utf8(lone ? kReplacement : unit, text);
    }
  }
  return text;
}

std::string reg_units_from_text(std::string_view text) {
  std::string units;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint point = decode_utf8(text, at);
    at += point.length;
    if (!point.valid) {
      append_unit(kByteUnits + point.value, units);
    } else if (point.value >= 0x10000) {
      append_unit(0xD800 + ((point.value - 0x10000) >> 10U), units);
      append_unit(0xDC00 + ((point.value - 0x10000) & 0x3FFU), units);
    } else {
      append_unit(point.value, units);
    }
  }
  return units;
}

}  // namespace quillvane
