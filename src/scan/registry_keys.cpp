#include "scan/registry_keys.h"

#include <variant>

#include "core/form7.h"
#include "support/registry_values.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr int kNotRead = 2;

}  // namespace

int fEnumKey(Form7& form, const std::string& hive, const std::string& sub_key, std::string& names) {
  const HiveOrFile source = fHiveFromName(form.platform().files, hive);
  if (!std::holds_alternative<Hive>(source)) return kNotRead;
  const auto sub_keys =
      form.platform().registry.sub_keys(std::get<Hive>(source), sub_key, KeyAccess::kAll64);
  if (!sub_keys) return kNotRead;
  for (const std::string& name : *sub_keys) {
    const std::string_view trimmed = Trim(name);
    names += trimmed;
    if (!trimmed.empty()) form.List1.add(trimmed);
    form.program.do_events();
  }
  return 0;
}

}  // namespace quillvane
