// The shortcuts of the demonstration machine: a start menu with good and broken ones, and an old
// one on its second drive.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace quillvane {

// Where a shortcut leads, and so how its file tells it.
enum class DemoTarget {
  kFile,         // there, with `bytes` bytes
  kFolder,       // there, by another row's or table's files
  kMissing,      // a file of a drive that is there
  kNoDrive,      // on a drive that is not
  kShare,        // "\\server\share" and what lies below it
  kEnvironment,  // a file that is there, by a path such as "%WinDir%\notepad.exe"
  kShellPlace,   // no file; the path says which place
};

struct DemoLink {
  const char* path;
  DemoTarget kind;
  const char* target;
  std::uint64_t bytes = 0;
};

[[nodiscard]] std::span<const DemoLink> demo_links();

// The target as a path of the machine; empty for a place of the shell.
[[nodiscard]] std::string demo_target_path(const DemoLink& link);

// The bytes of the shortcut's file.
[[nodiscard]] std::string demo_link_file(const DemoLink& link);

}  // namespace quillvane
