#include "cleaning/statistics.h"

#include <string>

#include "support/registry_text.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kKey = "software\\Quillvane\\Tidewrack Deluxe\\statics\\junkfiles";

void add(Registry& registry, const std::string& name, std::string_view number) {
  const double before = Val(ReadRegistryString32(registry, Hive::kLocalMachine, kKey, name).text);
  // A sum that cannot be written is lost.
  static_cast<void>(WriteRegistryString(registry, Hive::kLocalMachine, kKey, name,
                                        number_text(before + Val(number))));
}

}  // namespace

void add_to_statistics(Registry& registry, std::string_view files, std::string_view bytes) {
  add(registry, "count", files);
  add(registry, "size", bytes);
}

}  // namespace quillvane
