// The numbers of the published shell link format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillvane::link_format {

using std::literals::operator""sv;

inline constexpr std::uint32_t kHeaderSize = 0x4C;
inline constexpr std::string_view kClassId =
    "\x01\x14\x02\x00\x00\x00\x00\x00\xC0\x00\x00\x00\x00\x00\x00\x46"sv;

// What follows the header, and how.
inline constexpr std::uint32_t kHasItemList = 0x1;
inline constexpr std::uint32_t kHasLinkInfo = 0x2;
inline constexpr std::uint32_t kHasName = 0x4;
inline constexpr std::uint32_t kHasRelativePath = 0x8;
inline constexpr std::uint32_t kHasWorkingDirectory = 0x10;
inline constexpr std::uint32_t kHasArguments = 0x20;
inline constexpr std::uint32_t kHasIconFile = 0x40;
inline constexpr std::uint32_t kIsUnicode = 0x80;
inline constexpr std::uint32_t kIgnoresLinkInfo = 0x100;
inline constexpr std::uint32_t kHasEnvironmentPath = 0x200;

// Where the fields of the header stand.
inline constexpr std::size_t kClassIdAt = 4;
inline constexpr std::size_t kFlagsAt = 20;
inline constexpr std::size_t kAttributesAt = 24;
inline constexpr std::size_t kFileSizeAt = 52;
inline constexpr std::size_t kIconIndexAt = 56;
inline constexpr std::size_t kShowCommandAt = 60;

// Link info.
inline constexpr std::uint32_t kInfoHeaderSize = 0x1C;
inline constexpr std::uint32_t kWideInfoHeaderSize = 0x24;  // with the places of texts in UTF-16
inline constexpr std::uint32_t kInfoIsLocal = 0x1;
inline constexpr std::uint32_t kInfoIsNetwork = 0x2;
inline constexpr std::uint32_t kShareHeaderSize = 0x14;

// Items of an item list, by their first byte.
inline constexpr unsigned char kRootItem = 0x1F;
inline constexpr unsigned char kFolderItem = 0x31;
inline constexpr unsigned char kFileItem = 0x32;
inline constexpr unsigned char kDriveItem = 0x2F;
// "My Computer", the item above the drives.
inline constexpr std::string_view kComputer =
    "\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\x00\x2B\x30\x30\x9D"sv;
// Blocks with an item's long name begin so, and have its place in this field.
inline constexpr std::uint32_t kLongNameBlock = 0xBEEF0004;
inline constexpr std::size_t kLongNamePlaceAt = 16;

// Extra blocks.
inline constexpr std::uint32_t kEnvironmentBlock = 0xA0000001;
inline constexpr std::uint32_t kEnvironmentBlockSize = 0x314;
inline constexpr std::size_t kEnvironmentText = 8;
inline constexpr std::size_t kWideEnvironmentText = 8 + 260;

}  // namespace quillvane::link_format
