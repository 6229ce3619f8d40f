// Any bytes are either a registration file or refused with a reason; and each key that was read is
// the same again after it was exported.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "machine/reg_file.h"

namespace {

using quillvane::Hive;
using quillvane::NamedRegistryValue;
using quillvane::RegistryValue;
using quillvane::RegKeyChange;

void need(bool holds) {
  if (!holds) std::abort();
}

// A registry that holds the one key of a section.
class OneKey final : public quillvane::Registry {
 public:
  explicit OneKey(const RegKeyChange& section) : section_(section) {}

  quillvane::RegistryRead<std::vector<std::string>> sub_keys(Hive hive, const std::string& key,
                                                             quillvane::KeyAccess) const override {
    if (hive != section_.hive || !key.empty() || section_.key.empty()) {
      return std::vector<std::string>();
    }
    return std::vector<std::string>{section_.key};
  }

  quillvane::RegistryRead<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, quillvane::KeyAccess) const override {
    std::vector<NamedRegistryValue> list;
    if (hive != section_.hive || key != section_.key) return list;
    for (const auto& change : section_.values) {
      if (change.value) list.push_back({change.name, *change.value});
    }
    return list;
  }

  quillvane::RegistryRead<RegistryValue> value(Hive, const std::string&, const std::string&,
                                               quillvane::KeyAccess) const override {
    return std::nullopt;
  }
  quillvane::RegistryWrite create_key(Hive, const std::string&) override {
    return quillvane::RegistryWrite::failure("it is only read");
  }
  quillvane::RegistryWrite set_value(Hive, const std::string&, const std::string&,
                                     const RegistryValue&) override {
    return quillvane::RegistryWrite::failure("it is only read");
  }
  quillvane::RegistryWrite remove_value(Hive, const std::string&, const std::string&) override {
    return quillvane::RegistryWrite::failure("it is only read");
  }

 private:
  const RegKeyChange& section_;
};

void check_there_and_back(const RegKeyChange& section) {
  const auto text = quillvane::export_reg_file(OneKey(section));
  need(text.has_value());
  const auto again = quillvane::parse_reg_file(*text);
  const auto* sections = std::get_if<std::vector<RegKeyChange>>(&again);
  need(sections != nullptr);
  if (sections->empty()) {
    need(section.key.empty());
    return;
  }
  need(sections->size() == 1 && sections->front().key == section.key);
  std::vector<quillvane::RegValueChange> kept;
  for (const auto& change : section.values) {
    if (change.value) kept.push_back(change);
  }
  need(sections->front().values == kept);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto result = quillvane::parse_reg_file(bytes);
  if (const auto* why = std::get_if<std::string>(&result)) {
    need(!why->empty() && why->find('\n') == std::string::npos);
    return 0;
  }
  for (const auto& section : std::get<std::vector<RegKeyChange>>(result)) {
    if (!section.remove) check_there_and_back(section);
  }
  return 0;
}
