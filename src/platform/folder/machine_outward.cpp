#include "platform/folder/machine_outward.h"

#include <algorithm>
#include <utility>

#include "platform/folder/recycle_bin.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

constexpr int kOpened = 42;  // above 32, as the shell answers a success
constexpr int kFileNotFound = 2;

// A special folder by its number, as a variable of the environment and what follows it.
struct SpecialFolder {
  int id;
  const char* variable;
  const char* suffix;
};

constexpr SpecialFolder kSpecialFolders[] = {
    {0x00, "USERPROFILE", "\\Desktop"},
    {0x02, "APPDATA", "\\Microsoft\\Windows\\Start Menu\\Programs"},
    {0x05, "USERPROFILE", "\\Documents"},
    {0x06, "USERPROFILE", "\\Favorites"},
    {0x07, "APPDATA", "\\Microsoft\\Windows\\Start Menu\\Programs\\Startup"},
    {0x08, "APPDATA", "\\Microsoft\\Windows\\Recent"},
    {0x09, "APPDATA", "\\Microsoft\\Windows\\SendTo"},
    {0x0B, "APPDATA", "\\Microsoft\\Windows\\Start Menu"},
    {0x10, "USERPROFILE", "\\Desktop"},
    {0x16, "ProgramData", "\\Microsoft\\Windows\\Start Menu"},
    {0x17, "ProgramData", "\\Microsoft\\Windows\\Start Menu\\Programs"},
    {0x18, "ProgramData", "\\Microsoft\\Windows\\Start Menu\\Programs\\Startup"},
    {0x19, "SystemDrive", "\\Users\\Public\\Desktop"},
    {0x1A, "APPDATA", ""},
    {0x1C, "LOCALAPPDATA", ""},
    {0x20, "LOCALAPPDATA", "\\Microsoft\\Windows\\Temporary Internet Files"},
    {0x23, "ProgramData", ""},
    {0x24, "WinDir", ""},
    {0x25, "WinDir", "\\System32"},
    {0x26, "ProgramFiles", ""},
    {0x28, "USERPROFILE", ""},
};

}  // namespace

void MachineSecurity::set_key_access(Hive /*hive*/, const std::string& key,
                                     const std::string& /*account*/) {
  effects_.add("key-access", {{"key", key}});
}

void MachineSecurity::set_file_access(const std::string& /*account*/, const std::string& path,
                                      std::uint32_t /*mask*/) {
  effects_.add("file-access", {{"path", path}});
}

MachineShell::MachineShell(const MachineState& state, EffectLog& effects, FileSystem& files,
                           const MessageLoop& loop, std::function<void()> empty_bin)
    : state_(state),
      effects_(effects),
      files_(files),
      loop_(loop),
      empty_bin_(std::move(empty_bin)) {}

int MachineShell::open(const ShellRequest& request) {
  effects_.add(
      "shell-open",
      {{"verb", request.verb}, {"path", request.path}, {"show", std::int64_t{request.show}}});
  return files_.attributes(request.path) ? kOpened : kFileNotFound;
}

bool MachineShell::show_properties(const std::string& path) {
  effects_.add("properties", {{"path", path}});
  return files_.attributes(path).has_value();
}

std::string MachineShell::special_folder(int id) const {
  for (const SpecialFolder& folder : kSpecialFolders) {
    if (folder.id != id) continue;
    const auto variable =
        std::find_if(state_.environment.begin(), state_.environment.end(),
                     [&](const auto& entry) { return same_name(entry.first, folder.variable); });
    return variable == state_.environment.end() ? std::string() : variable->second + folder.suffix;
  }
  return {};
}

bool MachineShell::recycle(const std::string& path) {
  return move_to_recycle_bin(files_, path, loop_.local_now());
}

void MachineShell::empty_recycle_bin() {
  effects_.add("empty-recycle-bin");
  empty_bin_();
}

void MachineShell::show_help(const std::string& file, int topic) {
  effects_.add("help", {{"file", file}, {"topic", std::int64_t{topic}}});
}

void MachineSuiteChannel::publish(const std::string& text) {
  effects_.add("suite-publish", {{"text", text}});
}

bool MachineSuiteChannel::notify(const std::string& title, std::size_t length) {
  const bool found = std::any_of(state_.windows.begin(), state_.windows.end(),
                                 [&](const std::string& w) { return same_name(w, title); });
  effects_.add("suite-notify",
               {{"title", title}, {"found", found}, {"length", static_cast<std::int64_t>(length)}});
  return found;
}

void MachineTray::add(const void* /*owner*/, const std::string& /*tip*/,
                      std::function<void(int message)> /*mouse*/) {
  effects_.add("tray-add");
}

void MachineTray::modify(const void* /*owner*/, const std::string& tip) {
  effects_.add("tray-modify", {{"tip", tip}});
}

void MachineTray::remove(const void* /*owner*/) { effects_.add("tray-remove"); }

}  // namespace quillvane
