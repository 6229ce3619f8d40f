#include "platform/folder/json_fields.h"

#include <algorithm>
#include <limits>

namespace quillvane {

void JsonFields::fail(const std::string& where, const std::string& why) {
  if (!error_.empty()) return;
  error_ = where + ": " + why;
  // Names come from the document; whatever they hold, the reason is one line.
  std::replace_if(
      error_.begin(), error_.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; },
      '?');
}

const JsonFields::Json* JsonFields::find(const Json& object, const char* key) {
  const auto found = object.find(key);
  return found == object.end() ? nullptr : &*found;
}

void JsonFields::known_keys(const Json& object, const std::string& prefix,
                            std::span<const char* const> keys) {
  for (const auto& field : object.items()) {
    const auto known = std::find(keys.begin(), keys.end(), field.key());
    if (known == keys.end()) return fail(prefix + field.key(), "there is no such key");
  }
}

void JsonFields::take_text(const Json& value, const std::string& where, std::string& out) {
  if (!value.is_string()) return fail(where, "must be a text");
  const auto& text = value.get_ref<const std::string&>();
  if (text.find('\0') != std::string::npos) return fail(where, "must not hold a NUL");
  out = text;
}

void JsonFields::text(const Json& object, const std::string& prefix, const char* key,
                      std::string& out) {
  if (const Json* field = find(object, key)) take_text(*field, prefix + key, out);
}

void JsonFields::needed_text(const Json& object, const std::string& prefix, const char* key,
                             std::string& out) {
  if (find(object, key) == nullptr) return fail(prefix + key, "is missing");
  text(object, prefix, key, out);
}

void JsonFields::flag(const Json& object, const std::string& prefix, const char* key, bool& out) {
  const Json* field = find(object, key);
  if (field == nullptr) return;
  if (!field->is_boolean()) return fail(prefix + key, "must be true or false");
  out = field->get<bool>();
}

std::optional<std::int64_t> JsonFields::number(const Json& object, const std::string& prefix,
                                               const char* key, std::int64_t least,
                                               std::int64_t greatest) {
  const Json* field = find(object, key);
  if (field == nullptr) return std::nullopt;
  constexpr std::uint64_t kWidest = std::numeric_limits<std::int64_t>::max();
  const bool fits = field->is_number_unsigned() ? field->get<std::uint64_t>() <= kWidest
                                                : field->is_number_integer();
  const std::int64_t value = fits ? field->get<std::int64_t>() : 0;
  if (!fits || value < least || value > greatest) {
    fail(prefix + key, "must be a whole number from " + std::to_string(least) + " to " +
                           std::to_string(greatest));
    return std::nullopt;
  }
  return value;
}

void JsonFields::byte_count(const Json& object, const std::string& prefix, const char* key,
                            std::optional<std::uint64_t>& out) {
  const Json* field = find(object, key);
  if (field == nullptr) return;
  if (!field->is_number_unsigned()) return fail(prefix + key, "must be a number of bytes");
  out = field->get<std::uint64_t>();
}

void JsonFields::texts(const Json& object, const char* key, std::vector<std::string>& out) {
  list(object, key, [&](const Json& element, const std::string& where) {
    take_text(element, where, out.emplace_back());
  });
}

}  // namespace quillvane
