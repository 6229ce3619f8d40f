// The item lists of links that are written.
#include "platform/file_system.h"
#include "platform/folder/link_format.h"
#include "platform/folder/link_put.h"
#include "platform/folder/link_writer.h"
#include "platform/folder/windows_path.h"

namespace quillvane {

using namespace link_format;

namespace {

void put_item(std::string& list, std::string_view item) {
  put_number(list, static_cast<std::uint16_t>(item.size() + 2));
  list += item;
}

std::string root_item(std::string_view class_id) {
  constexpr char kOrder = 0x50;
  return std::string{static_cast<char>(kRootItem), kOrder} + std::string(class_id);
}

std::string drive_item(char letter) {
  constexpr std::size_t kSize = 0x17;
  std::string item{static_cast<char>(kDriveItem), letter, ':', '\\'};
  item.resize(kSize);
  return item;
}

// The block with the long name of an item, `place` bytes from the item's size.
void put_long_name(std::string& item, std::string_view name) {
  constexpr std::uint16_t kVersion = 3;
  constexpr std::uint16_t kNamePlace = 0x14;
  const std::size_t place = item.size() + 2;
  std::string block;
  put_number(block, std::uint16_t{0});
  put_number(block, kVersion);
  put_number(block, kLongNameBlock);
  block.append(8, '\0');  // when it was made and read
  put_number(block, kNamePlace);
  put_number(block, std::uint16_t{0});
  put_wide(block, name);
  put_number(block, static_cast<std::uint16_t>(place));
  set_number(block, 0, static_cast<std::uint16_t>(block.size()));
  item += block;
}

std::string file_item(std::string_view name, const LinkTarget& target, const CodePage& page) {
  const bool is_folder = (target.attributes & kAttributeFolder) != 0;
  std::string item{static_cast<char>(is_folder ? kFolderItem : kFileItem), '\0'};
  put_number(item, target.size_bytes);
  put_number(item, std::uint32_t{0});  // when it was changed
  put_number(item, static_cast<std::uint16_t>(target.attributes));
  put_narrow(item, name, page);
  make_even(item);
  put_long_name(item, name);
  return item;
}

}  // namespace

std::string items_of_path(std::string_view path, const LinkTarget& target, const CodePage& page) {
  std::string list;
  const auto parsed = parse_windows_path(path);
  if (parsed) {
    put_item(list, root_item(kComputer));
    put_item(list, drive_item(parsed->drive));
    for (const std::string& name : parsed->names) {
      const bool is_last = &name == &parsed->names.back();
      put_item(list, file_item(name, is_last ? target : LinkTarget{kAttributeFolder, 0}, page));
    }
  }
  put_number(list, std::uint16_t{0});
  return list;
}

std::string items_of_class(std::string_view class_id) {
  std::string list;
  put_item(list, root_item(class_id));
  put_number(list, std::uint16_t{0});
  return list;
}

}  // namespace quillvane
