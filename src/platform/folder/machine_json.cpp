#include "platform/folder/machine_json.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <nlohmann/json.hpp>
#include <set>
#include <system_error>
#include <utility>

#include "platform/date_time_text.h"
#include "platform/folder/drive_words.h"
#include "platform/folder/host_file.h"
#include "platform/folder/host_path.h"
#include "platform/folder/json_document.h"
#include "platform/folder/json_fields.h"
#include "platform/folder/machine_environment.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

using Json = nlohmann::json;

// A key that is none of these is a slip that would be passed over in silence: a drive that is not
// there, a process that does not run.
constexpr const char* kKeys[] = {"drives",   "environment", "programFolder",   "is64Bit",
                                 "codePage", "processes",   "inUse",           "denied",
                                 "urlCache", "windows",     "utcOffsetMinutes"};
constexpr const char* kDriveKeys[] = {"letter", "type", "folder", "total", "free"};
constexpr const char* kProcessKeys[] = {"id", "name"};
constexpr const char* kCacheKeys[] = {"url", "file", "size", "lastAccess"};

// Reads one document into a state.
class Reader {
 public:
  explicit Reader(const std::string& dir) {
    std::error_code failed;
    dir_ = std::filesystem::absolute(host_path(dir), failed);
    if (failed) dir_ = host_path(dir);
  }

  std::variant<MachineState, std::string> read(const Json& document) {
    if (!document.is_object()) return std::string("machine.json: must be an object");
    MachineState state;
    fields_.known_keys(document, "", kKeys);
    read_drives(document, state.drives);
    read_environment(document, state.environment);
    fields_.text(document, "", "programFolder", state.program_folder);
    fields_.flag(document, "", "is64Bit", state.is_64_bit);
    const auto code_page = fields_.number(document, "", "codePage", 1, 65535);
    if (code_page) state.code_page = static_cast<int>(*code_page);
    read_processes(document, state.processes);
    fields_.texts(document, "inUse", state.in_use);
    fields_.texts(document, "denied", state.denied);
    read_url_cache(document, state.url_cache);
    fields_.texts(document, "windows", state.windows);
    const auto offset = fields_.number(document, "", "utcOffsetMinutes", -1440, 1440);
    if (offset) state.utc_offset_minutes = static_cast<int>(*offset);
    if (!fields_.error().empty()) return "machine.json: " + fields_.error();
    return state;
  }

 private:
  [[nodiscard]] std::string host_folder(const std::string& folder) const {
    // An absolute one replaces the machine folder.
    return host_text((dir_ / host_path(folder)).lexically_normal());
  }

  void read_drives(const Json& document, std::vector<MachineDrive>& drives) {
    if (JsonFields::find(document, "drives") == nullptr) {
      MachineDrive drive;
      drive.folder = host_folder(default_drive_folder(drive.letter));
      drives.push_back(std::move(drive));
    }
    fields_.objects(document, "drives", [&](const Json& object, const std::string& prefix) {
      fields_.known_keys(object, prefix, kDriveKeys);
      MachineDrive drive;
      drive.letter = read_letter(object, prefix);
      const bool taken = std::any_of(drives.begin(), drives.end(), [&](const MachineDrive& other) {
        return other.letter == drive.letter;
      });
      if (taken) fields_.fail(prefix + "letter", std::string(1, drive.letter) + " is there twice");
      read_drive(object, prefix, drive);
      drives.push_back(std::move(drive));
    });
  }

  char read_letter(const Json& object, const std::string& prefix) {
    std::string letter;
    fields_.needed_text(object, prefix, "letter", letter);
    if (letter.size() == 2 && letter[1] == ':') letter.pop_back();
    letter = upper_case(letter);
    if (letter.size() == 1 && letter[0] >= 'A' && letter[0] <= 'Z') return letter[0];
    fields_.fail(prefix + "letter", "must be a letter from A to Z");
    return '?';
  }

  void read_drive(const Json& object, const std::string& prefix, MachineDrive& drive) {
    std::string word = drive_type_word(drive.type);
    fields_.text(object, prefix, "type", word);
    const std::optional<DriveType> type = drive_type_of(word);
    if (!type) return fields_.fail(prefix + "type", "must be one of " + drive_type_words());
    drive.type = *type;

    drive.folder_named = JsonFields::find(object, "folder") != nullptr;
    std::string folder = default_drive_folder(drive.letter);
    fields_.text(object, prefix, "folder", folder);
    if (folder.empty()) return fields_.fail(prefix + "folder", "must name a folder");
    drive.folder = host_folder(folder);
    fields_.byte_count(object, prefix, "total", drive.total_bytes);
    fields_.byte_count(object, prefix, "free", drive.free_bytes);
  }

  void read_environment(const Json& document, EnvironmentVariables& variables) {
    variables = default_environment();
    const Json* given = JsonFields::find(document, "environment");
    if (given == nullptr) return;
    if (!given->is_object()) return fields_.fail("environment", "must be an object");
    std::set<std::string> names;
    for (const auto& [name, value] : given->items()) {
      const std::string where = "environment." + name;
      if (!names.insert(upper_case(name)).second) return fields_.fail(where, "is there twice");
      if (name.empty() || name.find_first_of(std::string_view("=\0", 2)) != std::string::npos) {
        return fields_.fail(where, "is no name of a variable");
      }
      std::string text;
      fields_.take_text(value, where, text);
      set_variable(variables, name, text);
    }
  }

  void read_processes(const Json& document, std::vector<MachineProcess>& processes) {
    constexpr std::int64_t kGreatest = std::numeric_limits<std::uint32_t>::max();
    fields_.objects(document, "processes", [&](const Json& object, const std::string& prefix) {
      fields_.known_keys(object, prefix, kProcessKeys);
      if (JsonFields::find(object, "id") == nullptr) fields_.fail(prefix + "id", "is missing");
      MachineProcess& process = processes.emplace_back();
      const auto id = fields_.number(object, prefix, "id", 0, kGreatest);
      if (id) process.id = static_cast<std::uint32_t>(*id);
      fields_.needed_text(object, prefix, "name", process.name);
    });
  }

  void read_url_cache(const Json& document, std::vector<MachineCacheEntry>& entries) {
    fields_.objects(document, "urlCache", [&](const Json& object, const std::string& prefix) {
      fields_.known_keys(object, prefix, kCacheKeys);
      MachineCacheEntry& entry = entries.emplace_back();
      fields_.needed_text(object, prefix, "url", entry.url);
      fields_.needed_text(object, prefix, "file", entry.file);
      fields_.byte_count(object, prefix, "size", entry.size);
      fields_.text(object, prefix, "lastAccess", entry.last_access);
      const bool given = JsonFields::find(object, "lastAccess") != nullptr;
      if (given && !date_time_from_text(entry.last_access)) {
        fields_.fail(prefix + "lastAccess", "must be a date and time as 2013-03-07 09:05:00");
      }
    });
  }

  std::filesystem::path dir_;
  JsonFields fields_;
};

// A drive whose folder was named and is not there would pass for an empty one.
std::optional<std::string> missing_drive_folder(const MachineState& state) {
  for (std::size_t i = 0; i < state.drives.size(); ++i) {
    const MachineDrive& drive = state.drives[i];
    std::error_code failed;
    if (!drive.folder_named || std::filesystem::is_directory(host_path(drive.folder), failed)) {
      continue;
    }
    return "machine.json: drives[" + std::to_string(i) + "].folder: " + drive.folder + ": " +
           (failed ? failed.message() : "is no folder");
  }
  return std::nullopt;
}

}  // namespace

std::variant<MachineState, std::string> parse_machine_json(std::string_view text,
                                                           const std::string& dir) {
  const auto document = read_json(text);
  if (const auto* problem = std::get_if<std::string>(&document)) return "machine.json: " + *problem;
  return Reader(dir).read(std::get<Json>(document));
}

std::variant<MachineState, std::string> load_machine_json(const std::string& dir) {
  const auto file = read_host_file(dir + "/machine.json", kMostMachineJson);
  if (const auto* error = std::get_if<std::error_code>(&file)) {
    if (*error == std::errc::no_such_file_or_directory) return parse_machine_json("{}", dir);
    if (*error == std::errc::no_such_device) return "machine.json: cannot be read: is no file";
    return "machine.json: cannot be read: " + error->message();
  }
  auto state = parse_machine_json(std::get<std::string>(file), dir);
  if (const auto* parsed = std::get_if<MachineState>(&state)) {
    if (auto problem = missing_drive_folder(*parsed)) return *std::move(problem);
  }
  return state;
}

}  // namespace quillvane
