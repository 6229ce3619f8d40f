// What a machine folder tells about itself. Its locale is en-US.
#pragma once

#include <string>

#include "platform/folder/machine_state.h"
#include "platform/system_info.h"

namespace quillvane {

class MachineSystem final : public SystemInfo {
 public:
  // `state` outlives this object.
  explicit MachineSystem(const MachineState& state) : state_(state) {}

  [[nodiscard]] std::string program_folder() const override;
  [[nodiscard]] std::string system_folder() const override { return "C:\\Windows\\System32"; }
  [[nodiscard]] bool is_wow64() const override { return state_.is_64_bit; }
  [[nodiscard]] int ansi_code_page() const override { return state_.code_page; }
  [[nodiscard]] const CodePage* code_page(int number) const override;
  [[nodiscard]] std::string decimal_separator() const override { return "."; }
  [[nodiscard]] DateOrder date_order() const override { return DateOrder::kMonthDayYear; }
  [[nodiscard]] std::string format_date(const DateTime& date) const override;
  [[nodiscard]] FileTime local_time(FileTime time) const override;

 private:
  const MachineState& state_;
};

}  // namespace quillvane
