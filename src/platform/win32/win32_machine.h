// This PC, as the program sees it.
#pragma once

#include "platform/platform.h"
#include "platform/win32/win32_drives.h"
#include "platform/win32/win32_environment.h"
#include "platform/win32/win32_event_log.h"
#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_instances.h"
#include "platform/win32/win32_links.h"
#include "platform/win32/win32_locale.h"
#include "platform/win32/win32_processes.h"
#include "platform/win32/win32_registry.h"
#include "platform/win32/win32_security.h"
#include "platform/win32/win32_shell.h"
#include "platform/win32/win32_suite_channel.h"
#include "platform/win32/win32_system_info.h"
#include "platform/win32/win32_tray.h"
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
    return {.files = files_,
            .drives = drives_,
            .registry = registry_,
            .environment = environment_,
            .system = system_,
            .locale = locale_,
            .event_log = event_log_,
            .processes = processes_,
            .instances = instances_,
            .links = links_,
            .url_cache = url_cache_,
            .security = security_,
            .shell = shell_,
            .suite = suite_,
            .tray = tray_,
            .loop = loop,
            .dialogs = dialogs};
  }

 private:
  Win32FileSystem files_;
  Win32Drives drives_;
  Win32Registry registry_;
  Win32Environment environment_;
  Win32SystemInfo system_;
  Win32Locale locale_;
  Win32EventLog event_log_;
  Win32Processes processes_;
  Win32Instances instances_;
  Win32UrlCache url_cache_;
  Win32Security security_;
  Win32Shell shell_;
  Win32Links links_;
  Win32SuiteChannel suite_;
  Win32Tray tray_;
};

}  // namespace quillvane
