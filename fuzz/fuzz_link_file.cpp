// Any bytes are a shell link or none; and a link to the target that was read is read as one to it.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/folder/host_code_page.h"
#include "platform/folder/link_file.h"
#include "platform/folder/link_writer.h"
#include "platform/folder/machine_environment.h"
#include "platform/folder/machine_state.h"

namespace {

using quillvane::LinkContent;

void need(bool holds) {
  if (!holds) std::abort();
}

void check_there_and_back(const LinkContent& content, const quillvane::CodePage& page,
                          const quillvane::Environment& environment) {
  const auto bytes = quillvane::link_to_file(content, {}, page);
  if (!bytes) return;
  const auto again = quillvane::parse_link(*bytes, page, environment);
  need(again.has_value());
  need(again->target == content.target);
  need(again->working_directory == content.working_directory);
  need(again->arguments == content.arguments);
  need(again->icon_file == content.icon_file);
  need(again->show_command == content.show_command);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const quillvane::MachineState machine = [] {
    quillvane::MachineState state;
    state.environment = quillvane::default_environment();
    return state;
  }();
  static const quillvane::MachineEnvironment environment(machine);
  static const quillvane::CodePage& page = *quillvane::host_code_page(1252);

  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto content = quillvane::parse_link(bytes, page, environment);
  if (!content) return 0;
  need(content->has_target);
  need(content->show_command == 1 || content->show_command == 3 || content->show_command == 7);
  for (const std::string* text :
       {&content->target, &content->working_directory, &content->arguments, &content->icon_file}) {
    need(text->find('\0') == std::string::npos);
  }
  check_there_and_back(*content, page, environment);
  return 0;
}
