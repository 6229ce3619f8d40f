// Everything the program asks of the machine it works on, one object a concern.
//
// Two families stand behind it: platform/win32 (this PC) and platform/folder (a Windows machine
// held in a folder). The calls are narrow on purpose, so that a further layer can stand between
// the behaviour and the machine.
#pragma once

#include "platform/dialogs.h"
#include "platform/drives.h"
#include "platform/environment.h"
#include "platform/event_log.h"
#include "platform/file_system.h"
#include "platform/instances.h"
#include "platform/links.h"
#include "platform/locale.h"
#include "platform/message_loop.h"
#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/security.h"
#include "platform/shell.h"
#include "platform/suite_channel.h"
#include "platform/system_info.h"
#include "platform/tray.h"
#include "platform/url_cache.h"

namespace quillvane {

struct Platform {
  FileSystem& files;
  Drives& drives;
  Registry& registry;
  Environment& environment;
  SystemInfo& system;
  LocaleSettings& locale;
  SystemEventLog& event_log;
  Processes& processes;
  Instances& instances;
  Links& links;
  UrlCache& url_cache;
  Security& security;
  Shell& shell;
  SuiteChannel& suite;
  Tray& tray;
  MessageLoop& loop;
  Dialogs& dialogs;

  // Parts to be replaced; null leaves the machine's own.
  struct Replacement {
    FileSystem* files = nullptr;
    Registry* registry = nullptr;
    LocaleSettings* locale = nullptr;
    Dialogs* dialogs = nullptr;
    Links* links = nullptr;
  };

  // The same machine with parts replaced: how a layer gets between the behaviour and the machine.
  [[nodiscard]] Platform with(const Replacement& other) const {
    return {.files = other.files != nullptr ? *other.files : files,
            .drives = drives,
            .registry = other.registry != nullptr ? *other.registry : registry,
            .environment = environment,
            .system = system,
            .locale = other.locale != nullptr ? *other.locale : locale,
            .event_log = event_log,
            .processes = processes,
            .instances = instances,
            .links = other.links != nullptr ? *other.links : links,
            .url_cache = url_cache,
            .security = security,
            .shell = shell,
            .suite = suite,
            .tray = tray,
            .loop = loop,
            .dialogs = other.dialogs != nullptr ? *other.dialogs : dialogs};
  }
};

}  // namespace quillvane
