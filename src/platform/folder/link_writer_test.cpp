#include "platform/folder/link_writer.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/folder/host_code_page.h"

namespace quillvane {
namespace {

using std::literals::operator""s;

const CodePage& page() { return *host_code_page(1252); }

[[nodiscard]] LinkContent to(const std::string& target) {
  LinkContent content;
  content.target = target;
  return content;
}

TEST(LinkWriter, TheHeaderStandsAsPublished) {
  LinkContent content = to("C:\\a");
  content.icon_file = "i";
  content.icon_index = -2;
  content.show_command = 3;

  const std::string bytes = link_to_file(content, {0x21, 0x1234}, page()).value();

  EXPECT_EQ(bytes.substr(0, 20), "\x4C\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46"s);
  // Items, link info, description, icon, UTF-16; read-only and archive.
  EXPECT_EQ(bytes.substr(20, 8), "\xC7\0\0\0\x21\0\0\0"s);
  EXPECT_EQ(bytes.substr(28, 24), std::string(24, '\0'));
  EXPECT_EQ(bytes.substr(52, 12), "\x34\x12\0\0\xFE\xFF\xFF\xFF\x03\0\0\0"s);
  EXPECT_EQ(bytes.substr(64, 12), std::string(12, '\0'));
}

TEST(LinkWriter, TheTextsStandBehindTheirLengths) {
  LinkContent content = to("\\\\p\\s\\a");
  content.working_directory = "w\u00E4";
  content.arguments = "/a";
  content.icon_file = "i";

  const std::string bytes = link_to_file(content, {}, page()).value();

  const std::string texts =
      "\x0F\0A\0c\0c\0e\0s\0s\0 \0S\0h\0o\0r\0t\0c\0u\0t\0"s
      "\x02\0w\0\xE4\0\x02\0/\0a\0\x01\0i\0"s
      "\0\0\0\0"s;
  ASSERT_GT(bytes.size(), texts.size());
  EXPECT_EQ(bytes.substr(bytes.size() - texts.size()), texts);
}

TEST(LinkWriter, EmptyTextsAreLeftOut) {
  LinkContent content = to("C:\\a");
  content.icon_index = 4;  // of no file
  const std::string bytes = link_to_file(content, {}, page()).value();
  EXPECT_EQ(bytes.substr(20, 4), "\x87\0\0\0"s);
  EXPECT_EQ(bytes.substr(56, 4), "\0\0\0\0"s);
}

TEST(LinkWriter, ItemsAreComputerDriveFoldersAndTheTarget) {
  const std::string items = items_of_path("c:\\ab\\c", {0x20, 7}, page());
  const std::string computer =
      "\x14\0\x1F\x50\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\0\x2B\x30\x30\x9D"s;
  const std::string drive = "\x19\0\x2F"s + "C:\\" + std::string(19, '\0');
  const std::string folder =
      "\x2E\0\x31\0\0\0\0\0\0\0\0\0\x10\0ab\0\0"s
      "\x1C\0\x03\0\x04\0\xEF\xBE\0\0\0\0\0\0\0\0\x14\0\0\0a\0b\0\0\0\x12\0"s;
  const std::string file =
      "\x2A\0\x32\0\x07\0\0\0\0\0\0\0\x20\0c\0"s
      "\x1A\0\x03\0\x04\0\xEF\xBE\0\0\0\0\0\0\0\0\x14\0\0\0c\0\0\0\x10\0"s;
  EXPECT_EQ(items, computer + drive + folder + file + "\0\0"s);
}

TEST(LinkWriter, TheLinkInfoOfAPathHasItTwice) {
  EXPECT_EQ(
      info_of_path("C:\\\u0416", page()),
      // Size, header, local; volume at 36, path at 53, suffix at 58, both again at 60 and 70.
      "\x48\0\0\0\x24\0\0\0\x01\0\0\0\x24\0\0\0\x35\0\0\0\0\0\0\0\x3A\0\0\0\x3C\0\0\0\x46\0\0\0"s
      "\x11\0\0\0\x03\0\0\0\0\0\0\0\x10\0\0\0\0"s
      "C:\\?\0\0\0"s
      "C\0:\0\\\0\x16\x04\0\0\0\0"s);
}

TEST(LinkWriter, TheLinkInfoOfAShareHasItsNameAndWhatLiesBelow) {
  EXPECT_EQ(info_of_share("\\\\p\\s", "a", page()),
            // The share at 36, what lies below at 82, again at 84.
            "\x58\0\0\0\x24\0\0\0\x02\0\0\0\0\0\0\0\0\0\0\0\x24\0\0\0\x52\0\0\0\0\0\0\0\x54\0\0\0"s
            "\x2E\0\0\0\x02\0\0\0\x1C\0\0\0\0\0\0\0\0\0\x02\0\x22\0\0\0\0\0\0\0"s
            "\\\\p\\s\0\\\0\\\0p\0\\\0s\0\0\0"s
            "a\0a\0\0\0"s);
}

TEST(LinkWriter, TargetsAreFilesOfADriveOrAShare) {
  for (const char* target : {"C:\\", "c:\\a\\b", "\\\\server\\share", "\\\\server\\share\\a"}) {
    EXPECT_TRUE(link_to_file(to(target), {}, page())) << target;
  }
  for (const char* target : {"", "a.exe", "C:", "C:a", "1:\\a", "\\a", "\\\\server", "\\\\server\\",
                             "\\\\\\share", "\\\\server\\\\a", "http://a/"}) {
    EXPECT_FALSE(link_to_file(to(target), {}, page())) << target;
  }
}

TEST(LinkWriter, TextsThatTheFormatHasNoRoomForAreRefused) {
  EXPECT_TRUE(link_to_file(to("C:\\" + std::string(256, 'a')), {}, page()));
  EXPECT_FALSE(link_to_file(to("C:\\" + std::string(257, 'a')), {}, page()));
  LinkContent content = to("C:\\a");
  content.arguments = std::string(65535, 'x');
  EXPECT_TRUE(link_to_file(content, {}, page()));
  content.arguments += 'x';
  EXPECT_FALSE(link_to_file(content, {}, page()));
  EXPECT_FALSE(link_bytes({.environment_path = std::string(260, 'x')}));
}

}  // namespace
}  // namespace quillvane
