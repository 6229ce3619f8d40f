#include "support/stored_path.h"

#include "platform/unicode_case.h"
#include "support/text.h"

namespace quillvane {

std::string GetPath(const Environment& environment, bool is_64_bit, std::string& path) {
  if (is_64_bit) {
    const std::string system_drive = lower_case(environment.get("WINDIR").substr(0, 3));
    path = replace_all(lower_case(path), "system32", "Sysnative");
    if (lower_case(path).find("program files (x86)") == std::string::npos) {
      path = replace_all(lower_case(path), "%programfiles%", "%ProgramW6432%");
    }
    path = replace_all(lower_case(path), system_drive + "program files\\", "%ProgramW6432%\\");
    path = replace_all(lower_case(path), "%commonprogramfiles%", "%ProgramW6432%\\Common Files");
  }
  return environment.expand(path);
}

std::string GetTempDir(const Environment& environment) {
  // The order in which the system looks: TMP, TEMP, USERPROFILE, then the Windows folder.
  for (const char* name : {"TMP", "TEMP", "USERPROFILE", "WinDir"}) {
    std::string folder = environment.get(name);
    if (folder.empty()) continue;
    if (!folder.ends_with('\\')) folder += '\\';
    return folder;
  }
  return {};
}

}  // namespace quillvane
