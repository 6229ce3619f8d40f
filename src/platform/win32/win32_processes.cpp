#include "platform/win32/win32_processes.h"

#include <windows.h>

#include <tlhelp32.h>

#include "platform/win32/system_handle.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

std::vector<ProcessInfo> Win32Processes::list() const {
  std::vector<ProcessInfo> processes;
  const FileHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (!snapshot.is_valid()) return processes;
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32FirstW(snapshot.get(), &entry); more;
       more = Process32NextW(snapshot.get(), &entry)) {
    processes.push_back({entry.th32ProcessID, narrow(entry.szExeFile)});
  }
  return processes;
}

bool Win32Processes::terminate(std::uint32_t id) {
  HANDLE opened = OpenProcess(PROCESS_TERMINATE, FALSE, id);
  if (opened == nullptr) return false;
  const FileHandle process(opened);
  return TerminateProcess(process.get(), 0) != 0;
}

}  // namespace quillvane
