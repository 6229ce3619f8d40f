#include "machine/demo_folder.h"

namespace quillvane {

namespace {

constexpr const char* kBelowDataFolder = "/quillvane/demo";

}  // namespace

std::optional<std::string> demo_folder(const HostVariable& variable) {
  const auto data = variable("XDG_DATA_HOME");
  if (data && data->starts_with('/')) return *data + kBelowDataFolder;
  const auto home = variable("HOME");
  if (!home || home->empty()) return std::nullopt;
  return *home + "/.local/share" + kBelowDataFolder;
}

}  // namespace quillvane
