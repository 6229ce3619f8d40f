#include "platform/folder/link_writer.h"

#include <limits>
#include <utility>

#include "platform/folder/link_format.h"
#include "platform/folder/link_put.h"
#include "platform/folder/windows_path.h"
#include "platform/utf8.h"

namespace quillvane {

using namespace link_format;

namespace {

struct TextPart {
  std::uint32_t flag;
  std::optional<std::string> LinkParts::*text;
};

// In the order in which they follow each other.
constexpr TextPart kTexts[] = {{kHasName, &LinkParts::description},
                               {kHasWorkingDirectory, &LinkParts::working_directory},
                               {kHasArguments, &LinkParts::arguments},
                               {kHasIconFile, &LinkParts::icon_file}};

std::uint32_t flags_of(const LinkParts& parts) {
  std::uint32_t flags = kIsUnicode;
  if (parts.items) flags |= kHasItemList;
  if (parts.info) flags |= kHasLinkInfo;
  if (parts.environment_path) flags |= kHasEnvironmentPath;
  for (const TextPart& part : kTexts) {
    if (parts.*part.text) flags |= part.flag;
  }
  return flags;
}

int stored_show_command(int command) { return command == 3 || command == 7 ? command : 1; }

std::string header_of(const LinkParts& parts) {
  std::string header(kHeaderSize, '\0');
  set_number(header, 0, kHeaderSize);
  header.replace(kClassIdAt, kClassId.size(), kClassId);
  set_number(header, kFlagsAt, flags_of(parts));
  set_number(header, kAttributesAt, parts.target.attributes);
  set_number(header, kFileSizeAt, parts.target.size_bytes);
  set_number(header, kIconIndexAt, static_cast<std::int32_t>(parts.icon_index));
  set_number(header, kShowCommandAt,
             static_cast<std::uint32_t>(stored_show_command(parts.show_command)));
  return header;
}

// A text behind its length; false when it is too long.
bool put_text(std::string& bytes, std::string_view text) {
  const std::string wide = utf16le_from_utf8(text);
  if (wide.size() / 2 > std::numeric_limits<std::uint16_t>::max()) return false;
  put_number(bytes, static_cast<std::uint16_t>(wide.size() / 2));
  bytes += wide;
  return true;
}

// The block has room for 260 characters of each form.
bool put_environment_path(std::string& bytes, std::string_view path) {
  if (!fits_path_limit(path)) return false;
  std::string block;
  put_number(block, kEnvironmentBlockSize);
  put_number(block, kEnvironmentBlock);
  for (std::size_t at = 0; at < path.size();) {
    const DecodedCodePoint letter = decode_utf8(path, at);
    block.push_back(letter.value < 0x80 ? static_cast<char>(letter.value) : '?');
    at += letter.length;
  }
  block.resize(kWideEnvironmentText);
  block += utf16le_from_utf8(path);
  block.resize(kEnvironmentBlockSize);
  bytes += block;
  return true;
}

// A share's path, "\\server\share\below", as its two parts; nothing when it has no share.
std::optional<std::pair<std::string, std::string>> parts_of_share(const std::string& path) {
  if (!path.starts_with("\\\\")) return std::nullopt;
  const std::size_t share = path.find('\\', 2);
  if (share == 2 || share == std::string::npos || share + 1 == path.size()) return std::nullopt;
  const std::size_t end = path.find('\\', share + 1);
  if (end == share + 1) return std::nullopt;
  if (end == std::string::npos) return std::pair(path, std::string());
  return std::pair(path.substr(0, end), path.substr(end + 1));
}

std::optional<std::string> text_or_none(const std::string& text) {
  return text.empty() ? std::nullopt : std::optional(text);
}

}  // namespace

std::optional<std::string> link_bytes(const LinkParts& parts) {
  std::string bytes = header_of(parts);
  if (parts.items) {
    if (parts.items->size() > std::numeric_limits<std::uint16_t>::max()) return std::nullopt;
    put_number(bytes, static_cast<std::uint16_t>(parts.items->size()));
    bytes += *parts.items;
  }
  if (parts.info) bytes += *parts.info;
  for (const TextPart& part : kTexts) {
    const auto& text = parts.*part.text;
    if (text && !put_text(bytes, *text)) return std::nullopt;
  }
  if (parts.environment_path && !put_environment_path(bytes, *parts.environment_path)) {
    return std::nullopt;
  }
  put_number(bytes, std::uint32_t{0});
  return bytes;
}

std::optional<std::string> link_to_file(const LinkContent& content, const LinkTarget& target,
                                        const CodePage& page) {
  if (!fits_path_limit(content.target)) return std::nullopt;
  LinkParts parts{.target = target,
                  .description = "Access Shortcut",
                  .working_directory = text_or_none(content.working_directory),
                  .arguments = text_or_none(content.arguments),
                  .icon_file = text_or_none(content.icon_file),
                  .icon_index = content.icon_file.empty() ? 0 : content.icon_index,
                  .show_command = content.show_command};
  if (const auto share = parts_of_share(content.target)) {
    parts.info = info_of_share(share->first, share->second, page);
  } else if (content.target.size() > 2 && content.target[2] == '\\' &&
             parse_windows_path(content.target)) {
    parts.items = items_of_path(content.target, target, page);
    parts.info = info_of_path(content.target, page);
  } else {
    return std::nullopt;
  }
  return link_bytes(parts);
}

}  // namespace quillvane
