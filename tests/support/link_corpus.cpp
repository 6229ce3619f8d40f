#include "tests/support/link_corpus.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>

#include "platform/folder/host_code_page.h"
#include "platform/folder/link_writer.h"
#include "tests/support/published_link.h"

namespace quillvane {

namespace {

using std::literals::operator""s;

const CodePage& page() { return *host_code_page(1252); }

// What a class makes of its nth link: the file's bytes, and the target as a reader tells it.
struct MadeLink {
  std::string bytes;
  std::string target;
};

// A link to a file can lead there by its link info, by its items, or by both.
MadeLink leads_to(const std::string& target, const LinkTarget& facts, int n) {
  LinkParts parts{.target = facts};
  if (n % 3 != 0) parts.items = items_of_path(target, facts, page());
  if (n % 3 != 1) parts.info = info_of_path(target, page());
  if (n % 2 == 0) parts.arguments = "/n " + std::to_string(n);
  return {link_bytes(parts).value(), target};
}

// Every fifth name has a letter that the machine's code page does not have.
std::string name_of(int n) {
  const std::string letter = n % 5 == 0 ? "\u0416" : n % 5 == 1 ? "\u00E4" : "x";
  return letter + std::to_string(n);
}

MadeLink to_marked_file(TempMachine& machine, const std::string& folder, std::uint32_t bits,
                        int n) {
  const std::string target = "C:\\Targets\\" + folder + "\\" + name_of(n) + ".txt";
  machine.add_file(target, 5);
  if (bits != 0) {
    EXPECT_TRUE(machine.platform().files.set_attributes(target, bits)) << target;
  }
  return leads_to(target, {bits == 0 ? kAttributeArchive : bits, 5}, n);
}

MadeLink to_file(TempMachine& machine, int n) { return to_marked_file(machine, "files", 0, n); }

MadeLink to_folder(TempMachine& machine, int n) {
  const std::string target = "C:\\Targets\\folders\\" + name_of(n);
  machine.add_folder(target);
  return leads_to(target, {kAttributeFolder, 0}, n);
}

// Hidden or system, files and folders.
MadeLink to_hidden(TempMachine& machine, int n) {
  const std::uint32_t bits = n % 2 == 0 ? kAttributeHidden : kAttributeHidden | kAttributeSystem;
  if (n % 3 != 0) return to_marked_file(machine, "hidden", bits, n);
  const MadeLink link = to_folder(machine, 100 + n);
  EXPECT_TRUE(machine.platform().files.set_attributes(link.target, bits)) << link.target;
  return link;
}

MadeLink to_read_only(TempMachine& machine, int n) {
  if (n % 3 != 0) return to_marked_file(machine, "fixed", kAttributeReadOnly, n);
  const MadeLink link = to_folder(machine, 200 + n);
  EXPECT_TRUE(machine.platform().files.set_attributes(link.target, kAttributeReadOnly));
  return link;
}

// The file alone is gone, or its folder, too.
MadeLink to_missing(TempMachine& machine, int n) {
  machine.add_folder("C:\\Targets\\there");
  const std::string folder = n % 2 == 0 ? "there" : "gone";
  return leads_to("C:\\Targets\\" + folder + "\\" + name_of(n) + ".exe", {kAttributeArchive, 9}, n);
}

MadeLink to_missing_drive(TempMachine&, int n) {
  return leads_to("Q:\\" + name_of(n) + ".exe", {kAttributeArchive, 9}, n);
}

MadeLink to_share(TempMachine&, int n) {
  const std::string share = "\\\\server\\" + name_of(n);
  const std::string suffix = n % 3 == 0 ? "" : "sub\\a.txt";
  return {link_bytes({.info = info_of_share(share, suffix, page())}).value(),
          suffix.empty() ? share : share + "\\" + suffix};
}

MadeLink to_nothing(TempMachine&, int n) {
  LinkParts parts{.arguments = "/n", .show_command = n % 2 == 0 ? 1 : 7};
  if (n % 3 == 0) parts.working_directory = "C:\\Links";
  return {link_bytes(parts).value(), ""};
}

MadeLink to_shell_item(TempMachine&, int n) {
  std::string class_id = "\x20\x20\xEC\x21\xEA\x3A\x69\x10\xA2\xDD\x08\x00\x2B\x30\x30\x9D"s;
  class_id[0] = static_cast<char>(n);
  return {link_bytes({.items = items_of_class(class_id), .icon_file = "C:\\x.dll"}).value(), ""};
}

MadeLink by_environment(TempMachine& machine, int n) {
  const std::string name = "\\" + name_of(n) + ".txt";
  machine.add_file("C:\\Users\\User" + name);
  LinkParts parts{.environment_path = "%userprofile%" + name};
  if (n % 2 == 0) parts.items = items_of_class(std::string(16, 'c'));
  return {link_bytes(parts).value(), "C:\\Users\\User" + name};
}

MadeLink garbage(TempMachine&, int n) {
  const std::string link = published_link();
  std::string other = link;
  switch (n % 5) {
    case 0:
      return {std::string(static_cast<std::size_t>(n), '\0'), ""};
    case 1:
      return {"[InternetShortcut]\r\nURL=http://weather.example/\r\n", ""};
    case 2:
      return {link.substr(0, 80U + 20U * static_cast<unsigned>(n)), ""};
    case 3:
      other[static_cast<std::size_t>(n)] ^= 0x40;  // in the size or in the class identifier
      return {other, ""};
    default:
      other[76] = '\xFF';  // the items are as long as the file
      other[77] = '\xFF';
      return {other, ""};
  }
}

// Of 255 to 259 characters; a reader has room for 254.
MadeLink to_overlong(TempMachine& machine, int n) {
  const std::size_t length = 255U + static_cast<unsigned>(n) % 5;
  std::string target = "C:\\Targets\\" + std::string(120, 'a') + "\\" + std::to_string(n) + "\\";
  target += std::string(length - target.size(), 'b');
  machine.add_file(target);
  return {leads_to(target, {kAttributeArchive, 0}, n).bytes, target.substr(0, 254)};
}

struct LinkClass {
  const char* name;
  int count;
  MadeLink (*make)(TempMachine& machine, int n);
};

constexpr LinkClass kClasses[] = {
    {"file", 30, to_file},
    {"folder", 20, to_folder},
    {"hidden", 15, to_hidden},
    {"read-only", 15, to_read_only},
    {"missing", 30, to_missing},
    {"missing drive", 15, to_missing_drive},
    {"share", 15, to_share},
    {"empty target", 10, to_nothing},
    {"shell item", 15, to_shell_item},
    {"environment path", 15, by_environment},
    {"garbage", 10, garbage},
    {"overlong", 10, to_overlong},
};

}  // namespace

std::vector<CorpusLink> stage_link_corpus(TempMachine& machine) {
  std::vector<CorpusLink> links;
  for (const LinkClass& each : kClasses) {
    for (int n = 0; n < each.count; ++n) {
      const std::string number = (n < 10 ? "0" : "") + std::to_string(n);
      const std::string path =
          std::string(kLinkCorpusFolder) + "\\" + each.name + "\\" + number + ".lnk";
      const MadeLink link = each.make(machine, n);
      machine.add_text_file(path, link.bytes);
      links.push_back({each.name, path, link.target});
    }
  }
  return links;
}

}  // namespace quillvane
