// The machine that the contract tests stage and then ask through the platform calls: a machine
// folder on Linux or on Windows, or this PC. The cases are the same for all; only the staging
// differs, and it goes around the calls under test.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace quillvane {

class ContractMachine {
 public:
  // A machine with an empty folder and an empty registry key for this test; both are gone with the
  // object.
  [[nodiscard]] static std::unique_ptr<ContractMachine> make();

  virtual ~ContractMachine() = default;

  // What is under test.
  [[nodiscard]] virtual Platform platform() = 0;

  // The test's folder, without a backslash at its end.
  [[nodiscard]] virtual std::string folder() const = 0;
  [[nodiscard]] std::string path_of(std::string_view name) const {
    return folder() + "\\" + std::string(name);
  }

  // The test's key below HKEY_CURRENT_USER.
  [[nodiscard]] virtual std::string key() const = 0;

  // Attributes that every file has here, whatever is set.
  [[nodiscard]] virtual std::uint32_t constant_attributes() const = 0;

  // Whether a listing applies the patterns to the last detail as Windows does.
  [[nodiscard]] virtual bool lists_like_windows() const = 0;

  // Whether the show command of a link file is told as it stands in the file.
  [[nodiscard]] virtual bool reads_show_commands() const = 0;

  // Files and folders, by their path; a file of `bytes` bytes takes no room on the disk.
  virtual void add_file(const std::string& path, std::string_view content) = 0;
  virtual void add_big_file(const std::string& path, std::uint64_t bytes) = 0;
  virtual void add_folder(const std::string& path) = 0;
  // A link at `path` to the folder `target`.
  virtual void add_link(const std::string& path, const std::string& target) = 0;

  // Holds the file open as another program does that lets others read it; until the machine is
  // gone.
  virtual void hold_open(const std::string& path) = 0;

  // Sets a variable of the environment that the machine tells.
  virtual void set_environment(const std::string& name, const std::string& value) = 0;
};

}  // namespace quillvane
