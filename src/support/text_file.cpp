#include "support/text_file.h"

#include <algorithm>
#include <utility>

#include "platform/utf8.h"

namespace quillvane {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::size_t kLongestCharacter = 4;  // bytes of UTF-8

bool is_ascii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool is_valid_utf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const DecodedCodePoint character = decode_utf8(bytes, at);
    if (!character.valid) return false;
    at += character.length;
  }
  return true;
}

// The text in the system's code page, if what is read back from it is this very text: some letters
// of a page make valid UTF-8 of another text.
std::optional<std::string> in_code_page(const SystemInfo& system, std::string_view text) {
  if (is_ascii(text)) return std::string(text);
  const CodePage* page = system.code_page(system.ansi_code_page());
  auto bytes = page == nullptr ? std::nullopt : page->encode(text);
  if (!bytes || text_of_bytes(system, *bytes) != text) return std::nullopt;
  return bytes;
}

// The longest beginning of the text that has at most `width` bytes in UTF-8.
std::string_view cut(std::string_view text, std::size_t width) {
  std::size_t end = 0;
  while (end < text.size()) {
    const std::size_t next = end + decode_utf8(text, end).length;
    if (next > width) break;
    end = next;
  }
  return text.substr(0, end);
}

// The longest beginning of the text that has at most `width` bytes in the system's code page;
// nothing when a character of it has no place there.
std::optional<std::string> cut_in_code_page(const SystemInfo& system, std::string_view text,
                                            std::size_t width) {
  std::optional<std::string> longest;
  const std::size_t bound = kLongestCharacter * width;
  for (std::size_t end = 0; end <= bound; end += decode_utf8(text, end).length) {
    const auto bytes = in_code_page(system, text.substr(0, end));
    if (bytes && bytes->size() > width) return longest;
    if (bytes) longest = bytes;
    if (end == text.size()) return bytes;
    if (longest && longest->size() == width) return longest;
  }
  return std::nullopt;
}

std::string_view words_for(ReadFailure failure) {
  switch (failure) {
    case ReadFailure::kMissing:
      return "";
    case ReadFailure::kFolder:
      return "a folder has its name";
    case ReadFailure::kInUse:
      return "another program has it open";
    case ReadFailure::kDenied:
      return "access is denied";
    case ReadFailure::kTooLarge:
      return "it is too large";
    case ReadFailure::kTooLong:
      return "its path is too long";
    case ReadFailure::kUnreadable:
      break;
  }
  return "it cannot be read";
}

}  // namespace

FileText read_text_file(const Platform& platform, const std::string& path) {
  const FileContent content = platform.files.read_file(path);
  if (!content) return {"", read_problem(content.failure())};
  // UTF-16, or what a crash left of a file: as text of a code page it would hold none of its lines.
  if ((*content).find('\0') != std::string::npos) return {"", "it is no text"};
  auto text = text_of_bytes(platform.system, *content);
  if (text) return {std::move(*text), ""};
  return {"", code_page_problem(platform.system)};
}

std::string read_problem(ReadFailure failure) { return std::string(words_for(failure)); }

std::string code_page_problem(const SystemInfo& system) {
  return "its code page " + std::to_string(system.ansi_code_page()) + " is not installed";
}

bool write_text_file(const Platform& platform, const std::string& path, std::string_view text) {
  return platform.files.write_file(path, bytes_of_text(platform.system, text));
}

std::optional<std::string> text_of_bytes(const SystemInfo& system, std::string_view bytes) {
  if (bytes.starts_with(kMark)) return std::string(bytes.substr(kMark.size()));
  if (is_valid_utf8(bytes)) return std::string(bytes);
  const CodePage* page = system.code_page(system.ansi_code_page());
  return page == nullptr ? std::nullopt : std::optional(page->decode(bytes));
}

std::string bytes_of_text(const SystemInfo& system, std::string_view text) {
  if (auto bytes = in_code_page(system, text)) return std::move(*bytes);
  return std::string(kMark).append(text);
}

std::string field_of_text(const SystemInfo& system, std::string_view text, std::size_t width) {
  std::string field = cut_in_code_page(system, text, width).value_or(std::string(cut(text, width)));
  field.resize(width, ' ');
  return field;
}

}  // namespace quillvane
