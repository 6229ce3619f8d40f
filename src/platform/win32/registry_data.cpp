#include "platform/win32/registry_data.h"

#include <utility>

#include "platform/utf8.h"

namespace quillvane {

namespace {

bool is_text(RegistryType type) {
  return type == RegistryType::kSz || type == RegistryType::kExpandSz ||
         type == RegistryType::kMultiSz;
}

}  // namespace

RegistryValue value_from_windows(RegistryType type, std::string bytes) {
  if (is_text(type)) bytes = utf8_from_utf16le(bytes.substr(0, bytes.size() & ~std::size_t{1}));
  return {type, std::move(bytes)};
}

std::string bytes_for_windows(const RegistryValue& value) {
  return is_text(value.type) ? utf16le_from_utf8(value.data) : value.data;
}

}  // namespace quillvane
