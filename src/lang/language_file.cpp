#include "lang/language_file.h"

#include <algorithm>
#include <utility>

#include "platform/unicode_case.h"
#include "platform/utf8.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

// Plain ASCII says nothing of its code page.
bool is_utf8_text(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const DecodedCodePoint character = decode_utf8(bytes, at);
    if (!character.valid) return false;
    at += character.length;
  }
  return true;
}

std::string without_quotes(std::string_view value) {
  std::string text(value);
  std::erase(text, '"');
  return text;
}

}  // namespace

std::optional<LanguageBytes> language_bytes(std::string content) {
  if (content.size() > kMostLanguageBytes || content.find('\0') != std::string::npos) {
    return std::nullopt;
  }
  if (content.starts_with(kMark)) return LanguageBytes{content.substr(kMark.size()), true};
  const bool is_utf8 = is_utf8_text(content);
  return LanguageBytes{std::move(content), is_utf8};
}

std::string language_path(const Session& session, std::string_view name) {
  return session.data_file("lang\\" + std::string(name));
}

std::optional<LanguageBytes> read_language_bytes(const Session& session, const std::string& path) {
  const FileSystem& files = session.platform.files;
  const auto size = files.file_size(path);
  if (!size || *size > kMostLanguageBytes) return std::nullopt;
  FileContent content = files.read_file(path);
  if (!content) return std::nullopt;
  return language_bytes(*content);
}

LanguageLine language_line(std::string_view line) {
  LanguageLine parts;
  parts.line = Trim(line);
  const std::size_t equals = parts.line.find('=');
  parts.key = Trim(parts.line.substr(0, equals));
  if (equals == std::string_view::npos) return parts;
  parts.has_value = true;
  const std::string_view rest = parts.line.substr(equals + 1);
  const std::size_t second = rest.find('=');
  parts.is_cut = second != std::string_view::npos;
  parts.value = rest.substr(0, second);
  return parts;
}

bool begins_section(const LanguageLine& line, std::string_view section) {
  return line.line.size() == section.size() + 2 && line.line.starts_with('[') &&
         line.line.ends_with(']') && same_name(line.line.substr(1, section.size()), section);
}

std::string language_value(std::string_view bytes, std::string_view section, std::string_view key) {
  bool in_section = false;
  for (const std::string& text : text_lines(bytes)) {
    const LanguageLine line = language_line(text);
    if (begins_section(line, section)) in_section = true;
    if (in_section && same_name(line.key, key)) return without_quotes(line.value);
  }
  return {};
}

std::string language_text(const SystemInfo& system, const LanguageBytes& file,
                          const std::string& bytes, int code_page) {
  if (file.is_utf8) return bytes;
  const CodePage* page = code_page == 0 ? nullptr : system.code_page(code_page);
  if (page == nullptr) page = system.code_page(system.ansi_code_page());
  return page == nullptr ? bytes : page->decode(bytes);
}

std::string readlangfile(const Session& session, const std::string& file, std::string_view section,
                         std::string_view key) {
  const auto content = read_language_bytes(session, file);
  if (!content) return {};
  return language_text(session.platform.system, *content,
                       language_value(content->bytes, section, key), session.langpage);
}

}  // namespace quillvane
