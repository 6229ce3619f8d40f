// This PC, as the program sees it.
#pragma once

#include "platform/platform.h"
#include "platform/win32/win32_drives.h"
#include "platform/win32/win32_environment.h"
#include "platform/win32/win32_event_log.h"
#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_processes.h"
#include "platform/win32/win32_registry.h"
#include "platform/win32/win32_system_info.h"
#include "platform/win32/win32_url_cache.h"

namespace quillvane {

class Win32Machine {
 public:
  // From here on Windows answers a drive without a medium by a failure, not by a box that asks
  // for one.
  Win32Machine();

  // Everything but what the user sees and when: boxes and time are the view's choice. All three
  // must outlive the result.
  [[nodiscard]] Platform platform(Dialogs& dialogs, MessageLoop& loop) {
    return {files_,     drives_,    registry_,  environment_, system_,
            event_log_, processes_, url_cache_, loop,         dialogs};
  }

 private:
  Win32FileSystem files_;
  Win32Drives drives_;
  Win32Registry registry_;
  Win32Environment environment_;
  Win32SystemInfo system_;
  Win32EventLog event_log_;
  Win32Processes processes_;
  Win32UrlCache url_cache_;
};

}  // namespace quillvane
