#include "cleaning/statistics.h"

#include <string>

#include "support/registry_text.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kKey = "software\\Quillvane\\Tidewrack Deluxe\\statics\\junkfiles";

RegistryText read(const Registry& registry, const std::string& name) {
  return ReadRegistryString32(registry, Hive::kLocalMachine, kKey, name);
}

RegistryWrite write_sum(Registry& registry, const std::string& name, const RegistryText& before,
                        std::string_view number) {
  return WriteRegistryString(registry, Hive::kLocalMachine, kKey, name,
                             number_text(Val(before.text) + Val(number)));
}

}  // namespace

RegistryWrite add_to_statistics(Registry& registry, std::string_view files,
                                std::string_view bytes) {
  const RegistryText count = read(registry, "count");
  const RegistryText size = read(registry, "size");
  for (const RegistryText* before : {&count, &size}) {
    if (!before->problem.empty()) return RegistryWrite::failure(before->problem);
  }
  const RegistryWrite counted = write_sum(registry, "count", count, files);
  const RegistryWrite sized = write_sum(registry, "size", size, bytes);
  return counted ? sized : counted;
}

}  // namespace quillvane
