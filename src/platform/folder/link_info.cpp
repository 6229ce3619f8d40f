// Where the target of a link lies: on a volume of the PC, or on a share.
#include "platform/folder/link_bytes.h"
#include "platform/folder/link_file.h"
#include "platform/folder/link_format.h"
#include "platform/utf8.h"

namespace quillvane {

using namespace link_format;

namespace {

// The places of one text in a structure: in the code page, and in UTF-16 where that is there (0: it
// is not).
struct TextPlaces {
  std::uint32_t narrow = 0;
  std::uint32_t wide = 0;
};

std::optional<std::string> read_text(std::string_view bytes, const TextPlaces& places,
                                     const CodePage& page) {
  if (places.wide != 0) {
    const auto text = wide_text_at(bytes, places.wide);
    return text ? std::optional(utf8_from_utf16le(*text)) : std::nullopt;
  }
  if (places.narrow == 0) return std::string();
  const auto text = text_at(bytes, places.narrow);
  return text ? std::optional(page.decode(*text)) : std::nullopt;
}

// The fields of the link info that tell where something stands.
struct InfoFields {
  std::uint32_t flags = 0;
  TextPlaces base;
  std::uint32_t share = 0;
  TextPlaces suffix;
};

std::optional<InfoFields> read_fields(std::string_view info) {
  const auto header_size = number_at<std::uint32_t>(info, 4);
  if (!header_size || *header_size < kInfoHeaderSize || *header_size > info.size()) {
    return std::nullopt;
  }
  const auto field = [info](std::size_t at) { return *number_at<std::uint32_t>(info, at); };
  InfoFields fields{.flags = field(8),
                    .base = {.narrow = field(16)},
                    .share = field(20),
                    .suffix = {.narrow = field(24)}};
  if (*header_size >= kWideInfoHeaderSize) {
    fields.base.wide = field(28);
    fields.suffix.wide = field(32);
  }
  return fields;
}

// The name of the share, "\\server\share".
std::optional<std::string> share_name(std::string_view info, std::uint32_t at,
                                      const CodePage& page) {
  if (at > info.size()) return std::nullopt;
  const std::string_view begin = info.substr(at);
  const auto size = number_at<std::uint32_t>(begin, 0);
  if (!size || *size < kShareHeaderSize || *size > begin.size()) return std::nullopt;
  const std::string_view share = begin.substr(0, *size);
  TextPlaces name{.narrow = *number_at<std::uint32_t>(share, 8)};
  if (name.narrow > kShareHeaderSize) {
    const auto wide = number_at<std::uint32_t>(share, kShareHeaderSize);
    if (!wide) return std::nullopt;
    name.wide = *wide;
  }
  return read_text(share, name, page);
}

std::string joined(const std::string& share, const std::string& suffix) {
  if (share.empty() || suffix.empty()) return share;
  return share.ends_with('\\') ? share + suffix : share + "\\" + suffix;
}

}  // namespace

std::optional<std::string> path_of_link_info(std::string_view info, const CodePage& page) {
  const auto fields = read_fields(info);
  if (!fields) return std::nullopt;
  const auto suffix = read_text(info, fields->suffix, page);
  if (!suffix) return std::nullopt;
  if ((fields->flags & kInfoIsLocal) != 0) {
    const auto base = read_text(info, fields->base, page);
    if (!base) return std::nullopt;
    if (!base->empty()) return *base + *suffix;
  }
  if ((fields->flags & kInfoIsNetwork) == 0) return std::string();
  const auto share = share_name(info, fields->share, page);
  return share ? std::optional(joined(*share, *suffix)) : std::nullopt;
}

}  // namespace quillvane
