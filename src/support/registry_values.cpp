#include "support/registry_values.h"

#include <algorithm>

#include "platform/unicode_case.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr int kNoSuchHive = 99;
constexpr int kKeyNotOpened = 2;
constexpr std::size_t kIniBufferChars = 8192;
constexpr std::size_t kValueBufferBytes = 2048;  // for the name with its terminator, and the data

std::uint32_t little_endian(std::string_view bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = std::min<std::size_t>(bytes.size(), 4); i-- > 0;) {
    number = number << 8U | static_cast<unsigned char>(bytes[i]);
  }
  return number;
}

std::string until_terminator(const std::string& data) { return data.substr(0, data.find('\0')); }

// The lines of a section, each ended by NUL; as much as the caller's buffer holds.
std::string ini_section(const FileSystem& files, const std::string& path,
                        const std::string& section) {
  const auto content = files.read_file(path);
  if (!content) return {};
  std::string result;
  bool inside = false;
  for (const std::string& line : text_lines(*content)) {
    const std::string_view trimmed = Trim(line);
    if (trimmed.starts_with('[')) {
      inside = same_name(trimmed, "[" + section + "]");
    } else if (inside && !trimmed.empty() && !trimmed.starts_with(';')) {
      result.append(trimmed).push_back('\0');
    }
  }
  return result.substr(0, kIniBufferChars);
}

// name "=" data of the values that have a text; nothing of the others.
std::string value_text(const NamedRegistryValue& entry) {
  const auto& [type, data] = entry.value;
  if (type == RegistryType::kSz) return entry.name + "=" + until_terminator(data);
  const bool short_bytes = type == RegistryType::kBinary && data.size() < 3;
  if (short_bytes || type == RegistryType::kDword) {
    return entry.name + "=" + std::to_string(little_endian(data));
  }
  return {};
}

// The list ends at the first value that the reader's buffers do not hold: meant so.
bool fits_buffers(const NamedRegistryValue& entry) {
  return entry.name.size() < kValueBufferBytes && entry.value.data.size() <= kValueBufferBytes;
}

}  // namespace

std::optional<RegistryContent> GetRegistryValue(const Registry& registry, Hive hive,
                                                const std::string& key, const std::string& name) {
  const auto value = registry.value(hive, key, name, KeyAccess::kAll64);
  if (!value) return std::nullopt;
  switch (value->type) {
    case RegistryType::kSz:
    case RegistryType::kExpandSz:
      return until_terminator(value->data);
    case RegistryType::kMultiSz: {
      std::string text = value->data;
      if (text.ends_with('\0')) text.pop_back();
      return text;
    }
    case RegistryType::kBinary:
      return RegistryBytes{value->data};
    case RegistryType::kDword:
      return little_endian(value->data);
    default:
      return std::nullopt;
  }
}

bool SetRegistryValue(Registry& registry, Hive hive, const std::string& key,
                      const std::string& name, const RegistryContent& content) {
  RegistryValue value;
  if (const auto* text = std::get_if<std::string>(&content)) {
    value = {RegistryType::kSz, *text + '\0'};
  } else if (const auto* number = std::get_if<std::uint32_t>(&content)) {
    value.type = RegistryType::kDword;
    for (unsigned shift = 0; shift < 32; shift += 8) {
      value.data.push_back(static_cast<char>(*number >> shift));
    }
  } else {
    value = {RegistryType::kBinary, std::get<RegistryBytes>(content).data};
  }
  return registry.set_value(hive, key, name, value);
}

HiveOrFile fHiveFromName(const FileSystem& files, const std::string& name) {
  const std::string upper = upper_case(name);
  if (upper == "HKCU") return Hive::kCurrentUser;
  if (upper == "HKLM") return Hive::kLocalMachine;
  if (upper == "HKU") return Hive::kUsers;
  if (upper == "HKCR") return Hive::kClassesRoot;
  const auto attributes = files.attributes(name);
  if (attributes && (*attributes & kAttributeFolder) == 0) return IniFile{};
  return NoHive{};
}

ValueList fEnumValue(const Registry& registry, const FileSystem& files, const std::string& hive,
                     const std::string& sub_key) {
  ValueList list;
  const HiveOrFile source = fHiveFromName(files, hive);
  if (std::holds_alternative<NoHive>(source)) {
    list.status = kNoSuchHive;
    return list;
  }
  if (std::holds_alternative<IniFile>(source)) {
    list.text = ini_section(files, hive, sub_key);
    return list;
  }
  const auto values = registry.values(std::get<Hive>(source), sub_key, KeyAccess::kQueryValues);
  if (!values) {
    list.status = kKeyNotOpened;
    return list;
  }
  for (std::size_t i = 0; i < values->size(); ++i) {
    const NamedRegistryValue& entry = (*values)[i];
    if (!fits_buffers(entry)) break;
    list.text += value_text(entry);
    if (i > 0) list.names += ",";
    list.names += entry.name;
  }
  return list;
}

std::string GetHiveListSid(const Registry& registry, const FileSystem& files) {
  const ValueList list =
      fEnumValue(registry, files, "HKlm", "SYSTEM\\CurrentControlSet\\Control\\hivelist");
  for (const std::string& name : Split(lower_case(list.names), ",")) {
    const bool user_hive = name.find("s-1-5-21") != std::string::npos;
    if (user_hive && name.find("classes") == std::string::npos) {
      return name.substr(name.rfind('\\') + 1);
    }
  }
  return {};
}

}  // namespace quillvane
