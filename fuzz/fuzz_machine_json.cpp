// Any text is either a machine or refused in one line.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>
#include <variant>

#include "platform/folder/machine_json.h"

namespace {

void need(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto result = quillvane::parse_machine_json(text, "/machine");
  if (const auto* why = std::get_if<std::string>(&result)) {
    need(why->starts_with("machine.json: "));
    need(why->find('\n') == std::string::npos);
    return 0;
  }
  const auto& machine = std::get<quillvane::MachineState>(result);
  std::set<char> letters;
  for (const auto& drive : machine.drives) {
    need(drive.letter >= 'A' && drive.letter <= 'Z');
    need(letters.insert(drive.letter).second);
    need(drive.folder.starts_with('/'));
  }
  need(machine.code_page >= 1 && machine.code_page <= 65535);
  return 0;
}
