#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/folder/drive_words.h"
#include "platform/folder/host_file.h"
#include "platform/folder/host_path.h"
#include "platform/folder/json_document.h"
#include "platform/folder/machine_environment.h"
#include "platform/folder/machine_json.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

// Keeps the order in which a user wrote the keys.
using Json = nlohmann::ordered_json;

Json drives_json(const MachineState& state, const std::filesystem::path& dir) {
  Json list = Json::array();
  for (const MachineDrive& drive : state.drives) {
    Json object = {{"letter", std::string(1, drive.letter)}, {"type", drive_type_word(drive.type)}};
    if (drive.folder != host_text(dir / default_drive_folder(drive.letter))) {
      object["folder"] = drive.folder;
    }
    if (drive.total_bytes) object["total"] = *drive.total_bytes;
    if (drive.free_bytes) object["free"] = *drive.free_bytes;
    list.push_back(std::move(object));
  }
  return list;
}

// What is not as the defaults have it.
Json environment_json(const MachineState& state) {
  const EnvironmentVariables defaults = default_environment();
  Json object = Json::object();
  for (const auto& variable : state.environment) {
    if (std::find(defaults.begin(), defaults.end(), variable) == defaults.end()) {
      object[variable.first] = variable.second;
    }
  }
  return object;
}

Json processes_json(const MachineState& state) {
  Json list = Json::array();
  for (const MachineProcess& process : state.processes) {
    list.push_back({{"id", process.id}, {"name", process.name}});
  }
  return list;
}

Json url_cache_json(const MachineState& state) {
  Json list = Json::array();
  for (const MachineCacheEntry& entry : state.url_cache) {
    Json object = {{"url", entry.url}, {"file", entry.file}};
    if (entry.size) object["size"] = *entry.size;
    if (!entry.last_access.empty()) object["lastAccess"] = entry.last_access;
    list.push_back(std::move(object));
  }
  return list;
}

Json document_of(const MachineState& state, const std::filesystem::path& dir) {
  return {{"drives", drives_json(state, dir)},
          {"environment", environment_json(state)},
          {"programFolder", state.program_folder},
          {"is64Bit", state.is_64_bit},
          {"codePage", state.code_page},
          {"processes", processes_json(state)},
          {"inUse", Json(state.in_use)},
          {"denied", Json(state.denied)},
          {"urlCache", url_cache_json(state)},
          {"windows", Json(state.windows)},
          {"utcOffsetMinutes", state.utc_offset_minutes}};
}

// The document in the file; an empty one without the file.
Json stored_document(const std::string& file) {
  const auto content = read_host_file(file, kMostMachineJson);
  const auto* text = std::get_if<std::string>(&content);
  if (text == nullptr || json_excess(*text)) return Json::object();
  return Json::parse(*text, nullptr, false);
}

// Keeps of `stored` what is in `kept` too, each element of `kept` counting once.
template <typename Element, typename Same>
void keep_common(std::vector<Element>& stored, std::vector<Element> kept, Same same) {
  std::erase_if(stored, [&](const Element& element) {
    const auto found = std::find_if(kept.begin(), kept.end(),
                                    [&](const Element& other) { return same(element, other); });
    if (found == kept.end()) return true;
    kept.erase(found);
    return false;
  });
}

}  // namespace

std::optional<std::string> save_removals(const std::string& dir, const MachineState& state) {
  auto loaded = load_machine_json(dir);
  if (const auto* error = std::get_if<std::string>(&loaded)) return *error;
  auto& stored = std::get<MachineState>(loaded);
  keep_common(stored.processes, state.processes, [](const auto& left, const auto& right) {
    return left.id == right.id && left.name == right.name;
  });
  keep_common(stored.url_cache, state.url_cache, [](const auto& left, const auto& right) {
    return left.url == right.url && left.file == right.file;
  });
  return save_machine_json(dir, stored);
}

std::optional<std::string> save_machine_json(const std::string& dir, const MachineState& state) {
  const auto stored = load_machine_json(dir);
  if (const auto* error = std::get_if<std::string>(&stored)) return *error;

  std::error_code failed;
  const std::filesystem::path full_dir =
      std::filesystem::absolute(host_path(dir), failed).lexically_normal();
  const std::string file = dir + "/machine.json";
  Json document = stored_document(file);
  const Json before = document_of(std::get<MachineState>(stored), full_dir);
  const Json now = document_of(state, full_dir);
  bool changed = false;
  for (const auto& [key, value] : now.items()) {
    if (value == before.at(key)) continue;
    document[key] = value;
    changed = true;
  }
  if (!changed) return std::nullopt;

  // Bytes that are no UTF-8 have no place in JSON; they are written as U+FFFD.
  const std::string text = document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
  const std::error_code error = replace_host_file(file, text);
  if (error) return "machine.json: cannot be written: " + error.message();
  return std::nullopt;
}

}  // namespace quillvane
