#include "shortcuts/shortcut_options.h"

#include <array>
#include <utility>

#include "support/registry_text.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kOptionsKey = "software\\Quillvane\\Tidewrack Deluxe\\short";
constexpr const char* kTickedCount = "tot";

std::array<std::pair<const char*, OptionButton*>, 5> stored_options(WherePage& where,
                                                                    OlderRemoval& removal) {
  return {{{"o1", &removal.Option1},
           {"o2", &removal.Option2},
           {"o3", &removal.Option3},
           {"o4", &where.Option4},
           {"o5", &where.Option5}}};
}

// Whether it is the name of a ticked drive: a number as a count is written, no greater than `most`.
// The first is looked at even when none was stored: meant so.
bool names_ticked_drive(const std::string& name, double most) {
  const double number = Val(name);
  return number >= 1 && number_text(number) == name && (number <= most || number == 1);
}

}  // namespace

std::string ShortcutOptions::value(const std::string& name) {
  const RegistryText text =
      ReadRegistryString32(where_.platform().registry, Hive::kLocalMachine, kOptionsKey, name);
  if (problem_.empty()) problem_ = text.problem;
  return text.text;
}

void ShortcutOptions::read() {
  problem_.clear();
  const std::string tick = value("c1");
  if (tick == "1" || tick == "0") where_.Check1.set_checked(tick == "1");
  for (const auto& [name, option] : stored_options(where_, removal_)) {
    const std::string stored = value(name);
    if (stored == "1") option->choose();
    if (stored == "0") option->clear();
  }
  read_ticked_drives();
}

// Each ticked drive was stored as "1" under the number of its row; what is ticked again is the row
// whose number was stored, the first. Numbers of earlier times stay. Meant so.
void ShortcutOptions::read_ticked_drives() {
  const double count = Val(value(kTickedCount));
  // The values that are there are gone through, not the numbers up to the count: any count can have
  // been stored.
  const auto values =
      where_.platform().registry.values(Hive::kLocalMachine, kOptionsKey, KeyAccess::kSettings);
  if (!values) {
    if (problem_.empty()) problem_ = values.problem();
    return;
  }
  for (const NamedRegistryValue& stored : *values) {
    if (!names_ticked_drive(stored.name, count)) continue;
    const double row = Val(value(stored.name));
    if (row >= 1 && row <= where_.View2.count()) {
      where_.View2.set_checked(static_cast<int>(row), true);
    }
  }
}

void ShortcutOptions::write() const {
  Session& session = where_.session;
  if (!problem_.empty()) return session.tell_problem("options", "not saved: " + problem_);
  bool goes_on = true;
  const auto write = [&](const std::string& name, const std::string& text) {
    if (!goes_on) return;
    const RegistryWrite written = WriteRegistryString(session.platform.registry,
                                                      Hive::kLocalMachine, kOptionsKey, name, text);
    goes_on = static_cast<bool>(written);
    if (!written) session.tell_problem("options", "not saved: " + written.problem());
  };
  write("c1", where_.Check1.checked() ? "1" : "0");
  for (const auto& [name, option] : stored_options(where_, removal_)) {
    write(name, option->chosen() ? "1" : "0");
  }
  for (int row = 1; row <= where_.View2.count(); ++row) {
    if (where_.View2.checked(row)) write(std::to_string(row), "1");
  }
  write(kTickedCount, std::to_string(where_.ticked_drives()));
}

}  // namespace quillvane
