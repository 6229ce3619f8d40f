#include "platform/folder/machine_instances.h"

#include <filesystem>
#include <functional>
#include <string>
#include <system_error>

#include "platform/folder/host_path.h"
#include "platform/unicode_case.h"
#include "platform/win32/win32_instances.h"

namespace quillvane {

namespace {

// The same for every way to write the folder's path.
Win32Instances instances_of(const std::string& dir) {
  std::error_code failed;
  const auto path = std::filesystem::weakly_canonical(host_path(dir), failed);
  const std::string text = lower_case(failed ? dir : host_text(path));
  return Win32Instances(L"Quillvane.machine." + std::to_wstring(std::hash<std::string>{}(text)));
}

}  // namespace

Instances::Hold MachineInstances::announce_cleaning() {
  return instances_of(dir_).announce_cleaning();
}

Instances::Hold MachineInstances::hold_off_cleaning() {
  return instances_of(dir_).hold_off_cleaning();
}

}  // namespace quillvane
