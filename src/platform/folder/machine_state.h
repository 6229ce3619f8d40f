// What a machine folder holds beside files and registry: the content of its machine.json.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/drives.h"

namespace quillvane {

struct MachineDrive {
  char letter = 'C';  // upper case
  DriveType type = DriveType::kFixed;
  std::string folder;  // host path of the drive's files, absolute
  std::optional<std::uint64_t> total_bytes;
  std::optional<std::uint64_t> free_bytes;
  bool folder_named = false;  // by machine.json; else it is the usual one, drive_c
};

struct MachineProcess {
  std::uint32_t id = 0;
  std::string name;
};

struct MachineCacheEntry {
  std::string url;
  std::string file;  // local file; may be empty
  std::optional<std::uint64_t> size;
  std::string last_access;  // "2013-03-07 09:05:00", UTC; empty when not given
};

struct MachineState {
  std::vector<MachineDrive> drives;
  std::vector<std::pair<std::string, std::string>> environment;  // the defaults included
  std::string program_folder = "C:\\Program Files\\Tidewrack";
  bool is_64_bit = false;
  int code_page = 1252;
  std::vector<MachineProcess> processes;
  std::vector<std::string> in_use;  // files another program holds open
  std::vector<std::string> denied;  // folders that cannot be listed
  std::vector<MachineCacheEntry> url_cache;
  std::vector<std::string> windows;  // titles of other programs' windows
  int utc_offset_minutes = 0;
};

}  // namespace quillvane
