#include "tests/support/temp_machine.h"

#include <cstdlib>
#include <iostream>
#include <system_error>
#include <utility>
#include <variant>

#include "platform/folder/machine_files.h"
#include "platform/folder/machine_staging.h"
#include "platform/folder/registry_store.h"
#include "platform/multi_string.h"
#include "support/file_date.h"

namespace quillvane {

namespace {

constexpr DateTime kStart{.year = 2026, .month = 11, .day = 21, .hour = 10};

// A test without its machine could only tell nonsense.
[[noreturn]] void give_up(const std::string& why) {
  std::cerr << "the machine of this test cannot be set up: " << why << std::endl;
  std::abort();
}

void need(std::error_code failed, const std::string& what) {
  if (failed) give_up(what + ": " + failed.message());
}

void need(bool done, const std::string& what) {
  if (!done) give_up(what);
}

}  // namespace

TempMachine::TempMachine(std::string_view machine_json) {
  if (machine_json.empty()) {
    folder_.make_folder("drive_c");
  } else {
    folder_.write("machine.json", machine_json);
  }
  auto opened = FolderMachine::open(folder_.path());
  if (const auto* error = std::get_if<std::string>(&opened)) give_up(*error);
  machine_ = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
  machine_->loop().set_local_now(file_time_of(kStart));
  dialogs_ = std::make_unique<QueuedDialogs>(machine_->effects());
  for (const MachineDrive& drive : machine_->state().drives) add_folder({drive.letter, ':'});
}

TempMachine::~TempMachine() = default;

void TempMachine::add_file(const std::string& path, std::uint64_t bytes) {
  need(stage_file(machine_->state(), path, {.text = {}, .bytes = bytes, .time = {}}), path);
}

void TempMachine::add_text_file(const std::string& path, std::string_view content) {
  need(stage_file(machine_->state(), path, {.text = content, .bytes = 0, .time = {}}), path);
}

void TempMachine::add_folder(const std::string& path) {
  need(stage_folder(machine_->state(), path), path);
}

void TempMachine::add_junction(const std::string& path, const std::string& target) {
  need(stage_junction(machine_->state(), path, target), path);
}

bool TempMachine::has_file(const std::string& path) {
  const auto attributes = machine_->files().attributes(path);
  return attributes && (*attributes & kAttributeFolder) == 0;
}

bool TempMachine::has_folder(const std::string& path) {
  const auto attributes = machine_->files().attributes(path);
  return attributes && (*attributes & kAttributeFolder) != 0;
}

std::optional<std::string> TempMachine::file_text(const std::string& path) {
  const FileContent content = machine_->files().read_file(path);
  return content ? std::optional(*content) : std::nullopt;
}

std::string TempMachine::host_path(const std::string& path) const {
  auto host = host_path_of(machine_->state(), path);
  need(host.has_value(), path + ": no such drive");
  return *std::move(host);
}

void TempMachine::set_environment(const std::string& name, const std::string& value) {
  machine_->set_environment(name, value);
}

void TempMachine::add_registry_key(Hive hive, const std::string& key) {
  need(machine_->registry().create_key(hive, key), key);
}

void TempMachine::set_registry_text(Hive hive, const std::string& key, const std::string& name,
                                    const std::string& text) {
  set_registry_value(hive, key, name, {RegistryType::kSz, text + '\0'});
}

void TempMachine::set_registry_number(Hive hive, const std::string& key, const std::string& name,
                                      std::uint32_t number) {
  std::string bytes;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<char>(number >> shift & 0xFFU));
  }
  set_registry_value(hive, key, name, {RegistryType::kDword, bytes});
}

void TempMachine::set_registry_strings(Hive hive, const std::string& key, const std::string& name,
                                       const std::vector<std::string>& strings) {
  set_registry_value(hive, key, name, {RegistryType::kMultiSz, multi_string_data(strings)});
}

void TempMachine::set_registry_value(Hive hive, const std::string& key, const std::string& name,
                                     const RegistryValue& value) {
  need(machine_->registry().store_value(hive, key, name, value), key);
}

std::optional<std::string> TempMachine::registry_text(Hive hive, const std::string& key,
                                                      const std::string& name) {
  auto value = machine_->registry().value(hive, key, name);
  const bool is_text = value && (value->type == RegistryType::kSz ||  //
                                 value->type == RegistryType::kExpandSz);
  if (!is_text) return std::nullopt;
  if (value->data.ends_with('\0')) value->data.pop_back();
  return std::move(value->data);
}

}  // namespace quillvane
