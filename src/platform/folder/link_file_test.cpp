#include "platform/folder/link_file.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/folder/host_code_page.h"
#include "platform/folder/link_writer.h"
#include "platform/folder/machine_environment.h"
#include "platform/folder/machine_state.h"
#include "tests/support/published_link.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

class LinkFile : public testing::Test {
 protected:
  LinkFile() { state_.environment = default_environment(); }

  [[nodiscard]] std::optional<LinkContent> parse(std::string_view bytes) const {
    return parse_link(bytes, *host_code_page(1252), environment_);
  }
  // The target, or a text that no link has.
  [[nodiscard]] std::string target_of(std::string_view bytes) const {
    const auto link = parse(bytes);
    return link ? link->target : "(torn)";
  }
  [[nodiscard]] std::string target_of(const LinkParts& parts) const {
    return target_of(link_bytes(parts).value());
  }

  // A header with these flags, minimised, its icon the third from the end.
  [[nodiscard]] static std::string header(std::uint32_t flags) {
    std::string bytes = published_link().substr(0, 76);
    bytes[20] = static_cast<char>(flags & 0xFFU);
    bytes[21] = static_cast<char>(flags >> 8U & 0xFFU);
    bytes[22] = '\0';
    bytes.replace(56, 4, "\xFD\xFF\xFF\xFF");
    bytes[60] = 7;
    return bytes;
  }

  MachineState state_;
  MachineEnvironment environment_{state_};
  const CodePage& page_ = *host_code_page(1252);
};

TEST_F(LinkFile, ThePublishedExampleIsRead) {
  const auto link = parse(published_link());
  ASSERT_TRUE(link);
  EXPECT_TRUE(link->has_target);
  EXPECT_EQ(link->target, "C:\\test\\a.txt");
  EXPECT_EQ(link->working_directory, "C:\\test");
  EXPECT_EQ(link->arguments, "");
  EXPECT_EQ(link->icon_file, "");
  EXPECT_EQ(link->icon_index, 0);
  EXPECT_EQ(link->show_command, 1);
}

TEST_F(LinkFile, WhatIsCutOffAnywhereIsNoLink) {
  const std::string whole = published_link();
  // The last block, the one that ends the blocks, is left out by some writers.
  const std::size_t blocks = whole.size() - 4 - 0x60;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const bool is_whole = length == blocks || length == whole.size() - 4;
    EXPECT_EQ(parse(whole.substr(0, length)).has_value(), is_whole) << length;
  }
}

TEST_F(LinkFile, OtherFilesAreNoLinks) {
  EXPECT_FALSE(parse(""));
  EXPECT_FALSE(parse("[InternetShortcut]\r\nURL=http://a/\r\n" + std::string(100, ' ')));
  std::string other_class = published_link();
  other_class[4] = 2;
  EXPECT_FALSE(parse(other_class));
  std::string other_size = published_link();
  other_size[0] = 0x4D;
  EXPECT_FALSE(parse(other_size));
}

TEST_F(LinkFile, AHeaderAloneIsALinkToNothing) {
  const auto link = parse(header(0x80));
  ASSERT_TRUE(link);
  EXPECT_TRUE(link->has_target);
  EXPECT_EQ(link->target, "");
  EXPECT_EQ(link->icon_index, -3);
  EXPECT_EQ(link->show_command, 7);
}

TEST_F(LinkFile, ShowCommandsThatTheFormatDoesNotHaveAreTheNormalOne) {
  for (const auto& [stored, told] : {std::pair(0, 1), {1, 1}, {2, 1}, {3, 3}, {5, 1}, {7, 7}}) {
    std::string bytes = header(0x80);
    bytes[60] = static_cast<char>(stored);
    EXPECT_EQ(parse(bytes)->show_command, told) << stored;
  }
}

TEST_F(LinkFile, TextsFollowEachOtherInTheirOrder) {
  const auto link = parse(header(0x4 | 0x8 | 0x10 | 0x20 | 0x40) +
                          "\x01\0n\x02\0.a\x04\0C:\\w\x03\0/ \xE4\x03\0a,b"s + "\0\0\0\0"s);
  ASSERT_TRUE(link);
  EXPECT_EQ(link->working_directory, "C:\\w");
  EXPECT_EQ(link->arguments, "/ \u00E4");  // in the code page, as the mark of UTF-16 is missing
  EXPECT_EQ(link->icon_file, "a,b");
}

TEST_F(LinkFile, TextsEndAtAZero) {
  EXPECT_EQ(parse(header(0x20) + "\x03\0a\0b"s)->arguments, "a");
}

TEST_F(LinkFile, TheLocalPathTakesItsSuffix) {
  // Header of 28 bytes; volume at 28, base at 45, suffix at 49.
  const std::string info =
      "\x38\0\0\0\x1C\0\0\0\x01\0\0\0\x1C\0\0\0\x2D\0\0\0\0\0\0\0\x31\0\0\0"s
      "\x11\0\0\0\x03\0\0\0\0\0\0\0\x10\0\0\0\0"s
      "D:\\\0b\\\xE4.txt\0"s;
  ASSERT_EQ(info.size(), 0x39U);
  std::string exact = info;
  exact[0] = 0x39;
  EXPECT_EQ(target_of(header(0x82) + exact), "D:\\b\\\u00E4.txt");
  // One byte less, and the suffix has no end.
  EXPECT_EQ(target_of(header(0x82) + info.substr(0, 0x38)), "(torn)");
}

TEST_F(LinkFile, TheShareTakesTheSuffixBehindABackslash) {
  // Header of 28 bytes; the share at 28, its name 20 bytes on; the suffix at 56.
  const std::string info =
      "\x3E\0\0\0\x1C\0\0\0\x02\0\0\0\0\0\0\0\0\0\0\0\x1C\0\0\0\x38\0\0\0"s
      "\x1C\0\0\0\x02\0\0\0\x14\0\0\0\0\0\0\0\0\0\x02\0\\\\pc\\s2\0a.txt\0"s;
  ASSERT_EQ(info.size(), 0x3EU);
  EXPECT_EQ(target_of(header(0x82) + info), "\\\\pc\\s2\\a.txt");
}

TEST_F(LinkFile, TextsInUtf16ComeBeforeThoseInTheCodePage) {
  const LinkParts local{.info = info_of_path("C:\\\u0416\\a.txt", page_)};
  EXPECT_EQ(target_of(local), "C:\\\u0416\\a.txt");
  const LinkParts share{.info = info_of_share("\\\\pc\\\u0416", "\u0416.txt", page_)};
  EXPECT_EQ(target_of(share), "\\\\pc\\\u0416\\\u0416.txt");
}

TEST_F(LinkFile, WithoutALinkInfoTheItemsLeadToTheTarget) {
  std::string bytes = published_link();
  bytes[21] = 1;  // the link info is passed over
  EXPECT_EQ(target_of(bytes), "C:\\test\\a.txt");
  const LinkParts folder{.items = items_of_path("d:\\Old \u0416\\x", {0x10, 0}, page_)};
  EXPECT_EQ(target_of(folder), "D:\\Old \u0416\\x");
  const LinkParts drive{.items = items_of_path("C:\\", {0x10, 0}, page_)};
  EXPECT_EQ(target_of(drive), "C:\\");
}

TEST_F(LinkFile, NamesOfItemsWithoutALongNameAreThoseOfTheItem) {
  const std::string computer =
      "\x14\0\x1F\x50\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\0\x2B\x30\x30\x9D"s;
  const std::string drive = "\x07\0\x2F"s + "D:\\\0"s;
  const std::string narrow = "\x12\0\x32\0\0\0\0\0\0\0\0\0\0\0"s + "\xE4.c\0"s;
  EXPECT_EQ(path_of_items(computer + drive + narrow + "\0\0"s, page_), "D:\\\u00E4.c");
  const std::string wide = "\x14\0\x36\0\0\0\0\0\0\0\0\0\0\0"s + "\x16\x04" + "c\0\0\0"s;
  EXPECT_EQ(path_of_items(computer + drive + wide + "\0\0"s, page_), "D:\\\u0416c");
}

TEST_F(LinkFile, ItemsOfAShareLeadToIt) {
  const std::string network = "\x14\0\x1F\x58"s + std::string(16, 'n');
  const std::string server = "\x0A\0\x42\0\0\\\\pc\0"s;
  const std::string share = "\x0C\0\xC3\0\0\\\\pc\\s\0"s;
  const std::string file = "\x10\0\x32\0\0\0\0\0\0\0\0\0\0\0a\0"s;
  EXPECT_EQ(path_of_items(network + server + share + file + "\0\0"s, page_), "\\\\pc\\s\\a");
}

TEST_F(LinkFile, PlacesOfTheShellHaveNoPath) {
  const LinkParts place{.items = items_of_class(std::string(16, 'c'))};
  EXPECT_EQ(target_of(place), "");
  // What lies inside a file, such as a folder of an archive, is no file itself.
  std::string inside = items_of_path("C:\\a.zip", {0x20, 5}, page_);
  inside.replace(inside.size() - 2, 2, "\x06\0\x52\0x\0\0\0"s);
  EXPECT_EQ(path_of_items(inside, page_), "");
}

TEST_F(LinkFile, ItemsThatDoNotFitIntoEachOtherAreTorn) {
  EXPECT_EQ(path_of_items("", page_), std::nullopt);
  EXPECT_EQ(path_of_items("\x01\0\0"s, page_), std::nullopt);
  EXPECT_EQ(path_of_items("\x09\0\x32\0\0\0\0"s, page_), std::nullopt);
  EXPECT_EQ(path_of_items("\x04\0\x32\0"s, page_), std::nullopt);  // no end behind it
  EXPECT_EQ(path_of_items("\0\0"s, page_), "");
}

TEST_F(LinkFile, APathWithReferencesLeadsWhereNothingElseDoes) {
  const LinkParts alone{.environment_path = "%windir%\\notepad.exe"};
  EXPECT_EQ(target_of(alone), "C:\\Windows\\notepad.exe");
  const LinkParts place{.items = items_of_class(std::string(16, 'c')),
                        .environment_path = "%USERPROFILE%\\\u0416 %1"};
  EXPECT_EQ(target_of(place), "C:\\Users\\User\\\u0416 %1");
  const LinkParts both{.info = info_of_path("C:\\a", page_), .environment_path = "%windir%\\b"};
  EXPECT_EQ(target_of(both), "C:\\a");
}

TEST_F(LinkFile, ALinkWithoutTheBlockThatItsHeaderTellsOfIsTorn) {
  EXPECT_FALSE(parse(header(0x80 | 0x200) + "\0\0\0\0"s));
  EXPECT_FALSE(parse(header(0x80 | 0x200)));
}

TEST_F(LinkFile, BlocksOfOtherKindsArePassedOver) {
  const std::string other = "\x0A\0\0\0\x09\0\0\xA0xy"s;
  const LinkParts parts{.environment_path = "%windir%\\a"};
  std::string bytes = link_bytes(parts).value();
  bytes.insert(76, other);
  EXPECT_EQ(target_of(bytes), "C:\\Windows\\a");
  bytes.append("behind the last block is whatever it may be");
  EXPECT_EQ(target_of(bytes), "C:\\Windows\\a");
  EXPECT_FALSE(parse(header(0x80) + "\xFF\xFF\xFF\xFF\x09\0\0\xA0"s));
}

TEST_F(LinkFile, PlacesOutsideTheLinkInfoAreTorn) {
  const std::string whole = info_of_path("C:\\a.txt", page_);
  for (const std::size_t field : {16U, 24U, 28U, 32U}) {
    std::string info = whole;
    info.replace(field, 4, "\xFF\xFF\xFF\x7F");
    // The places in UTF-16 are asked for first, the others not at all.
    const bool is_asked = field >= 28;
    EXPECT_EQ(path_of_link_info(info, page_).has_value(), !is_asked) << field;
  }
  std::string share = info_of_share("\\\\pc\\s", "a", page_);
  share.replace(20, 4, "\xFF\xFF\xFF\x7F");
  EXPECT_EQ(path_of_link_info(share, page_), std::nullopt);
  EXPECT_EQ(path_of_link_info("\x04\0\0\0"s, page_), std::nullopt);
}

}  // namespace
}  // namespace quillvane
