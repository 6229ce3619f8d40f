#include "machine/demo_links.h"

#include <cstddef>
#include <string_view>

#include "platform/code_page.h"
#include "platform/file_system.h"
#include "platform/folder/link_writer.h"

namespace quillvane {

namespace {

using std::literals::operator""sv;

constexpr DemoLink kLinks[] = {
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Ledger\\"
     "Ledger.lnk",
     DemoTarget::kFile, "C:\\Program Files\\Ledger\\ledger.exe", 4'812'288},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Ledger\\"
     "Read me.lnk",
     DemoTarget::kFile, "C:\\Program Files\\Ledger\\readme.txt", 3'204},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Ledger\\"
     "Uninstall Ledger.lnk",
     DemoTarget::kMissing, "C:\\Program Files\\Ledger\\uninstall.exe"},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Accessories\\"
     "Notepad.lnk",
     DemoTarget::kEnvironment, "%WinDir%\\notepad.exe", 201'216},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Old Player\\"
     "Old Player.lnk",
     DemoTarget::kMissing, "C:\\Program Files\\Old Player\\player.exe"},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Old Player\\"
     "Help of Old Player.lnk",
     DemoTarget::kMissing, "C:\\Program Files\\Old Player\\help.chm"},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\"
     "Backup.lnk",
     DemoTarget::kFolder, "D:\\Backup"},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\"
     "Photos on the stick.lnk",
     DemoTarget::kNoDrive, "E:\\Photos\\album.html"},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\"
     "Plans of the team.lnk",
     DemoTarget::kShare, "\\\\office\\team\\plans.xls"},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\"
     "Control Panel.lnk",
     DemoTarget::kShellPlace, "Control Panel"},
    {"D:\\Old desktop\\Tax return.lnk", DemoTarget::kMissing,
     "C:\\Users\\User\\Documents\\Tax 2019\\return.doc"},
};

constexpr std::string_view kWinDir = "%WinDir%";
constexpr std::string_view kControlPanel =
    "\x20\x20\xEC\x21\xEA\x3A\x69\x10\xA2\xDD\x08\x00\x2B\x30\x30\x9D"sv;

}  // namespace

std::span<const DemoLink> demo_links() { return kLinks; }

std::string demo_target_path(const DemoLink& link) {
  if (link.kind == DemoTarget::kShellPlace) return {};
  if (link.kind != DemoTarget::kEnvironment) return link.target;
  return "C:\\Windows" + std::string(std::string_view(link.target).substr(kWinDir.size()));
}

std::string demo_link_file(const DemoLink& link) {
  const CodePage utf8;  // all of these texts are ASCII
  if (link.kind == DemoTarget::kShellPlace) {
    return link_bytes({.items = items_of_class(kControlPanel)}).value_or("");
  }
  if (link.kind == DemoTarget::kEnvironment) {
    return link_bytes({.environment_path = link.target}).value_or("");
  }
  const LinkTarget facts{
      .attributes = link.kind == DemoTarget::kFolder ? kAttributeFolder : kAttributeArchive,
      .size_bytes = static_cast<std::uint32_t>(link.bytes)};
  return link_to_file({.target = link.target}, facts, utf8).value_or("");
}

}  // namespace quillvane
