#include "scan/registry_keys.h"

#include <variant>

#include "scan/junk_page.h"
#include "support/registry_values.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr int kNotRead = 2;

}  // namespace

int fEnumKey(JunkPage& page, const std::string& hive, const std::string& sub_key,
             std::string& names) {
  const HiveOrFile source = fHiveFromName(page.platform().files, hive);
  if (!std::holds_alternative<Hive>(source)) return kNotRead;
  const auto sub_keys =
      page.platform().registry.sub_keys(std::get<Hive>(source), sub_key, KeyAccess::kAll64);
  if (!sub_keys) return kNotRead;
  for (const std::string& name : *sub_keys) {
    const std::string_view trimmed = Trim(name);
    names += trimmed;
    if (!trimmed.empty()) page.List1.add(trimmed);
    page.session.do_events();
  }
  return 0;
}

}  // namespace quillvane
