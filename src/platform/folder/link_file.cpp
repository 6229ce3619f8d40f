#include "platform/folder/link_file.h"

#include "platform/folder/link_bytes.h"
#include "platform/folder/link_format.h"
#include "platform/utf8.h"

namespace quillvane {

using namespace link_format;

namespace {

// Bit for bit the order in which the texts follow each other.
constexpr std::uint32_t kTexts[] = {kHasName, kHasRelativePath, kHasWorkingDirectory, kHasArguments,
                                    kHasIconFile};

int known_show_command(std::uint32_t stored) {
  return stored == 3 || stored == 7 ? static_cast<int>(stored) : 1;
}

class LinkParser {
 public:
  LinkParser(std::string_view bytes, const CodePage& page, const Environment& environment)
      : bytes_(bytes), page_(page), environment_(environment) {}

  [[nodiscard]] std::optional<LinkContent> parse() {
    if (!take_header() || !take_items() || !take_link_info() || !take_texts() || !take_blocks()) {
      return std::nullopt;
    }
    content_.target = target();
    content_.has_target = true;
    return content_;
  }

 private:
  [[nodiscard]] bool has(std::uint32_t flag) const { return (flags_ & flag) != 0; }

  bool take_header();
  bool take_items();
  bool take_link_info();
  bool take_texts();
  bool take_text(std::string& text);
  bool take_blocks();
  bool take_environment_path(std::string_view block);
  [[nodiscard]] std::string target() const;

  LinkBytes bytes_;
  const CodePage& page_;
  const Environment& environment_;
  std::uint32_t flags_ = 0;
  std::string items_path_;
  std::string info_path_;
  std::optional<std::string> environment_path_;
  LinkContent content_;
};

bool LinkParser::take_header() {
  const auto header = bytes_.take(kHeaderSize);
  if (!header || number_at<std::uint32_t>(*header, 0) != kHeaderSize) return false;
  if (header->substr(kClassIdAt, kClassId.size()) != kClassId) return false;
  flags_ = *number_at<std::uint32_t>(*header, kFlagsAt);
  content_.icon_index = static_cast<int>(*number_at<std::int32_t>(*header, kIconIndexAt));
  content_.show_command = known_show_command(*number_at<std::uint32_t>(*header, kShowCommandAt));
  return true;
}

bool LinkParser::take_items() {
  if (!has(kHasItemList)) return true;
  const auto size = bytes_.take_number<std::uint16_t>();
  const auto items = size ? bytes_.take(*size) : std::nullopt;
  auto path = items ? path_of_items(*items, page_) : std::nullopt;
  if (!path) return false;
  items_path_ = std::move(*path);
  return true;
}

bool LinkParser::take_link_info() {
  if (!has(kHasLinkInfo)) return true;
  const auto size = number_at<std::uint32_t>(bytes_.rest(), 0);
  const auto info = size ? bytes_.take(*size) : std::nullopt;
  if (!info) return false;
  if (has(kIgnoresLinkInfo)) return info->size() >= kInfoHeaderSize;
  auto path = path_of_link_info(*info, page_);
  if (!path) return false;
  info_path_ = std::move(*path);
  return true;
}

bool LinkParser::take_texts() {
  for (const std::uint32_t flag : kTexts) {
    if (!has(flag)) continue;
    std::string text;
    if (!take_text(text)) return false;
    if (flag == kHasWorkingDirectory) content_.working_directory = std::move(text);
    if (flag == kHasArguments) content_.arguments = std::move(text);
    if (flag == kHasIconFile) content_.icon_file = std::move(text);
  }
  return true;
}

bool LinkParser::take_text(std::string& text) {
  const auto length = bytes_.take_number<std::uint16_t>();
  if (!length) return false;
  const auto bytes = bytes_.take(has(kIsUnicode) ? std::size_t{2} * *length : *length);
  if (!bytes) return false;
  text = has(kIsUnicode) ? utf8_from_utf16le(*bytes) : page_.decode(*bytes);
  text.resize(std::min(text.size(), text.find('\0')));  // what reads it stops there
  return true;
}

// Blocks up to one of fewer than four bytes. Some writers leave that one out at the end of the
// file.
bool LinkParser::take_blocks() {
  while (!bytes_.rest().empty()) {
    const auto size = number_at<std::uint32_t>(bytes_.rest(), 0);
    if (!size) return false;
    if (*size < sizeof(std::uint32_t)) break;
    const auto block = bytes_.take(*size);
    if (!block) return false;
    if (number_at<std::uint32_t>(*block, 4) != kEnvironmentBlock) continue;
    if (!take_environment_path(*block)) return false;
  }
  // A file that ends where this block should stand is torn.
  return !has(kHasEnvironmentPath) || environment_path_.has_value();
}

bool LinkParser::take_environment_path(std::string_view block) {
  if (block.size() < kEnvironmentBlockSize) return false;
  const auto wide = wide_text_at(block, kWideEnvironmentText);
  const auto narrow = text_at(block.substr(0, kWideEnvironmentText), kEnvironmentText);
  if (!wide || !narrow) return false;
  environment_path_ = wide->empty() ? page_.decode(*narrow) : utf8_from_utf16le(*wide);
  return true;
}

std::string LinkParser::target() const {
  if (!info_path_.empty()) return info_path_;
  if (!items_path_.empty()) return items_path_;
  return environment_path_ ? environment_.expand(*environment_path_) : std::string();
}

}  // namespace

std::optional<LinkContent> parse_link(std::string_view bytes, const CodePage& page,
                                      const Environment& environment) {
  return LinkParser(bytes, page, environment).parse();
}

}  // namespace quillvane
