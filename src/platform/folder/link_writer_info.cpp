// The link infos of links that are written: each text in the code page and in UTF-16.
#include "platform/folder/link_format.h"
#include "platform/folder/link_put.h"
#include "platform/folder/link_writer.h"

namespace quillvane {

using namespace link_format;

namespace {

// Where the places of the parts stand.
constexpr std::size_t kVolumeField = 12;
constexpr std::size_t kBaseField = 16;
constexpr std::size_t kShareField = 20;
constexpr std::size_t kSuffixField = 24;
constexpr std::size_t kWideBaseField = 28;
constexpr std::size_t kWideSuffixField = 32;

std::string empty_info(std::uint32_t kind) {
  std::string info(kWideInfoHeaderSize, '\0');
  set_number(info, 4, kWideInfoHeaderSize);
  set_number(info, 8, kind);
  return info;
}

// What comes next stands at the end.
void note_place(std::string& info, std::size_t field) {
  set_number(info, field, static_cast<std::uint32_t>(info.size()));
}

void put_suffix_and_close(std::string& info, std::string_view suffix, std::string_view wide_base,
                          const CodePage& page) {
  note_place(info, kSuffixField);
  put_narrow(info, suffix, page);
  make_even(info);
  if (!wide_base.empty()) {
    note_place(info, kWideBaseField);
    put_wide(info, wide_base);
  }
  note_place(info, kWideSuffixField);
  put_wide(info, suffix);
  set_number(info, 0, static_cast<std::uint32_t>(info.size()));
}

// A volume without serial number and label.
std::string volume() {
  constexpr std::uint32_t kSize = 0x11;
  constexpr std::uint32_t kFixedDrive = 3;
  constexpr std::uint32_t kLabelPlace = 0x10;
  std::string bytes;
  put_number(bytes, kSize);
  put_number(bytes, kFixedDrive);
  put_number(bytes, std::uint32_t{0});
  put_number(bytes, kLabelPlace);
  bytes.push_back('\0');
  return bytes;
}

std::string share_part(std::string_view share, const CodePage& page) {
  constexpr std::uint32_t kWideHeader = 0x1C;
  constexpr std::uint32_t kHasProvider = 2;
  constexpr std::uint32_t kLanManager = 0x20000;
  std::string bytes;
  put_number(bytes, std::uint32_t{0});
  put_number(bytes, kHasProvider);
  put_number(bytes, kWideHeader);
  put_number(bytes, std::uint32_t{0});  // no letter stands for the share
  put_number(bytes, kLanManager);
  put_number(bytes, std::uint32_t{0});
  put_number(bytes, std::uint32_t{0});
  put_narrow(bytes, share, page);
  make_even(bytes);
  note_place(bytes, kShareHeaderSize);
  put_wide(bytes, share);
  set_number(bytes, 0, static_cast<std::uint32_t>(bytes.size()));
  return bytes;
}

}  // namespace

std::string info_of_path(std::string_view path, const CodePage& page) {
  std::string info = empty_info(kInfoIsLocal);
  note_place(info, kVolumeField);
  info += volume();
  note_place(info, kBaseField);
  put_narrow(info, path, page);
  put_suffix_and_close(info, "", path, page);
  return info;
}

std::string info_of_share(std::string_view share, std::string_view suffix, const CodePage& page) {
  std::string info = empty_info(kInfoIsNetwork);
  note_place(info, kShareField);
  info += share_part(share, page);
  put_suffix_and_close(info, suffix, "", page);
  return info;
}

}  // namespace quillvane
