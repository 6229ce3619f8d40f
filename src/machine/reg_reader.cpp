#include <algorithm>
#include <cstdint>
#include <utility>

#include "machine/reg_cursor.h"
#include "machine/reg_file.h"
#include "machine/reg_words.h"

namespace quillvane {

namespace {

// Reads the sections of a file one after the other. A step that fails has told the cursor why.
class RegReader {
 public:
  explicit RegReader(std::string text) : text_(std::move(text)), cursor_(text_) {}

  std::variant<std::vector<RegKeyChange>, std::string> read() {
    bool good = read_header();
    while (good && cursor_.skip_to_content()) {
      good = cursor_.peek() == '[' ? read_key() : read_value();
    }
    if (!cursor_.problem().empty()) return cursor_.problem();
    return std::move(sections_);
  }

 private:
  bool read_header() {
    const std::string_view header = cursor_.take_line();
    // The older version keeps the bytes of texts as they are.
    wide_texts_ = header == kRegHeader5;
    if (wide_texts_ || header == kRegHeader4) return true;
    return cursor_.fail(1, "must be \"" + std::string(kRegHeader5) + "\"");
  }

  // "[HKEY_CURRENT_USER\Software]", or with "-" in front of the path to remove the key.
  bool read_key() {
    RegKeyChange section;
    section.line = cursor_.line();
    const std::string_view line = cursor_.take_line();
    const std::size_t end = line.rfind(']');
    if (end == std::string_view::npos) return cursor_.fail(section.line, "the key has no \"]\"");
    const std::string_view behind = trim_blanks(line.substr(end + 1));
    if (!behind.empty() && behind[0] != ';') {
      return cursor_.fail(section.line, "there is more behind the key");
    }
    std::string_view path = line.substr(1, end - 1);
    section.remove = path.starts_with('-');
    if (section.remove) path.remove_prefix(1);

    auto place = hive_and_key(path);
    if (!place) return cursor_.fail(section.line, "the key begins with no known root");
    section.hive = place->first;
    section.key = std::move(place->second);
    if (section.remove && section.key.empty()) {
      return cursor_.fail(section.line, "a root cannot be removed");
    }
    sections_.push_back(std::move(section));
    return true;
  }

  // "name"=data, or @=data for the default value.
  bool read_value() {
    const std::size_t line = cursor_.line();
    RegValueChange change;
    if (cursor_.peek() == '"') {
      if (!cursor_.take_quoted(change.name)) return false;
    } else if (!cursor_.take("@")) {
      return cursor_.fail(line, "is neither a key nor a value");
    }
    if (sections_.empty() || sections_.back().remove) {
      return cursor_.fail(line, "the value belongs to no key");
    }
    cursor_.skip_blanks();
    if (!cursor_.take("=")) return cursor_.fail(line, "\"=\" is missing behind the name");
    cursor_.skip_blanks();
    if (!read_data(change.value)) return false;
    sections_.back().values.push_back(std::move(change));
    return cursor_.end_line();
  }

  bool read_data(std::optional<RegistryValue>& value) {
    if (cursor_.take("-")) return true;
    value.emplace();
    if (cursor_.peek() == '"') {
      value->type = RegistryType::kSz;
      if (!cursor_.take_quoted(value->data)) return false;
      value->data.push_back('\0');
      return true;
    }
    if (cursor_.take("dword:")) return read_dword(*value);
    if (cursor_.take("hex:")) {
      value->type = RegistryType::kBinary;
      return cursor_.take_bytes(value->data);
    }
    if (cursor_.take("hex(")) return read_typed_bytes(*value);
    return cursor_.fail(cursor_.line(), "the data have no known form");
  }

  bool read_dword(RegistryValue& value) {
    const auto number = cursor_.take_hex_number();
    if (!number) return cursor_.fail(cursor_.line(), "a dword has 1 to 8 hexadecimal digits");
    value.type = RegistryType::kDword;
    for (unsigned shift = 0; shift < 32; shift += 8) {
      value.data.push_back(static_cast<char>(*number >> shift & 0xFFU));
    }
    return true;
  }

  bool read_typed_bytes(RegistryValue& value) {
    const auto type = cursor_.take_hex_number();
    if (!type || !cursor_.take("):")) {
      return cursor_.fail(cursor_.line(), "the type is no hexadecimal number in brackets");
    }
    value.type = static_cast<RegistryType>(*type);
    if (!cursor_.take_bytes(value.data)) return false;
    if (wide_texts_ && is_text_type(value.type)) value.data = text_from_reg_units(value.data);
    return true;
  }

  std::string text_;
  RegCursor cursor_;
  bool wide_texts_ = true;
  std::vector<RegKeyChange> sections_;
};

}  // namespace

std::variant<std::vector<RegKeyChange>, std::string> parse_reg_file(std::string_view bytes) {
  constexpr std::string_view kUtf16Mark = "\xFF\xFE";
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kUtf16Mark)) {
    bytes.remove_prefix(kUtf16Mark.size());
    if (bytes.size() % 2 != 0) return std::string("the file ends in the middle of a character");
    return RegReader(text_from_reg_units(bytes)).read();
  }
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  return RegReader(std::string(bytes)).read();
}

std::optional<std::string> import_reg_file(FolderRegistry& registry, std::string_view bytes) {
  const auto parsed = parse_reg_file(bytes);
  if (const auto* problem = std::get_if<std::string>(&parsed)) return *problem;
  const auto& sections = std::get<std::vector<RegKeyChange>>(parsed);

  std::size_t failed_line = 0;
  const auto change_value = [&](const RegKeyChange& section, const RegValueChange& change) -> bool {
    if (!change.value) return registry.remove_value(section.hive, section.key, change.name);
    return registry.store_value(section.hive, section.key, change.name, *change.value);
  };
  const auto apply = [&](const RegKeyChange& section) -> bool {
    failed_line = section.line;
    if (section.remove) return registry.remove_key(section.hive, section.key);
    return registry.create_key(section.hive, section.key) &&
           std::all_of(section.values.begin(), section.values.end(),
                       [&](const auto& change) { return change_value(section, change); });
  };
  const bool done = registry.at_one_stroke([&] {
    const bool all = std::all_of(sections.begin(), sections.end(), apply);
    if (all) failed_line = 0;
    return all;
  });
  if (done) return std::nullopt;
  if (failed_line == 0) return "the registry cannot be written";
  return "line " + std::to_string(failed_line) + ": the key cannot be written";
}

}  // namespace quillvane
