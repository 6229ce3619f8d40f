// A machine folder of a test's own, staged call by call and gone with the object.
//
//   TempMachine machine;
//   machine.add_file("C:\\Windows\\Temp\\a.tmp", 120);
//   run_something(machine.platform());
//   EXPECT_TRUE(machine.has_file("C:\\Windows\\Temp\\a.tmp"));
//
// It begins with an empty drive C:, an empty registry and the default environment; its clock
// begins at 2026-11-21 10:00:00. A step of the staging that fails ends the test program.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/folder_machine.h"
#include "platform/platform.h"
#include "platform/virtual/queued_dialogs.h"
#include "tests/support/temp_folder.h"

namespace quillvane {

class TempMachine {
 public:
  // `machine_json` is the text of machine.json; without one there is no such file.
  explicit TempMachine(std::string_view machine_json = {});
  ~TempMachine();
  TempMachine(const TempMachine&) = delete;
  TempMachine& operator=(const TempMachine&) = delete;

  // The machine folder on this computer.
  [[nodiscard]] const std::string& folder() const { return folder_.path(); }

  [[nodiscard]] Platform platform() { return machine_->platform(*dialogs_); }
  [[nodiscard]] FolderMachine& machine() { return *machine_; }
  [[nodiscard]] QueuedDialogs& dialogs() { return *dialogs_; }
  [[nodiscard]] VirtualLoop& loop() { return machine_->loop(); }
  [[nodiscard]] EffectLog& effects() { return machine_->effects(); }

  // Files and folders, those above made as needed. A file of `bytes` bytes takes no room on the
  // disk; its times are those of its making.
  void add_file(const std::string& path, std::uint64_t bytes = 0);
  void add_text_file(const std::string& path, std::string_view content);
  void add_folder(const std::string& path);
  // A junction at `path` that leads to the folder `target` of the same drive.
  void add_junction(const std::string& path, const std::string& target);

  // As the machine sees it; has_file is false for a folder.
  [[nodiscard]] bool has_file(const std::string& path);
  [[nodiscard]] bool has_folder(const std::string& path);
  [[nodiscard]] std::optional<std::string> file_text(const std::string& path);

  // Where a file of the machine lies, or would lie, on this computer.
  [[nodiscard]] std::string host_path(const std::string& path) const;

  void set_environment(const std::string& name, const std::string& value);

  // Keys are made as needed. None of this counts as an effect.
  void add_registry_key(Hive hive, const std::string& key);
  void set_registry_text(Hive hive, const std::string& key, const std::string& name,
                         const std::string& text);
  void set_registry_number(Hive hive, const std::string& key, const std::string& name,
                           std::uint32_t number);
  void set_registry_strings(Hive hive, const std::string& key, const std::string& name,
                            const std::vector<std::string>& strings);
  void set_registry_value(Hive hive, const std::string& key, const std::string& name,
                          const RegistryValue& value);
  // The text without its terminator; nothing when the value is missing or no text.
  [[nodiscard]] std::optional<std::string> registry_text(Hive hive, const std::string& key,
                                                         const std::string& name);

 private:
  TempFolder folder_;
  std::unique_ptr<FolderMachine> machine_;
  std::unique_ptr<QueuedDialogs> dialogs_;
};

}  // namespace quillvane
