// The item list of a link: the way to its target through the folders of the shell.
#include <string>
#include <vector>

#include "platform/folder/link_bytes.h"
#include "platform/folder/link_file.h"
#include "platform/folder/link_format.h"
#include "platform/utf8.h"

namespace quillvane {

using namespace link_format;

namespace {

using Items = std::vector<std::string_view>;  // each without its size

// Nothing when the sizes do not lead to the empty item at the end.
std::optional<Items> split_items(std::string_view list) {
  LinkBytes bytes(list);
  Items items;
  for (;;) {
    const auto size = bytes.take_number<std::uint16_t>();
    if (!size) return std::nullopt;
    if (*size == 0) return items;
    if (*size < sizeof(std::uint16_t)) return std::nullopt;
    const auto item = bytes.take(*size - sizeof(std::uint16_t));
    if (!item) return std::nullopt;
    items.push_back(*item);
  }
}

unsigned char kind_of(std::string_view item) {
  return item.empty() ? 0 : static_cast<unsigned char>(item[0]);
}

bool is_computer(std::string_view item) {
  return kind_of(item) == kRootItem && item.size() >= 2 + kComputer.size() &&
         item.substr(2, kComputer.size()) == kComputer;
}

// "C:\" of a drive's item; empty for any other.
std::string drive_of(std::string_view item) {
  const unsigned char kind = kind_of(item);
  const bool is_volume = (kind & 0x70U) == 0x20 && item.size() >= 4;
  if (!is_volume || item[2] != ':') return {};
  return std::string(item.substr(1, 2)) + "\\";
}

bool is_file_or_folder(std::string_view item) { return (kind_of(item) & 0x70U) == 0x30; }

// The long name, from the block that the last field of the item leads to; empty when there is none.
std::string long_name_of(std::string_view item) {
  if (item.size() < 2) return {};
  const auto place = number_at<std::uint16_t>(item, item.size() - 2);
  if (!place || *place < 2 || *place - 2U > item.size()) return {};  // it counts the item's size
  const std::string_view block = item.substr(*place - 2U);
  if (number_at<std::uint32_t>(block, 4) != kLongNameBlock) return {};
  const auto name_place = number_at<std::uint16_t>(block, kLongNamePlaceAt);
  const auto name = name_place ? wide_text_at(block, *name_place) : std::nullopt;
  return name ? utf8_from_utf16le(*name) : std::string();
}

// The name of a file's or folder's item; empty when it has none.
std::string name_of(std::string_view item, const CodePage& page) {
  constexpr std::size_t kNameAt = 12;
  constexpr unsigned char kIsWide = 4;
  std::string name = long_name_of(item);
  if (!name.empty()) return name;
  if ((kind_of(item) & kIsWide) != 0) {
    const auto wide = wide_text_at(item, kNameAt);
    return wide ? utf8_from_utf16le(*wide) : std::string();
  }
  const auto narrow = text_at(item, kNameAt);
  return narrow ? page.decode(*narrow) : std::string();
}

// "\\server\share" of a network place's item; empty for any other.
std::string share_of(std::string_view item, const CodePage& page) {
  constexpr std::size_t kNameAt = 3;
  if ((kind_of(item) & 0x70U) != 0x40) return {};
  const auto name = text_at(item, kNameAt);
  const bool is_share = name && name->starts_with("\\\\") && name->find('\\', 2) != name->npos;
  return is_share ? page.decode(*name) : std::string();
}

}  // namespace

std::optional<std::string> path_of_items(std::string_view items, const CodePage& page) {
  const auto list = split_items(items);
  if (!list) return std::nullopt;
  std::string path;
  for (std::size_t i = 0; i < list->size(); ++i) {
    const std::string_view item = (*list)[i];
    if (path.empty()) {
      path = i == 1 && is_computer(list->front()) ? drive_of(item) : share_of(item, page);
      continue;
    }
    const std::string name = is_file_or_folder(item) ? name_of(item, page) : std::string();
    if (name.empty()) return std::string();  // a place inside a file, or of the shell alone
    if (!path.ends_with('\\')) path += '\\';
    path += name;
  }
  return path;
}

}  // namespace quillvane
